#include "ui/script/recording_ports.h"

#include <utility>

#include "ui/script/face_widths.h"

namespace vantora::ui::script {

void recording_printer::set_up(std::optional<int> orientation, std::optional<int> copies) {
    if (orientation) orientation_ = chosen_orientation_ = *orientation;
    if (copies) copies_ = *copies;
}

bool recording_printer::choose_settings() {
    orientation_ = chosen_orientation_;
    return true;
}

double recording_printer::text_width(std::string_view text, const font& in) const {
    constexpr double millimetres_a_point = 25.4 / 72;
    return face_width(text, in.bold) / 1000.0 * in.size * millimetres_a_point;
}

void recording_printer::begin_page() {
    if (page_open_) return;
    if (job_.pages.empty()) {
        job_.orientation = orientation_;
        job_.copies = copies_;
    }
    job_.pages.emplace_back();
    page_open_ = true;
}

void recording_printer::put(print_operation operation) {
    begin_page();
    job_.pages.back().push_back(std::move(operation));
}

void recording_printer::text(double x, double y, std::string_view text, const font& in,
                             colour ink) {
    put(printed_text{x, y, std::string(text), in, ink});
}

void recording_printer::line(double x1, double y1, double x2, double y2, colour ink) {
    put(printed_line{x1, y1, x2, y2, ink});
}

void recording_printer::box(double x1, double y1, double x2, double y2, colour ink, bool filled) {
    put(printed_box{x1, y1, x2, y2, ink, filled});
}

void recording_printer::picture(double x, double y, double side,
                                const std::shared_ptr<const bitmap>& image) {
    put(printed_picture{x, y, image->width * side, image->height * side});
}

void recording_printer::new_page() {
    begin_page();
    page_open_ = false;
}

void recording_printer::end_job() {
    page_open_ = false;
    if (!job_.pages.empty()) jobs_.push_back(std::exchange(job_, {}));
}

std::vector<print_job> recording_printer::take_jobs() {
    return std::exchange(jobs_, {});
}

bool recording_launcher::start(const std::string& command) {
    if (!can_start_) return false;
    started_.push_back(command);
    return true;
}

std::vector<std::string> recording_launcher::take_started() {
    return std::exchange(started_, {});
}

}  // namespace vantora::ui::script
