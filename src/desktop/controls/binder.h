#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "ui/control.h"
#include "ui/paper/toolkit_values.h"

class QAbstractButton;
class QKeyEvent;

namespace vantora::ui::desktop {

/// Who works in the windows.
struct user {
    /// Carries out what they do; refused while they may not touch the control.
    std::function<void(control& on, const std::function<void()>& action)> act;
    /// A person and no script. Comforts that move marks or write days out are for persons; a script
    /// finds marks and texts as the screens left them.
    bool is_person = true;
};

/// The widget of one control and the traffic between the two: what the user does goes to the
/// model, what the model says goes to the widget. One subclass a kind; what they share stands here:
/// visibility, enabling, focus and keys.
class binder : public QObject, public control_view {
 public:
    [[nodiscard]] QWidget& widget() { return *made_; }
    /// Shows the model's whole state.
    void show_all();
    /// The model goes; from here on the binder leaves it alone.
    void retire() { retired_ = true; }
    void changed(aspect what) override;

 protected:
    binder(control& model, QWidget* made, const user& by);

    /// Shows what is particular to the kind.
    virtual void show_value(aspect what) = 0;
    /// Whether the widget stands on the screen; called whenever that may have changed.
    virtual void show_visibility();

    bool eventFilter(QObject* watched, QEvent* event) override;
    /// The control has the focus and a key is pressed: it is offered to the model, and what isn't
    /// swallowed takes the model's effect. True if the widget must not see it.
    virtual bool key_pressed(QKeyEvent& event);
    /// The focus goes from the widget to another one of the same window.
    virtual void focus_lost() {}
    /// Whether the widget takes the effect of a key itself, as a field with a cursor does.
    /// `typed`: a key with a character, Enter and Backspace left out.
    [[nodiscard]] virtual bool widget_takes(bool /*typed*/) const { return false; }

    /// Carries out what the user does; the model may be gone afterwards.
    void act(const std::function<void()>& action) {
        if (!retired_) by_.act(control_, action);
    }
    /// Carries out a click on a button; pressed by a key of its own, it gives the focus back.
    void act_click(const QAbstractButton& button, const std::function<void()>& click);
    /// The model may have decided otherwise than the widget: shows it again, if it is still there.
    void show_again(aspect what) {
        if (!retired_) changed(what);
    }
    [[nodiscard]] bool showing() const { return showing_; }
    [[nodiscard]] bool by_person() const { return by_.is_person; }

    /// Sets the widget without its signals coming back as the user's doing.
    class quiet {
     public:
        explicit quiet(binder& of) : of_(of), before_(of.showing_) { of_.showing_ = true; }
        ~quiet() { of_.showing_ = before_; }
        quiet(const quiet&) = delete;
        quiet& operator=(const quiet&) = delete;

     private:
        binder& of_;
        bool before_;
    };

 private:
    [[nodiscard]] bool wheel_changes_value() const;

    control& control_;
    QWidget* made_;
    user by_;
    bool showing_ = false;
    bool retired_ = false;
};

/// A kind of binder, with its model and the widget that shows it.
template <class Model, class Widget>
class binder_of : public binder {
 public:
    binder_of(Model& model, Widget* made, const user& by)
        : binder(model, made, by), model_(model), widget_(made) {}
    binder_of(Model& model, QWidget* parent, const user& by)
        : binder_of(model, new Widget(parent), by) {}

 protected:
    Model& model_;
    Widget* widget_;
};

/// Makes the binder of a control by its kind; its widget is a child of `parent`.
std::unique_ptr<binder> make_binder(control& to, QWidget* parent, const user& by);

// One file a family of kinds; each makes the binder of a control that is of its kinds.
std::unique_ptr<binder> bind_text_kind(control& to, QWidget* parent, const user& by);
std::unique_ptr<binder> bind_choice_kind(control& to, QWidget* parent, const user& by);
std::unique_ptr<binder> bind_list_kind(control& to, QWidget* parent, const user& by);
std::unique_ptr<binder> bind_value_kind(control& to, QWidget* parent, const user& by);
std::unique_ptr<binder> bind_grid(control& to, QWidget* parent, const user& by);

}  // namespace vantora::ui::desktop
