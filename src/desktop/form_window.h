#pragma once

#include <QWidget>
#include <algorithm>
#include <map>
#include <memory>
#include <vector>

#include "desktop/controls/binder.h"
#include "desktop/keys/keys.h"
#include "ui/form.h"

class QScrollArea;
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
    /// `close` and `come_forward`: the user closes the window, or brings it to the front.
    /// `by_user`: a person works it, not a script; sizes are then kept from run to run.
    form_window(form& screen, user_action act, std::function<void(form&)> close,
                std::function<void(form&)> come_forward, bool by_user);
    ~form_window() override;

    [[nodiscard]] form& screen() const { return *screen_; }
    /// Comforts that move marks or write days out are for persons; a script finds marks and texts
    /// as the screens left them.
    [[nodiscard]] bool by_user() const { return by_user_; }
    /// The screen goes; the window follows when its events are over.
    void forget_screen();

    /// The widget of a control. REQUIRES: the screen has it.
    [[nodiscard]] QWidget* widget(const char* name, int index = -1) const;
    template <class Widget>
    [[nodiscard]] Widget* as(const char* name, int index = -1) const {
        return static_cast<Widget*>(widget(name, index));
    }

    /// REQUIRES: the screen has the control.
    [[nodiscard]] QWidget& widget_of(const control& one) const;

    /// Gives a command its picture, caption and tooltip.
    void dress(const char* name, int index, const command_look& look,
               Qt::ToolButtonStyle style = Qt::ToolButtonTextUnderIcon);

    /// Carries out what the user does with a control by other means than its widget. Nothing, if
    /// the screen has gone meanwhile or has no such control.
    template <class Control = control, class Action>
    void act_on(const char* name, int index, const Action& action) const {
        control* one = screen_ ? screen_->find(name, std::max(index, 0)) : nullptr;
        if (one) act_(*one, [&] { action(static_cast<Control&>(*one)); });
    }

    /// Opens one of the screen's further windows, if the user may do anything here now.
    void open_further(std::size_t place) const;

    /// The way of Tab, where it isn't that of the controls.
    void set_tab_order(const std::vector<QWidget*>& stops);

    /// Size of the first showing.
    void set_first_size(const QSize& size) { first_size_ = size; }
    /// Shows the window in the place of another one, or in the middle of the screen if there was
    /// none yet.
    void appear(const window_place& place);
    [[nodiscard]] window_place place() const;
    void focus_on(control& one);
    /// Selects the whole text of a field; nothing for other kinds.
    void select_text(control& one);

 protected:
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;

 private:
    void follow_controls_by_tab();
    /// What has no caption is called by what it is for, or by where it stands.
    void name_the_rest();
    void recall();
    /// Puts what the layout arranged into an area that scrolls where the screen is too small.
    void make_scrollable();
    [[nodiscard]] QSize size_on(const QRect& room) const;
    [[nodiscard]] QSize normal_size() const;

    form* screen_;  ///< null when it is gone
    user_action act_;
    std::function<void(form&)> close_;
    std::function<void(form&)> come_forward_;
    bool by_user_;
    bool placed_ = false;
    QSize first_size_{800, 500};
    QScrollArea* area_ = nullptr;
    std::map<const control*, std::unique_ptr<binder>> binders_;
};

}  // namespace vantora::ui::desktop
