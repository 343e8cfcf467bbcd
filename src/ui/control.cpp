#include "ui/control.h"

#include "ui/desk.h"

namespace vantora::ui {

std::string control::address() const {
    return index_ ? name_ + "(" + std::to_string(*index_) + ")" : name_;
}

void control::set_visible(bool visible) {
    if (visible_ == visible) return;
    visible_ = visible;
    show_change(aspect::visibility);
    if (!visible && owner_) owner_->desk().focus_lost_by(*this);
}

void control::set_enabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    show_change(aspect::enabling);
    if (!enabled && owner_) owner_->desk().focus_lost_by(*this);
}

bool control::focusable() const {
    return kind_ != control_kind::label && kind_ != control_kind::picture &&
           kind_ != control_kind::progress_bar;
}

bool control::can_take_focus() const {
    return focusable() && visible_ && enabled_ && owner_ && owner_->visible();
}

bool control::has_focus() const {
    return owner_ && owner_->desk().focus() == this;
}

bool control::set_focus() {
    return owner_ && owner_->desk().give_focus(*this);
}

bool control::offer_key(int code, std::optional<char> character) {
    key_event down{code};
    if (on_key_down) on_key_down(down);
    if (down.swallowed()) return false;
    if (!character) return true;
    key_event press{static_cast<unsigned char>(*character)};
    if (on_key_press) on_key_press(press);
    return !press.swallowed();
}

void control::press_key(int code, std::optional<char> character) {
    if (offer_key(code, character)) take_effect(code, character);
}

void control::take_effect(int, std::optional<char>) {}

}  // namespace vantora::ui
