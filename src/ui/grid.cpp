#include "ui/grid.h"

#include <algorithm>
#include <numeric>

namespace vantora::ui {

void grid::set_columns(std::vector<grid_column> columns) {
    columns_ = std::move(columns);
    arena_.clear();
    wasted_ = 0;
    cells_.assign(columns_.size(), cell{});
    order_.assign(1, 0);
    rows_ = 1;
    row_ = col_ = 0;
    top_row_ = 1;
    for (int col = 0; col < cols(); ++col) {
        set_text(0, col, columns_[static_cast<std::size_t>(col)].head);
    }
    show_change(aspect::shape);
}

void grid::set_rows(int rows) {
    rows_ = std::max(rows, 1);
    const auto wanted = static_cast<std::size_t>(rows_);
    if (wanted < order_.size()) {
        store_as_shown();
        const auto kept = static_cast<std::ptrdiff_t>(wanted * columns_.size());
        for (auto one = cells_.begin() + kept; one != cells_.end(); ++one) wasted_ += one->room;
        cells_.resize(wanted * columns_.size());
        order_.resize(wanted);
        tidy_arena();
    }
    row_ = std::min(row_, rows_ - 1);
    if (rows_ == 1) shows_end_ = false;
    top_row_ = std::clamp(top_row_, 1, std::max(1, rows_ - 1));
    show_change(aspect::shape);
}

void grid::store_rows(std::size_t wanted) {
    const std::size_t had = order_.size();
    if (wanted <= had) return;
    cells_.resize(wanted * columns_.size());
    order_.resize(wanted);
    std::iota(order_.begin() + static_cast<std::ptrdiff_t>(had), order_.end(),
              static_cast<std::uint32_t>(had));
}

void grid::store_as_shown() {
    if (std::ranges::is_sorted(order_)) return;
    const std::size_t width = columns_.size();
    std::vector<cell> shown;
    shown.reserve(cells_.size());
    for (const std::uint32_t row : order_) {
        const auto first = cells_.begin() + static_cast<std::ptrdiff_t>(row * width);
        shown.insert(shown.end(), first, first + static_cast<std::ptrdiff_t>(width));
    }
    cells_ = std::move(shown);
    std::iota(order_.begin(), order_.end(), 0U);
}

bool grid::holds(int row, int col) const {
    return row >= 0 && row < rows() && col >= 0 && col < cols();
}

const grid::cell& grid::at(int row, int col) const {
    static const cell blank;
    if (static_cast<std::size_t>(row) >= order_.size()) return blank;
    return cells_[order_[static_cast<std::size_t>(row)] * columns_.size() +
                  static_cast<std::size_t>(col)];
}

grid::cell& grid::at(int row, int col) {
    store_rows(static_cast<std::size_t>(row) + 1);
    return cells_[order_[static_cast<std::size_t>(row)] * columns_.size() +
                  static_cast<std::size_t>(col)];
}

std::string_view grid::text(int row, int col) const {
    if (!holds(row, col)) return {};
    const cell& one = at(row, col);
    return std::string_view(arena_).substr(one.begin, one.size);
}

void grid::texts(int row, std::span<std::string_view> into) const {
    std::ranges::fill(into, std::string_view());
    if (!holds(row, 0) || static_cast<std::size_t>(row) >= order_.size()) return;
    const cell* one = &at(row, 0);
    for (std::string_view& text : into.first(std::min(into.size(), columns_.size()))) {
        text = {arena_.data() + one->begin, one->size};
        ++one;
    }
}

bool grid::set_text(int row, int col, std::string_view text) {
    if (!holds(row, col)) return false;
    cell& one = at(row, col);
    const auto size = static_cast<std::uint32_t>(text.size());
    if (size > one.room) {
        wasted_ += one.room;
        one.begin = static_cast<std::uint32_t>(arena_.size());
        one.room = size;
        arena_.append(text);
    } else {
        std::copy(text.begin(), text.end(), arena_.begin() + one.begin);
    }
    one.size = size;
    tidy_arena();
    show_change(aspect::content);
    return true;
}

void grid::tidy_arena() {
    constexpr std::size_t tolerated = 65536;
    if (wasted_ <= tolerated || wasted_ <= arena_.size() / 2) return;
    std::string fresh;
    for (cell& one : cells_) {
        const auto begin = static_cast<std::uint32_t>(fresh.size());
        fresh.append(arena_, one.begin, one.size);
        one.begin = begin;
        one.room = one.size;
    }
    arena_.assign(fresh);  // keeps its room: a list is mostly filled again
    wasted_ = 0;
}

colour grid::back_colour(int row, int col) const {
    return holds(row, col) ? at(row, col).back : white;
}

void grid::set_back_colour(int row, int first, int last, colour back) {
    if (!holds(row, first) || !holds(row, last)) return;
    cell* one = &at(row, first);
    for (int col = first; col <= last; ++col, ++one) one->back = back;
    show_change(aspect::content);
}

bool grid::set_row(int row) {
    if (row < 0 || row >= rows()) return false;
    row_ = row;
    show_change(aspect::position);
    return true;
}

bool grid::set_col(int col) {
    if (col < 0 || col >= cols()) return false;
    col_ = col;
    show_change(aspect::position);
    return true;
}

void grid::set_top_row(int row) {
    shows_end_ = false;
    top_row_ = std::clamp(row, 1, std::max(1, rows() - 1));
    show_change(aspect::position);
}

void grid::show_end(int rows) {
    set_top_row(this->rows() - rows);
    shows_end_ = true;
    show_change(aspect::position);
}

bool grid::click_cell(int row, int col) {
    if (!holds(row, col)) return false;
    set_focus();
    if (!holds(row, col)) return false;
    mouse_column_ = col;
    head_clicked_ = row == 0;
    if (row > 0) {
        set_row(row);
        set_col(col);
    }
    fire(on_click);
    return true;
}

void grid::take_effect(int code, std::optional<char> character) {
    if (!character && code == key::down) set_row(row_ + 1);
    if (!character && code == key::up && row_ > 1) set_row(row_ - 1);
    if (code == key::enter && row_ > 0) click_cell(row_, col_);
}

}  // namespace vantora::ui
