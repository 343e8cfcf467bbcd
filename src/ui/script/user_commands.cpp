#include <optional>

#include "text/code_page.h"
#include "text/dates.h"
#include "ui/controls.h"
#include "ui/script/interpreter.h"

namespace vantora::ui::script {

namespace {

struct named_key {
    std::string_view name;
    int code;
    std::optional<char> character;
};

constexpr named_key named_keys[] = {
    {"Enter", key::enter, static_cast<char>(key::enter)},
    {"F1", key::f1, {}},
    {"Backspace", key::backspace, static_cast<char>(key::backspace)},
    {"Delete", key::del, {}},
    {"Tab", key::tab, {}},
    {"Up", key::up, {}},
    {"Down", key::down, {}},
};

/// The key that types a character; a line feed in a text stands for Enter.
named_key key_of(char character) {
    if (character == '\n') character = static_cast<char>(key::enter);
    return {{}, key::of(character), character};
}

std::optional<named_key> read_key(const std::string& name) {
    for (const named_key& known : named_keys) {
        if (known.name == name) return known;
    }
    const std::string character = from_utf8(name);
    if (character.size() != 1) return {};
    return key_of(character[0]);
}

/// The key goes to whatever has the focus.
void press(desk& desk, const named_key& pressed) {
    control* here = desk.focus();
    if (!here) return;
    if (pressed.code != key::tab) return here->press_key(pressed.code, pressed.character);
    if (here->offer_key(key::tab, {})) desk.tab(false);
}

}  // namespace

void interpreter::click(const words& line) {
    control& one = touchable(line[1]);
    switch (one.kind()) {
        case control_kind::button:
            return act([&] { static_cast<button&>(one).click(); });
        case control_kind::label:
            return act([&] { static_cast<label&>(one).click(); });
        case control_kind::picture:
            return act([&] { static_cast<picture&>(one).click(); });
        case control_kind::check_box:
            return act([&] { static_cast<check_box&>(one).toggle(); });
        case control_kind::option_button:
            return act([&] { static_cast<option_button&>(one).choose(); });
        default:
            refuse("the control is none to click");
    }
}

void interpreter::cell(const words& line) {
    constexpr const char* otherwise = "this is no cell of a grid";
    auto& table = as<grid>(touchable(line[1]), otherwise);
    const auto row = read_int(line[2].text);
    const auto col = read_int(line[3].text);
    if (!row || !col) refuse(otherwise);
    if (*row < 0 || *row >= table.rows() || *col < 0 || *col >= table.cols()) {
        refuse("the grid has no such cell");
    }
    act([&] { table.click_cell(*row, *col); });
}

void interpreter::key(const words& line) {
    const auto pressed = read_key(line[2].text);
    if (!pressed) refuse("there is no such key");
    control& one = focusable(line[1]);
    act([&] {
        one.set_focus();
        press(desk_, *pressed);
    });
}

void interpreter::type(const words& line) {
    control& one = focusable(line[1]);
    act([&] {
        one.set_focus();
        for (const char character : from_utf8(line[2].text)) press(desk_, key_of(character));
    });
}

void interpreter::set(const words& line) {
    auto& field = as<text_box>(touchable(line[1]), "the control is no text box");
    act([&] {
        field.set_focus();
        // A cell that hands the focus on takes no text.
        if (field.has_focus()) field.set_text(from_utf8(line[2].text));
    });
}

void interpreter::paste(const words& line) {
    auto& field = as<text_box>(touchable(line[1]), "the control is no text box");
    const std::string text = from_utf8(line[2].text);
    if (!field.on_paste_lines || !holds_pasted_lines(text)) return set(line);
    act([&] {
        field.set_focus();
        if (field.has_focus()) field.on_paste_lines({text}, {});
    });
}

void interpreter::pick(const words& line) {
    auto& list = as<list_control>(touchable(line[1]), "the control is no list");
    const auto position = read_int(line[2].text);
    if (!position || *position < 0 || *position >= list.count()) {
        refuse("the list has no such entry");
    }
    act([&] { list.pick(*position); });
}

void interpreter::scroll(const words& line) {
    auto& bar = as<scroll_bar>(touchable(line[1]), "the control is no scroll bar");
    const auto value = read_int(line[2].text);
    if (!value || !bar.reaches(*value)) refuse("the bar doesn't reach there");
    act([&] { bar.drag(*value); });
}

void interpreter::date(const words& line) {
    auto& picker = as<date_picker>(touchable(line[1]), "the control is no date picker");
    const auto day = read_date(line[2].text);
    if (!day) refuse("this is no date");
    act([&] { picker.choose(*day); });
}

void interpreter::focus(const words& line) {
    control& one = focusable(line[1]);
    act([&] { one.set_focus(); });
}

void interpreter::activate(const words& line) {
    form& screen = reachable(line[1]);
    if (desk_.modal()) refuse("a modal screen is open");
    act([&] { screen.show(); });
}

void interpreter::close(const words& line) {
    form& screen = reachable(line[1]);
    act([&] { desk_.close(screen); });
}

void interpreter::answer(const words& line) {
    std::optional<ui::answer> given;
    if (line[1].text == "yes") given = ui::answer::yes;
    if (line[1].text == "no") given = ui::answer::no;
    if (line[1].text == "ok") given = ui::answer::ok;
    if (const auto number = read_int(line[1].text); number && *number >= 1 && *number <= 4) {
        given = static_cast<ui::answer>(*number);
    }
    if (!given) refuse("this is no answer");
    if (!desk_.open_box()) return answers_.keep(*given);
    if (!desk_.answer_box(*given)) refuse("the message box has no such button");
}

void interpreter::open(const words& line) {
    form* here = desk_.active();
    if (!here) refuse("no screen is active");
    if (const auto why = desk_.obstacle(*here)) refuse(*why);
    for (const further_window& one : here->further_windows()) {
        if (one.name != line[1].text) continue;
        if (!one.can_open()) refuse("there is nothing to open");
        return act(one.open);
    }
    refuse("the screen opens no such window");
}

void interpreter::quit(const words&) {
    quitting_ = true;
    desk_.stop();
}

}  // namespace vantora::ui::script
