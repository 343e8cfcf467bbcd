#pragma once

#include "desktop/controls/binder.h"

namespace vantora::ui::desktop {

// Binders by families of kinds; `make_binder` chooses.

/// Text boxes, labels, buttons, pictures.
std::unique_ptr<binder> bind_text_kind(control& to, QWidget* parent, const user_action& act);
/// Check boxes and option buttons.
std::unique_ptr<binder> bind_choice_kind(control& to, QWidget* parent, const user_action& act);
/// Lists and drop-down lists.
std::unique_ptr<binder> bind_list_kind(control& to, QWidget* parent, const user_action& act);
/// Bars and date pickers.
std::unique_ptr<binder> bind_value_kind(control& to, QWidget* parent, const user_action& act);
/// Grids.
std::unique_ptr<binder> bind_grid(control& to, QWidget* parent, const user_action& act);

}  // namespace vantora::ui::desktop
