#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "ui/control.h"
#include "ui/paper/toolkit_values.h"

namespace vantora::ui::desktop {

/// Carries out what the user does; set by the front end. Refused while the user may not touch the
/// control.
using user_action = std::function<void(control& on, const std::function<void()>& action)>;

/// The widget of one control and the traffic between the two: what the user does goes to the
/// model, what the model says goes to the widget.
class binder : public control_view {
 public:
    [[nodiscard]] virtual QWidget& widget() = 0;
    /// The model goes; from here on the binder leaves it alone.
    virtual void retire() = 0;
};

/// Makes the binder of a control by its kind; its widget is a child of `parent`.
std::unique_ptr<binder> make_binder(control& to, QWidget* parent, const user_action& act);

}  // namespace vantora::ui::desktop
