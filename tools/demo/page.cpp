#include "demo/page.h"

#include <array>

#include "demo/codes.h"
#include "text/code_page.h"

namespace vantora::demo {

namespace {

constexpr int layout_rows = 100;
constexpr int background_switch_row = 99;
constexpr int strip = 4;  ///< height of a panel's caption
constexpr int logo_left = 9;
constexpr int logo_top = 10;
constexpr int page_left = 10;
constexpr int page_right = 200;
constexpr int header_rule = 31;
constexpr int footer_rule = 281;

/// Where every page shows the firm, the customer and the destination.
constexpr field letterhead[] = {
    {1, 30, 9, name_font},
    {7, 30, 14, slogan_font},
    {2, 30, 18, small_font},
    {4, 30, 22, small_font},
    {5, 30, 26, small_font},
    // Customer and destination
    {18, 12, 39, customer_font},
    {19, 12, 44, plain_font},
    {20, 12, 48, plain_font},
    {21, 12, 52, plain_font},
    {22, 24, 52, plain_font},
    {25, 109, 39, customer_font},
    {26, 109, 44, plain_font},
    {27, 109, 48, plain_font},
    {28, 109, 52, plain_font},
    {29, 121, 52, plain_font},
    {23, 12, 65, plain_font},
    {24, 52, 65, plain_font},
    {30, 96, 65, plain_font},
    {3, 10, 283, footer_font},
    {6, 10, 287, footer_font},
    {8, 110, 283, footer_font},
};

using row_lines = std::array<std::string, 6>;

std::string position(int x, int y) {
    return zero_padded(x, 3) + zero_padded(y, 3);
}

row_lines layout_row(const std::string& where, const font& look) {
    return {where,
            std::to_string(look.points),
            std::string(look.name),
            look.bold ? "1" : "0",
            look.italic ? "1" : "0",
            std::to_string(look.colour)};
}

int right_edge(const body& lines, std::size_t place) {
    return place + 1 < lines.columns.size() ? lines.columns[place + 1].left : lines.right;
}

/// Where a column's text goes: a little inside its left or its right edge.
int text_x(const body& lines, std::size_t place) {
    const column& one = lines.columns[place];
    return one.aligned == side::left ? one.left + 2 : right_edge(lines, place) - 2;
}

/// A drawn text can only begin at its X: a head over numbers is moved by its estimated width.
int title_x(const body& lines, std::size_t place) {
    const column& one = lines.columns[place];
    if (one.aligned == side::left) return text_x(lines, place);
    constexpr int letter_hundredths = 143;
    const int letters = static_cast<int>(from_utf8(one.title).size());
    return text_x(lines, place) - letters * letter_hundredths / 100;
}

/// The elements of a drawing file: two texts and nine values each.
class drawing {
 public:
    void line(int x1, int y1, int x2, int y2, int colour) { add({1, x1, y1, x2, y2, colour}); }

    void box(int left, int top, int right, int bottom, int colour, bool filled) {
        add({2, left, top, right, bottom, colour, filled ? 1 : 0});
    }

    void text(int x, int y, std::string_view text, const font& look) {
        add({3, x, y, 0, 0, look.colour, look.points, look.bold, look.italic}, text, look.name);
    }

    void picture(int left, int top, std::string_view path) { add({4, left, top, 0, 0}, path); }

    [[nodiscard]] std::vector<std::string> lines() const {
        std::vector<std::string> all = {std::to_string(elements_)};
        all.insert(all.end(), lines_.begin(), lines_.end());
        return all;
    }

 private:
    void add(const std::array<int, 9>& values, std::string_view text = "",
             std::string_view font_name = "") {
        ++elements_;
        lines_.emplace_back(text);
        lines_.emplace_back(font_name);
        std::string row;
        for (const int value : values) row += (row.empty() ? "" : ",") + std::to_string(value);
        lines_.push_back(row);
    }

    int elements_ = 0;
    std::vector<std::string> lines_;
};

void draw_panel(drawing& into, const panel& one) {
    into.box(one.left, one.top, one.right, one.top + strip, pale, true);
    into.box(one.left, one.top, one.right, one.bottom, frame, false);
    into.text(one.left + 2, one.top + 1, one.caption, {.points = 7, .bold = true, .colour = navy});
}

void draw_body(drawing& into, const body& lines) {
    const int left = lines.columns.front().left;
    const int head_bottom = lines.text_top - 2;
    const int bottom = lines.text_bottom + 1;
    into.box(left, lines.head_top, lines.right, head_bottom, navy, true);
    into.box(left, lines.head_top, lines.right, bottom, frame, false);
    for (std::size_t i = 0; i < lines.columns.size(); ++i) {
        const column& one = lines.columns[i];
        if (i > 0) into.line(one.left, head_bottom, one.left, bottom, frame);
        into.text(title_x(lines, i), lines.head_top + 1, one.title,
                  {.points = 7, .bold = true, .colour = white});
    }
}

}  // namespace

std::vector<std::string> layout_lines(const page& plan) {
    std::vector<row_lines> rows(layout_rows + 1, layout_row("000000", {.points = 9}));
    const auto set = [&](int row, int x, int y, const font& look) {
        rows[static_cast<std::size_t>(row)] = layout_row(position(x, y), look);
    };
    for (const field& one : letterhead) set(one.row, one.x, one.y, one.look);
    for (const field& one : plan.fields) set(one.row, one.x, one.y, one.look);
    const body& lines = plan.lines;
    set(lines.text_top_row, lines.text_top, 0, {});
    set(lines.text_bottom_row, lines.text_bottom, 0, {});
    for (std::size_t i = 0; i < lines.columns.size(); ++i) {
        const column& one = lines.columns[i];
        set(one.row, text_x(lines, i), 0, {.points = one.look_points});
    }
    set(background_switch_row, 0, 1, {});

    std::vector<std::string> all;
    for (std::size_t row = 1; row <= layout_rows; ++row) {
        all.insert(all.end(), rows[row].begin(), rows[row].end());
    }
    return all;
}

std::vector<std::string> drawing_lines(const page& plan, std::string_view logo) {
    drawing all;
    all.picture(logo_left, logo_top, logo);
    all.line(page_left, header_rule, page_right, header_rule, navy);
    for (const panel& one : plan.panels) draw_panel(all, one);
    for (const panel& one : plan.bands) {
        all.box(one.left, one.top, one.right, one.bottom, navy, true);
        all.text(one.left + 2, one.top + 2, one.caption,
                 {.points = 10, .bold = true, .colour = white});
    }
    draw_body(all, plan.lines);
    for (const fixed_text& one : plan.texts) all.text(one.x, one.y, one.text, one.look);
    all.line(page_left, footer_rule, page_right, footer_rule, navy);
    return all.lines();
}

}  // namespace vantora::demo
