#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "ui/colour.h"
#include "ui/control.h"

namespace vantora::ui {

enum class alignment { left, right };

/// How two cells of a column compare.
enum class sort_order {
    generic_ascending,  ///< as numbers if both read wholly as numbers, else as texts in capitals
    numeric_ascending,  ///< by the number at the head of the text
};

/// A column as the screen designs it.
struct grid_column {
    std::string head;
    int width = 0;  ///< share of the visible width; 0 hides the column
    alignment aligned = alignment::left;
};

/// A table of texts. Row 0 is the head. Texts lie in one arena, so 32,000 rows are filled without
/// as many allocations, and rows that nobody writes into cost next to nothing.
class grid : public control {
 public:
    grid() : control(control_kind::grid) {}

    std::function<void()> on_click;  ///< a cell was clicked; see mouse_column()
    /// What stands behind a row, in a few lines for who rests on it; read when it is asked for.
    std::function<std::string(int row)> hint_of;
    /// Why a row deserves a second look, in a few words; empty for others. Asked of each row that
    /// comes into sight, so it reads no file.
    std::function<std::string(int row)> notice_of;

    /// Why the list is empty when it is, for the eye.
    std::string empty_note;

    /// Sets columns and heads; what the grid held is gone, and one head row is left.
    void set_columns(std::vector<grid_column> columns);
    [[nodiscard]] const std::vector<grid_column>& columns() const { return columns_; }

    [[nodiscard]] int rows() const { return static_cast<int>(cells_.size()); }
    [[nodiscard]] int cols() const { return static_cast<int>(columns_.size()); }
    /// Rows that stay are kept, others dropped, new ones empty. Never below 1, the head.
    void set_rows(int rows);

    /// Empty outside the grid. Valid until the next change of any cell.
    [[nodiscard]] std::string_view text(int row, int col) const;
    /// False, with nothing done, outside the grid.
    bool set_text(int row, int col, std::string_view text);

    [[nodiscard]] colour back_colour(int row, int col) const;
    /// Colours the cells of a row from column `first` to `last`.
    void set_back_colour(int row, int first, int last, colour back);

    /// The current cell; row 0 is none yet.
    [[nodiscard]] int row() const { return row_; }
    [[nodiscard]] int col() const { return col_; }
    bool set_row(int row);
    bool set_col(int col);
    /// The column under the mouse at the last click.
    [[nodiscard]] int mouse_column() const { return mouse_column_; }
    /// Whether the last click was on the head.
    [[nodiscard]] bool head_clicked() const { return head_clicked_; }

    /// First row shown under the head, from 1. Past what fits it stops at the last row.
    [[nodiscard]] int top_row() const { return top_row_; }
    void set_top_row(int row);
    /// The end of the list: the top row has `rows` rows below it. A window that shows fewer rows
    /// still shows the last one.
    void show_end(int rows);
    /// True from show_end until the top row is set otherwise.
    [[nodiscard]] bool shows_end() const { return shows_end_; }

    /// Reorders all rows but the head by one column, empty cells first; whole rows move, rows with
    /// equal keys keep their order.
    void sort(int col, sort_order by);

    /// The user clicks a cell: the grid takes the focus, the cell becomes current (a click on the
    /// head leaves the current row as it is), then the click fires. False outside the grid.
    bool click_cell(int row, int col);

    /// Arrows move the current row; Enter clicks it.
    void take_effect(int code, std::optional<char> character) override;

 private:
    struct cell {
        std::uint32_t begin = 0;
        std::uint32_t size = 0;
        std::uint32_t room = 0;
        colour back = white;
    };

    [[nodiscard]] bool holds(int row, int col) const;
    [[nodiscard]] const cell& at(int row, int col) const;
    cell& at(int row, int col);

    std::vector<grid_column> columns_;
    std::string arena_;                     ///< the texts of all cells, and leftovers of old ones
    std::vector<std::vector<cell>> cells_;  ///< by row; a row without any is blank
    int row_ = 0;
    int col_ = 0;
    int top_row_ = 1;
    bool shows_end_ = false;
    int mouse_column_ = 0;
    bool head_clicked_ = false;
};

}  // namespace vantora::ui
