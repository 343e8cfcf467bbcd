#pragma once

#include <QTableView>
#include <vector>

#include "ui/grid.h"

namespace vantora::ui::desktop {

/// A table whose columns share its width as the screen designs them; what stands above a column
/// or over a cell can follow it.
class grid_view final : public QTableView {
 public:
    grid_view(const grid& model, QWidget* parent);

    /// Shares the visible width out to the columns.
    void share_width();

    /// Keeps a widget of the same parent above a column: as wide, and where the column begins.
    void keep_above(int column, QWidget* widget);

    /// Keeps a widget over the current row's cell of a column, scrolled and resized with it; the
    /// widget becomes a child of the rows and is cut off with them.
    void keep_over(QWidget* widget, int column);

    /// Puts what stands above columns and over cells in its place.
    void place_followers();

 protected:
    void resizeEvent(QResizeEvent* event) override;
    // The first row shown is whole, at the end of the table too.
    void scrollContentsBy(int dx, int dy) override;
    void updateGeometries() override;
    void moveEvent(QMoveEvent* event) override;
    /// A key brings the current row into sight, if it was scrolled away too.
    void keyPressEvent(QKeyEvent* event) override;
    /// The focus alone makes no row the current one.
    void focusInEvent(QFocusEvent* event) override;

 private:
    struct follower {
        int column;
        QWidget* widget;
    };

    void align_first_row();
    /// Widths of the columns, by their shares; narrow ones keep room for a date or a VAT number.
    [[nodiscard]] std::vector<int> shared_widths() const;

    const grid& model_;
    std::vector<follower> above_;
    std::vector<follower> over_;
};

}  // namespace vantora::ui::desktop
