#pragma once

#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "desktop/controls/binder.h"
#include "desktop/keys/keys.h"
#include "ui/controls.h"
#include "ui/form.h"

class QAbstractButton;
class QComboBox;
class QLineEdit;
class QListView;
class QScrollArea;
class QScrollBar;
class QToolButton;

namespace vantora::ui::desktop {

class grid_view;
class text_label;

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

/// What each kind of control is shown by; declared alone, for its type.
QWidget* widget_for(const control&);
QLineEdit* widget_for(const text_box&);
text_label* widget_for(const label&);
QToolButton* widget_for(const button&);
QAbstractButton* widget_for(const check_box&);
QAbstractButton* widget_for(const option_button&);
QListView* widget_for(const list_box&);
QComboBox* widget_for(const drop_down&);
QScrollBar* widget_for(const scroll_bar&);
grid_view* widget_for(const grid&);

class form_window;

/// Arranges the widgets of a screen's controls. False for a screen that it doesn't know: its
/// controls then stand one below the other.
using screen_layouts = std::function<bool(form_window&)>;

/// The window of one screen. Makes the widgets of all its controls; the screen's layout arranges
/// them.
class form_window final : public QWidget {
 public:
    /// What the user does with the window as a whole.
    struct window_events {
        std::function<void(form&)> close;
        std::function<void(form&)> come_forward;
    };

    /// With a person at work, sizes are kept from run to run.
    form_window(form& screen, const screen_layouts& layouts, user by, window_events events);
    ~form_window() override;

    [[nodiscard]] form& screen() const { return *screen_; }
    [[nodiscard]] bool by_person() const { return by_.is_person; }
    /// The screen goes; the window follows when its events are over.
    void forget_screen();

    /// The widget of a control. REQUIRES: the screen has it.
    template <class Control>
    [[nodiscard]] auto* widget(const Control& of) const {
        return static_cast<decltype(widget_for(of))>(&widget_of(of));
    }
    [[nodiscard]] QWidget& widget_of(const control& one) const {
        return binders_.at(&one)->widget();
    }
    /// Whether the screen has a control of its class.
    [[nodiscard]] bool has(const control& one) const { return binders_.contains(&one); }

    /// Gives a command its picture, caption and tooltip.
    QToolButton* dress(const button& command, const command_look& look,
                       Qt::ToolButtonStyle style = Qt::ToolButtonTextUnderIcon);

    /// Carries out what the user does with a control by other means than its widget. Nothing, if
    /// the screen has gone meanwhile.
    void act_on(control& one, const std::function<void()>& action) const {
        if (screen_) by_.act(one, action);
    }

    /// Opens one of the screen's further windows, if the user may do anything here now.
    void open_further(std::size_t place) const;

    /// The screen's title, what the screen is about, and whose program it is.
    void show_title(const QString& end);

    /// The way of Tab, where it isn't that of the controls.
    void set_tab_order(const std::vector<QWidget*>& stops);

    /// As soon as the control is there to be worked in, it takes the focus and something more is
    /// done, once.
    void begin_in(control& one, std::function<void()> more = {});

    /// The least size, and that of the first showing.
    void set_sizes(const QSize& least, const QSize& first) {
        setMinimumSize(least);
        first_size_ = first;
    }
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
    void stack_controls();
    void follow_controls_by_tab();
    /// What has no caption is called by what it is for, or by where it stands.
    void name_the_rest();
    void recall();
    /// Puts what the layout arranged into an area that scrolls where the screen is too small.
    void make_scrollable();
    [[nodiscard]] QSize size_on(const QRect& room) const;
    [[nodiscard]] QSize normal_size() const;

    form* screen_;  ///< null when it is gone
    user by_;
    window_events events_;
    bool placed_ = false;
    QSize first_size_{800, 500};
    QScrollArea* area_ = nullptr;
    std::map<const control*, std::unique_ptr<binder>> binders_;
};

}  // namespace vantora::ui::desktop
