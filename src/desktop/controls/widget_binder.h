#pragma once

#include <QObject>

#include "desktop/controls/binder.h"

class QAbstractButton;
class QKeyEvent;

namespace vantora::ui::desktop {

/// Presses a button as its keys do: where the screen doesn't move the focus, it stays.
void click_by_key(QAbstractButton& button);

/// What the binders of all kinds share: visibility, enabling, focus and keys.
class widget_binder : public QObject, public binder {
 public:
    QWidget& widget() final { return *widget_; }
    void retire() final { retired_ = true; }
    void changed(aspect what) override;

 protected:
    widget_binder(control& model, QWidget* made, user_action act);

    /// The widget as what the kind made it.
    template <class Widget>
    [[nodiscard]] Widget* as() {
        return static_cast<Widget*>(widget_);
    }

    /// Shows the model's whole state; to be called by the constructors of the kinds.
    void show_all();
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
        if (!retired_) act_(model_, action);
    }
    /// Carries out a click on a button; pressed by a key of its own, it gives the focus back.
    void act_click(const QAbstractButton& button, const std::function<void()>& click);
    /// The model may have decided otherwise than the widget: shows it again, if it is still there.
    void show_again(aspect what) {
        if (!retired_) changed(what);
    }
    [[nodiscard]] bool showing() const { return showing_; }

    /// Sets the widget without its signals coming back as the user's doing.
    class quiet {
     public:
        explicit quiet(widget_binder& of) : of_(of), before_(of.showing_) { of_.showing_ = true; }
        ~quiet() { of_.showing_ = before_; }
        quiet(const quiet&) = delete;
        quiet& operator=(const quiet&) = delete;

     private:
        widget_binder& of_;
        bool before_;
    };

 private:
    [[nodiscard]] bool wheel_changes_value() const;

    control& model_;
    QWidget* widget_;
    user_action act_;
    bool showing_ = false;
    bool retired_ = false;
};

}  // namespace vantora::ui::desktop
