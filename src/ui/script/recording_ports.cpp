#include "ui/script/recording_ports.h"

#include <utility>

#include "ui/script/face_widths.h"

namespace vantora::ui::script {

void recording_printer::set_up(std::optional<int> orientation, std::optional<int> copies) {
    if (orientation) orientation_ = chosen_orientation_ = *orientation;
    if (copies) copies_ = *copies;
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

void recording_printer::new_page() {
    begin_page();
    page_open_ = false;
}

void recording_printer::end_job() {
    page_open_ = false;
    if (!job_.pages.empty()) jobs_.push_back(std::exchange(job_, {}));
}

}  // namespace vantora::ui::script
