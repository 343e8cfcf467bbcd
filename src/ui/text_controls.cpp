#include "ui/text_controls.h"

namespace vantora::ui {

bool holds_pasted_lines(std::string_view text) {
    constexpr std::string_view around = " \t\r\n\xA0";
    const std::size_t first = text.find_first_not_of(around);
    if (first == std::string_view::npos) return false;
    const std::size_t end = text.find_last_not_of(around) + 1;
    return text.substr(first, end - first).find_first_of("\n\r\t") != std::string_view::npos;
}

void text_control::set_text(std::string_view text) {
    if (text_ == text) return;
    text_ = text;
    show_change(aspect::text);
    text_changed();
}

void text_box::take_effect(int code, std::optional<char> character) {
    if (code == key::backspace) {
        if (!text().empty()) set_text(std::string_view(text()).substr(0, text().size() - 1));
        return;
    }
    if (!character || static_cast<unsigned char>(*character) < key::blank) return;
    set_text(text() + *character);
}

void button::click() {
    set_focus();
    fire(on_click);
}

void button::take_effect(int code, std::optional<char>) {
    if (code == key::enter || code == key::blank) click();
}

}  // namespace vantora::ui
