#pragma once

#include <QHash>
#include <QObject>
#include <array>
#include <vector>

class QComboBox;
class QLabel;
class QScrollBar;
class QWidget;

namespace vantora::ui::desktop {

class form_window;

/// What goes with the rows of an order's lines besides their cells: the row that is worked on is
/// marked, each row shows its line's number, the pick of the VAT code lies over its row.
class line_rows final : public QObject {
 public:
    static constexpr int count = 12;

    /// REQUIRES: the window's cells are made. The object belongs to the window.
    explicit line_rows(form_window& window);

    void add_cell(int row, QWidget* cell);
    /// The number of a row's line, to be placed before its cells.
    [[nodiscard]] QLabel* number(int row) const { return numbers_[static_cast<std::size_t>(row)]; }
    [[nodiscard]] int current() const { return current_; }

    /// The focus comes back to the cell that had it last.
    void go_back();

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void mark(int row);
    void show_numbers(int first);
    void place_pick();

    form_window& window_;
    QScrollBar* bar_;
    QComboBox* pick_;
    std::array<QLabel*, count> numbers_{};
    /// The cells that the pick lies over, kept since the window outlives its screen by some events.
    std::array<const QWidget*, count> codes_{};
    std::array<std::vector<QWidget*>, count> cells_;
    QHash<const QWidget*, int> row_of_;
    int current_ = -1;
    QWidget* last_cell_ = nullptr;
};

}  // namespace vantora::ui::desktop
