#include "ui/choice_controls.h"

#include <algorithm>

namespace vantora::ui {

void check_box::set_on(bool on) {
    if (on_ == on) return;
    on_ = on;
    show_change(aspect::value);
    fire(on_click);
}

void check_box::toggle() {
    set_focus();
    set_on(!on_);
}

void check_box::take_effect(int code, std::optional<char>) {
    if (code == key::blank) toggle();
}

void option_button::set_on(bool on) {
    if (on_ == on) return;
    if (!on) return switch_off();
    on_ = true;
    if (group_) {
        for (option_button* other : group_->options()) {
            if (other != this) other->switch_off();
        }
    }
    show_change(aspect::value);
    fire(on_click);
}

void option_button::switch_off() {
    if (!on_) return;
    on_ = false;
    show_change(aspect::value);
}

void option_button::choose() {
    set_focus();
    set_on(true);
}

void option_button::take_effect(int code, std::optional<char> character) {
    if (code == key::blank) return choose();
    if (character || !group_ || (code != key::up && code != key::down)) return;
    const auto& options = group_->options();
    auto here = std::find(options.begin(), options.end(), this);
    const std::ptrdiff_t step = code == key::down ? 1 : -1;
    const auto next = (here - options.begin()) + step;
    if (next >= 0 && next < std::ssize(options)) options[static_cast<std::size_t>(next)]->choose();
}

void option_group::join(option_button& option) {
    options_.push_back(&option);
    option.group_ = this;
}

}  // namespace vantora::ui
