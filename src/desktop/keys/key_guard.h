#pragma once

#include <QElapsedTimer>
#include <QEvent>
#include <QHash>
#include <QObject>

class QKeyEvent;

namespace vantora::ui::desktop {

/// Stands between the keyboard and the windows: no command repeats because its key is held, and a
/// key that was down when a screen or box came up does nothing in it until it has been let go; nor
/// does the command key that brought it, pressed twice in a haste. The second click of a double
/// click falls on nothing that came up with the first.
class key_guard final : public QObject {
 public:
    /// From now on. REQUIRES: the application object stands.
    void begin();

    /// What stands before the user has changed.
    void screen_came_up();

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    [[nodiscard]] bool holds_back(const QKeyEvent& key);
    /// Presses of the mouse in a haste, and what belongs to them.
    [[nodiscard]] bool holds_back_mouse(QEvent::Type what);
    /// A held key comes as let go and pressed again at the same moment; the toolkit sees that only
    /// where both have arrived.
    [[nodiscard]] bool repeats(const QKeyEvent& key);

    struct letting_go {
        quint64 moment;  ///< of the window system
        int screen;      ///< in which the key had gone down
    };

    QHash<int, int> down_;  ///< keys that are down, with the screen in which they went down
    QHash<int, letting_go> let_go_;
    int screen_ = 0;  ///< counts what came up
    int last_key_ = 0;
    int bringer_ = 0;  ///< the key that brought the screen, while no other was pressed
    QElapsedTimer since_screen_;
    bool click_held_back_ = false;  ///< the press was; its release is, too
};

}  // namespace vantora::ui::desktop
