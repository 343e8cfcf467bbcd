#pragma once

#include <QElapsedTimer>
#include <QTableView>
#include <vector>

#include "ui/grid.h"

namespace vantora::ui::desktop {

/// A table whose columns share its width as the screen designs them or as the user dragged them;
/// what stands above a column or over a cell can follow it.
class grid_view final : public QTableView {
 public:
    grid_view(const grid& model, QWidget* parent);

    /// Shares the visible width out to the columns.
    void share_width();
    /// Keeps the widths that the user drags under this name from run to run.
    void remember_widths(const QString& name);

    /// Keeps a widget of the same parent above a column: as wide, and where the column begins. A
    /// button there sorts the column, and a click on the column's head presses it.
    void keep_above(int column, QWidget* widget);

    /// Keeps a widget over the current row's cell of a column, scrolled and resized with it; the
    /// widget becomes a child of the rows and is cut off with them.
    void keep_over(QWidget* widget, int column);

    /// Puts what stands above columns and over cells in its place.
    void place_followers();

    /// An arrow in the head of the column that was sorted last; -1: the list came anew.
    void show_sorted(int column);

    /// Where typing searches as long as no column is sorted.
    void search_in(int column) { search_column_ = column; }
    /// The next row whose text in the sorted column begins with what is typed.
    void keyboardSearch(const QString& typed) override;

    /// The mark stays on its entry, known by the text in column 0, when the list comes anew; an
    /// entry with a higher number there than any before is marked.
    void keep_mark() { keeps_mark_ = true; }
    [[nodiscard]] bool keeps_mark() const { return keeps_mark_; }
    /// A list that comes anew has its first row marked, wherever its building ended.
    void begin_at_first() { begins_at_first_ = true; }
    [[nodiscard]] bool begins_at_first() const { return begins_at_first_; }
    /// Where a row that deserves a second look is marked.
    void show_notices_in(int column);

 protected:
    void resizeEvent(QResizeEvent* event) override;
    // The first row shown is whole, at the end of the table too.
    void scrollContentsBy(int dx, int dy) override;
    void updateGeometries() override;
    /// Stripes go on below the rows, no row is cut in half, an empty list says why it is.
    void paintEvent(QPaintEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    /// A key brings the current row into sight, if it was scrolled away too.
    void keyPressEvent(QKeyEvent* event) override;
    /// The focus alone makes no row the current one.
    void focusInEvent(QFocusEvent* event) override;
    /// A column's edge that was dragged is let go.
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    struct follower {
        int column;
        QWidget* widget;
    };

    /// Those who listen hear a follower's own text and the head of its column.
    void call_by_column(const follower& one);
    void align_first_row();
    void head_clicked(int column);
    void take_dragged_widths();
    void paint_below(QPainter& painter);
    /// What a column takes of the width, in the user's or the screen's measure; 0 hides it.
    [[nodiscard]] int share_of(int column) const;
    /// Widths of the columns, by their shares; narrow ones keep room for a date or a VAT number.
    [[nodiscard]] std::vector<int> shared_widths() const;

    const grid& model_;
    std::vector<follower> above_;
    std::vector<follower> over_;
    QString widths_name_;       ///< empty: not remembered
    std::vector<int> dragged_;  ///< widths that the user gave; empty for none
    bool sharing_ = false;
    bool dragging_ = false;
    int sorted_ = -1;
    int search_column_ = 0;
    bool keeps_mark_ = false;
    bool begins_at_first_ = false;
    QString typed_;  ///< what is searched for
    QElapsedTimer since_typed_;
};

}  // namespace vantora::ui::desktop
