#pragma once

#include <QElapsedTimer>
#include <QHash>
#include <QObject>

class QKeyEvent;

namespace vantora::ui::desktop {

/// Stands between the keyboard and the windows: no command repeats because its key is held, and a
/// key that was down when a screen or box came up does nothing in it until it has been let go; nor
/// does the command key that brought it, pressed twice in a haste.
class key_guard final : public QObject {
 public:
    /// From now on. REQUIRES: the application object stands.
    void begin();

    /// What stands before the user has changed.
    void screen_came_up();

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    [[nodiscard]] bool holds_back(const QKeyEvent& key);

    QHash<int, int> down_;  ///< keys that are down, with the screen in which they went down
    int screen_ = 0;        ///< counts what came up
    int last_key_ = 0;
    int bringer_ = 0;  ///< the key that brought the screen, while no other was pressed
    QElapsedTimer since_screen_;
};

}  // namespace vantora::ui::desktop
