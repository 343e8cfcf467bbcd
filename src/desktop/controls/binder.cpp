#include "desktop/controls/binder.h"

#include "desktop/controls/kinds.h"

namespace vantora::ui::desktop {

std::unique_ptr<binder> make_binder(control& to, QWidget* parent, const user_action& act) {
    switch (to.kind()) {
        case control_kind::text_box:
        case control_kind::label:
        case control_kind::button:
        case control_kind::picture:
            return bind_text_kind(to, parent, act);
        case control_kind::check_box:
        case control_kind::option_button:
            return bind_choice_kind(to, parent, act);
        case control_kind::list_box:
        case control_kind::drop_down:
            return bind_list_kind(to, parent, act);
        case control_kind::scroll_bar:
        case control_kind::progress_bar:
        case control_kind::date_picker:
            return bind_value_kind(to, parent, act);
        case control_kind::grid:
            return bind_grid(to, parent, act);
    }
    return nullptr;
}

}  // namespace vantora::ui::desktop
