#include "ui/list_controls.h"

#include <algorithm>
#include <iterator>

#include "store/text/code_page.h"

namespace vantora::ui {

namespace {

bool stands_before(const std::string& left, const std::string& right) {
    return compare_alphabetically(left, right) < 0;
}

}  // namespace

std::string_view list_control::text() const {
    return chosen_ < 0 ? std::string_view{} : std::string_view(item(chosen_));
}

void list_control::add(std::string item) {
    if (!sorted_) {
        items_.push_back(std::move(item));
    } else {
        const auto place = std::upper_bound(items_.begin(), items_.end(), item, stands_before);
        if (chosen_ >= place - items_.begin()) ++chosen_;
        items_.insert(place, std::move(item));
    }
    show_change(aspect::items);
}

void list_control::add_all(std::vector<std::string> items) {
    if (sorted_ && chosen_ >= 0) {
        for (auto& item : items) add(std::move(item));
        return;
    }
    items_.insert(items_.end(), std::make_move_iterator(items.begin()),
                  std::make_move_iterator(items.end()));
    if (sorted_) std::stable_sort(items_.begin(), items_.end(), stands_before);
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
