#include "ui/grid.h"

#include <algorithm>

#include "text/code_page.h"
#include "text/number_text.h"

namespace vantora::ui {

void grid::set_columns(std::vector<grid_column> columns) {
    columns_ = std::move(columns);
    arena_.clear();
    cells_.assign(1, {});
    row_ = col_ = 0;
    top_row_ = 1;
    for (int col = 0; col < cols(); ++col) {
        set_text(0, col, columns_[static_cast<std::size_t>(col)].head);
    }
    show_change(aspect::shape);
}

void grid::set_rows(int wanted) {
    cells_.resize(static_cast<std::size_t>(std::max(wanted, 1)));
    if (rows() == 1) {  // a list that comes anew takes the room of the old one
        std::string heads;
        for (cell& one : cells_[0]) {
            heads.append(arena_, one.begin, one.size);
            one.room = one.size;
            one.begin = static_cast<std::uint32_t>(heads.size()) - one.size;
        }
        arena_.assign(heads);
    }
    row_ = std::min(row_, rows() - 1);
    if (rows() == 1) shows_end_ = false;
    top_row_ = std::clamp(top_row_, 1, std::max(1, rows() - 1));
    show_change(aspect::shape);
}

bool grid::holds(int row, int col) const {
    return row >= 0 && row < rows() && col >= 0 && col < cols();
}

const grid::cell& grid::at(int row, int col) const {
    static const cell blank;
    const auto& cells = cells_[static_cast<std::size_t>(row)];
    return cells.empty() ? blank : cells[static_cast<std::size_t>(col)];
}

grid::cell& grid::at(int row, int col) {
    auto& cells = cells_[static_cast<std::size_t>(row)];
    if (cells.empty()) cells.resize(columns_.size());
    return cells[static_cast<std::size_t>(col)];
}

std::string_view grid::text(int row, int col) const {
    if (!holds(row, col)) return {};
    const cell& one = at(row, col);
    return std::string_view(arena_).substr(one.begin, one.size);
}

bool grid::set_text(int row, int col, std::string_view text) {
    if (!holds(row, col)) return false;
    cell& one = at(row, col);
    one.size = static_cast<std::uint32_t>(text.size());
    if (one.size > one.room) {
        one.begin = static_cast<std::uint32_t>(arena_.size());
        one.room = one.size;
        arena_.append(text);
    } else {
        std::ranges::copy(text, arena_.begin() + one.begin);
    }
    show_change(aspect::content);
    return true;
}

colour grid::back_colour(int row, int col) const {
    return holds(row, col) ? at(row, col).back : white;
}

void grid::set_back_colour(int row, int first, int last, colour back) {
    if (!holds(row, first) || !holds(row, last)) return;
    for (int col = first; col <= last; ++col) at(row, col).back = back;
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

// Sorting -----------------------------------------------------------------------------------------

namespace {

/// One row's place in a sort, read once and compared often.
struct sort_key {
    std::size_t row = 0;
    bool empty = false;
    bool number = false;
    double value = 0;
    std::uint32_t begin = 0;  ///< of the text in capitals, among the texts of all keys
    std::uint32_t size = 0;
};

bool stands_behind(const sort_key& left, const sort_key& right, std::string_view texts) {
    if (left.empty || right.empty) return right.empty && !left.empty;
    if (left.number && right.number) return left.value > right.value;
    return texts.substr(left.begin, left.size) > texts.substr(right.begin, right.size);
}

/// Merges runs of rising length. Mixed columns of numbers and texts have no order that holds for
/// all pairs ("2" < "10" < "1a" < "2"), so this must be safe for any outcome of the comparison.
void merge_sort(std::vector<sort_key>& keys, std::string_view texts) {
    std::vector<sort_key> merged(keys.size());
    for (std::size_t run = 1; run < keys.size(); run *= 2) {
        for (std::size_t begin = 0; begin < keys.size(); begin += 2 * run) {
            const std::size_t middle = std::min(begin + run, keys.size());
            const std::size_t end = std::min(begin + 2 * run, keys.size());
            std::size_t left = begin;
            std::size_t right = middle;
            for (std::size_t to = begin; to < end; ++to) {
                const bool take_right =
                    right < end &&
                    (left == middle || stands_behind(keys[left], keys[right], texts));
                merged[to] = take_right ? keys[right++] : keys[left++];
            }
        }
        keys.swap(merged);
    }
}

}  // namespace

void grid::sort(int col, sort_order by) {
    if (rows() < 3 || !holds(0, col)) return;
    std::string texts;
    std::vector<sort_key> keys;
    keys.reserve(cells_.size() - 1);
    for (int row = 1; row < rows(); ++row) {
        const std::string_view shown = text(row, col);
        sort_key key;
        key.row = static_cast<std::size_t>(row);
        key.empty = shown.empty();
        if (by == sort_order::numeric_ascending) {
            key.number = true;
            key.value = number_at_head(shown);
        } else {
            const auto number = whole_number_text(shown);
            key.number = number.has_value();
            key.value = number.value_or(0);
            key.begin = static_cast<std::uint32_t>(texts.size());
            key.size = static_cast<std::uint32_t>(shown.size());
            texts += upper(shown);
        }
        keys.push_back(key);
    }
    merge_sort(keys, texts);
    std::vector<std::vector<cell>> sorted;
    sorted.reserve(cells_.size());
    sorted.push_back(std::move(cells_[0]));
    for (const sort_key& key : keys) sorted.push_back(std::move(cells_[key.row]));
    cells_ = std::move(sorted);
    show_change(aspect::content);
}

}  // namespace vantora::ui
