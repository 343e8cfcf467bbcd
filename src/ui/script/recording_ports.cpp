#include "ui/script/recording_ports.h"

#include <array>
#include <utility>

namespace vantora::ui::script {

namespace {

// The widths of the characters of the code page.
constexpr std::array<short, 256> upright_widths = {
    0,    0,   0,   0,   0,   0,   0,   0,    0,   0,    0,    0,    0,   0,   0,    0,   0,   0,
    0,    0,   0,   0,   0,   0,   0,   0,    0,   0,    0,    0,    0,   0,   278,  278, 355, 556,
    556,  889, 667, 191, 333, 333, 389, 584,  278, 333,  278,  278,  556, 556, 556,  556, 556, 556,
    556,  556, 556, 556, 278, 278, 584, 584,  584, 556,  1015, 667,  667, 722, 722,  667, 611, 778,
    722,  278, 500, 667, 556, 833, 722, 778,  667, 778,  722,  667,  611, 722, 667,  944, 667, 667,
    611,  278, 278, 278, 469, 556, 333, 556,  556, 500,  556,  556,  278, 556, 556,  222, 222, 500,
    222,  833, 556, 556, 556, 556, 333, 500,  278, 556,  500,  722,  500, 500, 500,  334, 260, 334,
    584,  0,   556, 0,   222, 556, 333, 1000, 556, 556,  333,  1000, 667, 333, 1000, 0,   611, 0,
    0,    222, 222, 333, 333, 350, 556, 1000, 333, 1000, 500,  333,  944, 0,   500,  667, 278, 333,
    556,  556, 556, 556, 260, 556, 333, 737,  370, 556,  584,  333,  737, 333, 400,  584, 333, 333,
    333,  556, 537, 278, 333, 333, 365, 556,  834, 834,  834,  611,  667, 667, 667,  667, 667, 667,
    1000, 722, 667, 667, 667, 667, 278, 278,  278, 278,  722,  722,  778, 778, 778,  778, 778, 584,
    778,  722, 722, 722, 722, 667, 667, 611,  556, 556,  556,  556,  556, 556, 889,  500, 556, 556,
    556,  556, 278, 278, 278, 278, 556, 556,  556, 556,  556,  556,  556, 584, 611,  556, 556, 556,
    556,  500, 556, 500,
};
constexpr std::array<short, 256> bold_widths = {
    0,    0,   0,   0,   0,   0,   0,   0,    0,   0,    0,   0,    0,   0,   0,    0,   0,   0,
    0,    0,   0,   0,   0,   0,   0,   0,    0,   0,    0,   0,    0,   0,   278,  333, 474, 556,
    556,  889, 722, 238, 333, 333, 389, 584,  278, 333,  278, 278,  556, 556, 556,  556, 556, 556,
    556,  556, 556, 556, 333, 333, 584, 584,  584, 611,  975, 722,  722, 722, 722,  667, 611, 778,
    722,  278, 556, 722, 611, 833, 722, 778,  667, 778,  722, 667,  611, 722, 667,  944, 667, 667,
    611,  333, 278, 333, 584, 556, 333, 556,  611, 556,  611, 556,  333, 611, 611,  278, 278, 556,
    278,  889, 611, 611, 611, 611, 389, 556,  333, 611,  556, 778,  556, 556, 500,  389, 280, 389,
    584,  0,   556, 0,   278, 556, 500, 1000, 556, 556,  333, 1000, 667, 333, 1000, 0,   611, 0,
    0,    278, 278, 500, 500, 350, 556, 1000, 333, 1000, 556, 333,  944, 0,   500,  667, 278, 333,
    556,  556, 556, 556, 280, 556, 333, 737,  370, 556,  584, 333,  737, 333, 400,  584, 333, 333,
    333,  611, 556, 278, 333, 333, 365, 556,  834, 834,  834, 611,  722, 722, 722,  722, 722, 722,
    1000, 722, 667, 667, 667, 667, 278, 278,  278, 278,  722, 722,  778, 778, 778,  778, 778, 584,
    778,  722, 722, 722, 722, 667, 667, 611,  556, 556,  556, 556,  556, 556, 889,  556, 556, 556,
    556,  556, 278, 278, 278, 278, 611, 611,  611, 611,  611, 611,  611, 584, 611,  611, 611, 611,
    611,  556, 611, 556,
};

/// Width of a text in a Helvetica-like face, in thousandths of the font size.
int face_width(std::string_view text, bool bold) {
    const auto& widths = bold ? bold_widths : upright_widths;
    int width = 0;
    for (const char character : text) width += widths[static_cast<unsigned char>(character)];
    return width;
}

}  // namespace

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
