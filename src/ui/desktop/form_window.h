#pragma once

#include <QIcon>
#include <QWidget>
#include <map>
#include <memory>
#include <vector>

#include "ui/desktop/binder.h"
#include "ui/form.h"

class QAbstractButton;
class QToolButton;

namespace vantora::ui::desktop {

/// How a command that its screen shows by a picture looks.
struct command_look {
    const char* icon;      ///< name of a picture in icons/
    const char* caption;   ///< short, UTF-8, "&" before the letter for Alt
    const char* tooltip;   ///< one sentence, UTF-8
    const char* shortcut;  ///< empty for none
};

/// Where a window stands.
struct window_place {
    bool known = false;
    QPoint middle;
    bool full_screen = false;
};

/// The window of one screen. Makes the widgets of all its controls; the screen's layout arranges
/// them.
class form_window final : public QWidget {
 public:
    /// `remember`: sizes are kept from run to run.
    form_window(form& screen, user_action act, std::function<void(form&)> close, bool remember);
    ~form_window() override;

    [[nodiscard]] form& screen() const { return *screen_; }
    /// The screen goes; the window follows when its events are over.
    void forget_screen();

    /// The widget of a control. REQUIRES: the screen has it.
    [[nodiscard]] QWidget* widget(const char* name, int index = -1) const;
    template <class Widget>
    [[nodiscard]] Widget* as(const char* name, int index = -1) const {
        return static_cast<Widget*>(widget(name, index));
    }

    /// Gives a command its picture, caption and tooltip.
    void dress(const char* name, int index, const command_look& look,
               Qt::ToolButtonStyle style = Qt::ToolButtonTextUnderIcon);

    /// Carries out what the user does with a control by other means than its widget.
    void act_on(control& one, const std::function<void()>& action) { act_(one, action); }

    /// Size of the first showing.
    void set_first_size(const QSize& size) { first_size_ = size; }
    /// Shows the window in the place of another one, or in the middle of the screen if there was
    /// none yet.
    void appear(const window_place& place);
    [[nodiscard]] window_place place() const;
    void focus_on(control& one);

 protected:
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;

 private:
    void set_tab_order();
    [[nodiscard]] QSize size_on(const QRect& room) const;
    [[nodiscard]] QSize normal_size() const;

    form* screen_;  ///< null when it is gone
    user_action act_;
    std::function<void(form&)> close_;
    bool remember_;
    bool placed_ = false;
    QSize first_size_{800, 500};
    std::map<const control*, std::unique_ptr<binder>> binders_;
};

/// Further keys for a button, told by its tooltip.
void add_shortcut(QAbstractButton& button, const char* keys);

/// A picture of the program.
QIcon picture_named(const char* name);

}  // namespace vantora::ui::desktop
