#include <limits>

#include "store/text/code_page.h"
#include "ui/script/interpreter.h"
#include "ui/script/state.h"

namespace vantora::ui::script {

using nlohmann::json;

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
    if (!moment) return refuse("this is no date and time");
    clock_.stop_at(*moment);
}

void interpreter::set_printer(const words& line) {
    int orientation = printer_.orientation();
    int copies = printer_.copies();
    for (std::size_t i = 1; i < line.size(); ++i) {
        const std::string_view part = line[i].text;
        const std::size_t mark = part.find('=');
        if (mark == std::string_view::npos) return refuse("a setting is name=number");
        const auto value = read_int(part.substr(mark + 1));
        const std::string_view name = part.substr(0, mark);
        if (name == "orientation" && (value == 1 || value == 2)) {
            orientation = *value;
        } else if (name == "copies" && value && *value > 0) {
            copies = *value;
        } else {
            return refuse("the printer has no such setting");
        }
    }
    printer_.settings(orientation, copies);
}

void interpreter::set_launch(const words& line) {
    if (line[1].text != "ok" && line[1].text != "fail") return refuse("it is ok or fail");
    launcher_.allow(line[1].text == "ok");
}

void interpreter::shot(const words& line) {
    if (!shoot) return refuse("this front end has no windows");
    if (!shoot(line[1].text)) refuse("the picture can't be saved");
}

void interpreter::get(const words& line) {
    if (const control* one = find_control(line[1])) answer_with(state_of(*one));
}

void interpreter::items(const words& line) {
    const control* one = find_control(line[1]);
    if (!one) return;
    json items = items_of(*one);
    if (items.is_null()) return refuse("the control is no list");
    answer_with(std::move(items));
}

void interpreter::cells_query(const words& line, json (*read)(const control&, int, int)) {
    const control* one = find_control(line[1]);
    if (!one) return;
    std::optional<int> first = 0;
    std::optional<int> last = std::numeric_limits<int>::max();
    if (line.size() > 2) first = last = read_int(line[2].text);
    if (line.size() > 3) last = read_int(line[3].text);
    if (!first || !last) return refuse("these are no rows");
    json cells = read(*one, *first, *last);
    if (cells.is_null()) return refuse("the control is no grid");
    answer_with(std::move(cells));
}

void interpreter::rows(const words& line) {
    cells_query(line, rows_of);
}

void interpreter::colors(const words& line) {
    cells_query(line, colours_of);
}

void interpreter::controls(const words& line) {
    const form* screen = desk_.find(from_utf8(line[1].text));
    if (!screen) return refuse("the screen is not loaded");
    answer_with(controls_of(*screen));
}

void interpreter::screens(const words&) {
    answer_with(screens_of(desk_));
}

void interpreter::prints(const words&) {
    json jobs = json::array();
    for (const print_job& job : printer_.take_jobs()) jobs.push_back(job_json(job));
    answer_with(std::move(jobs));
}

void interpreter::launched(const words&) {
    json started = json::array();
    for (const std::string& line_started : launcher_.take_started()) {
        started.push_back(to_utf8(line_started));
    }
    answer_with(std::move(started));
}

}  // namespace vantora::ui::script
