#include "ui/value_controls.h"

#include <algorithm>

namespace vantora::ui {

bool scroll_bar::reaches(int value) const {
    return value >= std::min(minimum_, maximum_) && value <= std::max(minimum_, maximum_);
}

void scroll_bar::set_limits(int minimum, int maximum) {
    minimum_ = minimum;
    maximum_ = maximum;
    show_change(aspect::limits);
    if (!reaches(value_)) {
        set_value(std::clamp(value_, std::min(minimum, maximum), std::max(minimum, maximum)));
    }
}

bool scroll_bar::set_value(int value) {
    if (!reaches(value)) return false;
    if (value_ == value) return true;
    value_ = value;
    show_change(aspect::value);
    fire(on_change);
    return true;
}

bool scroll_bar::drag(int value) {
    if (!reaches(value)) return false;
    set_focus();
    return set_value(value);
}

void scroll_bar::take_effect(int code, std::optional<char> character) {
    if (character) return;
    const int forward = maximum_ >= minimum_ ? 1 : -1;
    if (code == key::down) set_value(value_ + forward);
    if (code == key::up) set_value(value_ - forward);
}

bool progress_bar::set_range(int minimum, int maximum) {
    if (maximum <= minimum) return false;
    minimum_ = minimum;
    maximum_ = maximum;
    value_ = minimum;
    show_change(aspect::limits);
    return true;
}

bool progress_bar::set_value(int value) {
    if (value < minimum_ || value > maximum_) return false;
    if (value_ == value) return true;
    value_ = value;
    show_change(aspect::value);
    return true;
}

bool date_picker::set_value(const date& value) {
    if (!exists(value)) return false;
    if (value_ == value) return true;
    value_ = value;
    show_change(aspect::value);
    fire(on_change);
    return true;
}

bool date_picker::choose(const date& value) {
    if (!exists(value)) return false;
    set_focus();
    set_value(value);
    confirm();
    fire(on_close_up);
    return true;
}

void date_picker::close_up() {
    set_focus();
    fire(on_close_up);
}

}  // namespace vantora::ui
