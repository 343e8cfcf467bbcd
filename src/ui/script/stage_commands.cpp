#include "text/code_page.h"
#include "ui/script/interpreter.h"
#include "ui/script/replies.h"

namespace vantora::ui::script {

namespace {

json operation_json(const printed_text& text) {
    return {{"op", "text"},
            {"x", text.x},
            {"y", text.y},
            {"text", to_utf8(text.text)},
            {"font", to_utf8(text.font.name)},
            {"size", text.font.size},
            {"bold", text.font.bold},
            {"italic", text.font.italic},
            {"color", text.ink}};
}

template <class Shape>
json corners(const char* operation, const Shape& shape) {
    return {{"op", operation}, {"x1", shape.x1}, {"y1", shape.y1},
            {"x2", shape.x2},  {"y2", shape.y2}, {"color", shape.ink}};
}

json operation_json(const printed_line& line) {
    return corners("line", line);
}

json operation_json(const printed_box& box) {
    json shape = corners("box", box);
    shape["filled"] = box.filled;
    return shape;
}

json operation_json(const printed_picture& picture) {
    return {{"op", "picture"},
            {"x", picture.x},
            {"y", picture.y},
            {"width", picture.width},
            {"height", picture.height}};
}

json job_json(const print_job& job) {
    json pages = json::array();
    for (const auto& operations : job.pages) {
        json page = json::array();
        for (const auto& operation : operations) {
            page.push_back(
                std::visit([](const auto& one) { return operation_json(one); }, operation));
        }
        pages.push_back(std::move(page));
    }
    return {{"orientation", job.orientation}, {"copies", job.copies}, {"pages", std::move(pages)}};
}

}  // namespace

void interpreter::stop_clock(const words& line) {
    const auto moment = read_clock(line[1].text);
    if (!moment) refuse("this is no date and time");
    clock_.stop_at(*moment);
}

void interpreter::set_printer(const words& line) {
    std::optional<int> orientation;
    std::optional<int> copies;
    for (std::size_t i = 1; i < line.size(); ++i) {
        const std::string_view part = line[i].text;
        const std::size_t mark = part.find('=');
        if (mark == std::string_view::npos) refuse("a setting is name=number");
        const auto value = read_int(part.substr(mark + 1));
        const std::string_view name = part.substr(0, mark);
        if (name == "orientation" && (value == printer::upright || value == printer::landscape)) {
            orientation = value;
        } else if (name == "copies" && value && *value > 0) {
            copies = value;
        } else {
            refuse("the printer has no such setting");
        }
    }
    printer_.set_up(orientation, copies);
}

void interpreter::set_launch(const words& line) {
    if (line[1].text != "ok" && line[1].text != "fail") refuse("it is ok or fail");
    launcher_.allow(line[1].text == "ok");
}

void interpreter::set_guards(const words& line) {
    if (line[1].text != "on" && line[1].text != "off") refuse("it is on or off");
    desk_.guards().switch_to(line[1].text == "on");
}

void interpreter::shot(const words& line) {
    if (!shoot) refuse("this front end has no windows");
    if (!shoot(line[1].text)) refuse("the picture can't be saved");
}

void interpreter::get(const words& line) {
    reply_->value = state_of(find_control(line[1]));
}

void interpreter::items(const words& line) {
    reply_->value =
        items_of(as<const list_control>(find_control(line[1]), "the control is no list"));
}

row_range interpreter::read_range(const words& line) {
    if (line.size() == 2) return {};
    const auto first = read_int(line[2].text);
    const auto last = read_int(line.back().text);
    if (!first || !last) refuse("these are no rows");
    return {*first, *last};
}

void interpreter::rows(const words& line) {
    const auto& table = as<const grid>(find_control(line[1]), "the control is no grid");
    reply_->value = rows_of(table, read_range(line));
}

void interpreter::colors(const words& line) {
    const auto& table = as<const grid>(find_control(line[1]), "the control is no grid");
    reply_->value = colours_of(table, read_range(line));
}

void interpreter::controls(const words& line) {
    reply_->value = controls_of(loaded(line[1].text));
}

void interpreter::screens(const words&) {
    reply_->value = screens_of(desk_);
}

void interpreter::prints(const words&) {
    json jobs = json::array();
    for (const print_job& job : printer_.take_jobs()) jobs.push_back(job_json(job));
    reply_->value = std::move(jobs);
}

void interpreter::launched(const words&) {
    json started = json::array();
    for (const std::string& line_started : launcher_.take_started()) {
        started.push_back(to_utf8(line_started));
    }
    reply_->value = std::move(started);
}

}  // namespace vantora::ui::script
