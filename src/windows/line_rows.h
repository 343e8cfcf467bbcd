#pragma once

#include <QHash>
#include <QObject>
#include <QStringList>
#include <array>
#include <vector>

#include "entry/line_grid.h"

class QComboBox;
class QKeyEvent;
class QLabel;
class QScrollBar;
class QWheelEvent;
class QWidget;

namespace vantora::ui::desktop {

class form_window;

/// What goes with the rows of an order's lines besides their cells: the row that is worked on is
/// marked, each row shows its line's number, keys walk from cell to cell, the wheel moves the
/// lines, the pick of the VAT code lies over its row.
class line_rows final : public QObject {
 public:
    static constexpr int count = line_grid::rows;

    /// REQUIRES: the window's cells are made. The object belongs to the window.
    line_rows(form_window& window, line_grid& screen);

    /// A column behind the ones before, with the cells of its rows. Those who listen hear `head`,
    /// or if it is empty the one before, and the line's number.
    void add_column(text_box (&cells)[line_grid::rows], const char* head);
    /// Where the wheel moves the lines.
    void take_wheel_over(QWidget* area);
    /// Numbers the lines that stand in the rows. Called once all cells are added, and from then on
    /// by the scroll bar.
    void show_numbers();
    /// The number of a row's line, to be placed before its cells.
    [[nodiscard]] QLabel* number(int row) const { return numbers_[static_cast<std::size_t>(row)]; }
    [[nodiscard]] int current() const { return current_; }

    /// The focus comes back to the cell that had it last.
    void go_back();
    /// Moves the lines under the cells; the focus stays in its cell.
    void scroll(int lines);

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    struct place {
        int row = -1;
        int column = 0;
    };

    void mark(int row);
    void place_pick();
    bool key_pressed(const place& from, int key);
    /// To a cell; a row above or below the twelve scrolls by one. False past the first and the
    /// last line.
    bool go_to(place to, int step);
    bool walk(place from, int step);
    void wheel(const QWheelEvent& turned);
    [[nodiscard]] bool passes_over(const place& cell) const;

    form_window& window_;
    line_grid& screen_;
    QScrollBar* bar_;
    QComboBox* pick_;
    std::array<QLabel*, count> numbers_{};
    std::vector<text_box*> columns_;                  ///< first cell of each
    QStringList heads_;                               ///< as they are heard
    std::vector<std::array<QWidget*, count>> cells_;  ///< by column
    QHash<const QObject*, place> place_of_;
    int current_ = -1;
    int wheel_rest_ = 0;  ///< turned by less than a step, in eighths of a degree
    QWidget* last_cell_ = nullptr;
};

}  // namespace vantora::ui::desktop
