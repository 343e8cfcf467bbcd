#include "ui/script/replies.h"

#include <algorithm>

#include "text/code_page.h"
#include "ui/controls.h"

namespace vantora::ui::script {

namespace {

// Each in the order of its enumeration.
constexpr const char* kind_names[] = {"textbox",   "label",       "button",     "picture",
                                      "checkbox",  "option",      "list",       "dropdown",
                                      "scrollbar", "progressbar", "datepicker", "grid"};
constexpr const char* icon_names[] = {"stop", "warning", "question", "information"};
constexpr const char* buttons_names[] = {"ok", "yesno", "choice"};

template <std::size_t N>
const char* name_in(const char* const (&names)[N], auto one) {
    return names[static_cast<std::size_t>(one)];
}

json answer_json(answer given) {
    switch (given) {
        case answer::ok:
            return "ok";
        case answer::yes:
            return "yes";
        case answer::no:
            return "no";
        default:
            return static_cast<int>(given);  // a choice
    }
}

json box_json(const message_box& box) {
    json whole = {{"text", to_utf8(box.text)},
                  {"title", to_utf8(box.title)},
                  {"icon", name_in(icon_names, box.icon)},
                  {"buttons", name_in(buttons_names, box.buttons)}};
    for (const std::string& one : box.choices) whole["choices"].push_back(to_utf8(one));
    return whole;
}

template <class Bar>
void describe_bar(const Bar& bar, json& state) {
    state["min"] = bar.minimum();
    state["max"] = bar.maximum();
    state["value"] = bar.value();
}

void describe_list(const list_control& list, json& state) {
    state["index"] = list.chosen();
    state["count"] = list.count();
    state["text"] = to_utf8(list.text());
}

void describe_grid(const grid& table, json& state) {
    state["rows"] = table.rows();
    state["cols"] = table.cols();
    state["row"] = table.row();
    state["col"] = table.col();
    state["toprow"] = table.top_row();
}

void describe_text(const control& one, json& state) {
    state["text"] = to_utf8(static_cast<const text_control&>(one).text());
}

}  // namespace

json state_of(const control& one) {
    json state = {{"kind", name_in(kind_names, one.kind())},
                  {"visible", one.visible()},
                  {"enabled", one.enabled()}};
    switch (one.kind()) {
        case control_kind::text_box:
        case control_kind::label:
        case control_kind::button:
            describe_text(one, state);
            break;
        case control_kind::check_box:
            describe_text(one, state);
            state["on"] = static_cast<const check_box&>(one).on();
            break;
        case control_kind::option_button:
            describe_text(one, state);
            state["on"] = static_cast<const option_button&>(one).on();
            break;
        case control_kind::list_box:
        case control_kind::drop_down:
            describe_list(static_cast<const list_control&>(one), state);
            break;
        case control_kind::scroll_bar:
            describe_bar(static_cast<const scroll_bar&>(one), state);
            break;
        case control_kind::progress_bar:
            describe_bar(static_cast<const progress_bar&>(one), state);
            break;
        case control_kind::date_picker:
            state["text"] = static_cast<const date_picker&>(one).text();
            break;
        case control_kind::grid:
            describe_grid(static_cast<const grid&>(one), state);
            break;
        case control_kind::picture:
            break;
    }
    return state;
}

bool is_list(const control& one) {
    return one.kind() == control_kind::list_box || one.kind() == control_kind::drop_down;
}

json items_of(const list_control& list) {
    json items = json::array();
    for (const auto& item : list.items()) items.push_back(to_utf8(item));
    return items;
}

json rows_of(const grid& table, const row_range& range) {
    json rows = json::array();
    const int last = std::min(range.last, table.rows() - 1);
    for (int row = std::max(range.first, 0); row <= last; ++row) {
        json cells = json::array();
        for (int col = 0; col < table.cols(); ++col) cells.push_back(to_utf8(table.text(row, col)));
        rows.push_back(std::move(cells));
    }
    return rows;
}

json colours_of(const grid& table, const row_range& range) {
    json colours = json::array();
    const int last = std::min(range.last, table.rows() - 1);
    for (int row = std::max(range.first, 0); row <= last; ++row) {
        colours.push_back(table.back_colour(row, 0));
    }
    return colours;
}

json controls_of(const form& screen) {
    json controls = json::object();
    for (const control* one : screen.controls()) controls[one->address()] = state_of(*one);
    return controls;
}

json screens_of(const desk& desk) {
    json screens = json::array();
    for (const form* one : desk.forms()) {
        screens.push_back(
            {{"name", one->name()}, {"title", to_utf8(one->title())}, {"visible", one->visible()}});
    }
    return screens;
}

std::string compose(command_reply reply, const desk& desk,
                    const std::vector<answered_box>& answered) {
    const auto& ended = desk.ended();
    json whole = {{"ok", reply.error.empty()}};
    if (!reply.error.empty()) whole["error"] = reply.error;
    whole["screen"] = desk.active() && !ended ? desk.active()->name() : "";
    whole["focus"] = desk.focus() && !ended ? desk.focus()->address() : "";
    if (const message_box* box = desk.open_box()) whole["box"] = box_json(*box);
    for (const answered_box& one : answered) {
        json box = box_json(one.box);
        box["answer"] = answer_json(one.given);
        whole["boxes"].push_back(std::move(box));
    }
    if (const form* modal = desk.modal()) whole["modal"] = modal->name();
    if (desk.waiting()) whole["waiting"] = true;
    if (!reply.value.is_null()) whole["value"] = std::move(reply.value);
    if (ended) whole["ended"] = ended->fatal ? "fatal" : "exit";
    if (ended && ended->fatal) whole["fatal"] = to_utf8(ended->message);
    return whole.dump();
}

}  // namespace vantora::ui::script
