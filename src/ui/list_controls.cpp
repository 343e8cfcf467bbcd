#include "ui/list_controls.h"

#include <algorithm>
#include <iterator>

#include "text/code_page.h"

namespace vantora::ui {

namespace {

bool stands_before(const std::string& left, const std::string& right) {
    return compare_alphabetically(left, right) < 0;
}

}  // namespace

std::string_view list_control::text() const {
    return chosen_ < 0 ? std::string_view{} : std::string_view(item(chosen_));
}

void list_control::add_all(std::vector<std::string> items) {
    items_.insert(items_.end(), std::make_move_iterator(items.begin()),
                  std::make_move_iterator(items.end()));
    if (kind() == control_kind::list_box) {
        std::stable_sort(items_.begin(), items_.end(), stands_before);
    }
    show_change(aspect::items);
}

void list_control::clear() {
    items_.clear();
    chosen_ = -1;
    show_change(aspect::items);
}

bool list_control::choose(int position) {
    if (position < -1 || position >= count()) return false;
    if (position == chosen_) return true;
    chosen_ = position;
    show_change(aspect::value);
    if (chosen_ >= 0) fire(on_click);
    return true;
}

bool list_control::pick(int position) {
    if (position < 0 || position >= count()) return false;
    set_focus();
    if (position >= count()) return false;  // the coming of the focus emptied the list
    chosen_ = position;
    show_change(aspect::value);
    fire(on_click);
    return true;
}

void list_control::take_effect(int code, std::optional<char> character) {
    if (character) return;
    if (code == key::down) pick(chosen_ + 1);
    if (code == key::up) pick(chosen_ - 1);
}

}  // namespace vantora::ui
