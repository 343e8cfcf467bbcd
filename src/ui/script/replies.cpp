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

/// The control as what it may be; null if it is something else.
template <class Control>
const Control* as(const control& one) {
    return dynamic_cast<const Control*>(&one);
}

}  // namespace

json state_of(const control& one) {
    json state = {{"kind", name_in(kind_names, one.kind())},
                  {"visible", one.visible()},
                  {"enabled", one.enabled()}};
    if (const auto* text = as<text_control>(one)) state["text"] = to_utf8(text->text());
    if (const auto* box = as<check_box>(one)) state["on"] = box->on();
    if (const auto* option = as<option_button>(one)) state["on"] = option->on();
    if (const auto* bar = as<bar_control>(one)) {
        state["min"] = bar->minimum();
        state["max"] = bar->maximum();
        state["value"] = bar->value();
    }
    if (const auto* day = as<date_picker>(one)) state["text"] = day->text();
    if (const auto* list = as<list_control>(one)) {
        state["index"] = list->chosen();
        state["count"] = list->count();
        state["text"] = to_utf8(list->text());
    }
    if (const auto* table = as<grid>(one)) {
        state["rows"] = table->rows();
        state["cols"] = table->cols();
        state["row"] = table->row();
        state["col"] = table->col();
        state["toprow"] = table->top_row();
    }
    return state;
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
