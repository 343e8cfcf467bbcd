#include "ui/desktop/grid_view.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>

namespace vantora::ui::desktop {

grid_view::grid_view(const grid& model, QWidget* parent) : QTableView(parent), model_(model) {
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerItem);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setFixedHeight(fontMetrics().height() + 12);
}

std::vector<int> grid_view::shared_widths() const {
    const auto& columns = model_.columns();
    const int least = fontMetrics().horizontalAdvance("00000000000") + 14;
    int room = viewport()->width();
    int shares = 0;
    for (const auto& column : columns) shares += column.width;
    std::vector<int> widths(columns.size(), 0);
    // Columns that would get too narrow take their least first; the others share what is left.
    for (bool again = true; again;) {
        again = false;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            if (columns[i].width == 0 || widths[i] != 0 || shares == 0) continue;
            if (static_cast<long long>(room) * columns[i].width / shares >= least) continue;
            widths[i] = least;
            room -= least;
            shares -= columns[i].width;
            again = true;
        }
    }
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i].width == 0 || widths[i] != 0) continue;
        widths[i] = static_cast<int>(static_cast<long long>(room) * columns[i].width / shares);
        room -= widths[i];
        shares -= columns[i].width;
    }
    return widths;
}

void grid_view::share_width() {
    const std::vector<int> widths = shared_widths();
    for (int i = 0; i < model_.cols(); ++i) {
        const int width = widths[static_cast<std::size_t>(i)];
        setColumnHidden(i, width == 0);
        if (width != 0) setColumnWidth(i, width);
    }
    place_followers();
}

void grid_view::keep_above(int column, QWidget* widget) {
    above_.push_back({column, widget});
    place_followers();
}

void grid_view::keep_over(QWidget* widget, int column) {
    const bool seen = !widget->isHidden();
    widget->setParent(viewport());
    widget->setVisible(seen);
    over_.push_back({column, widget});
    place_followers();
}

void grid_view::place_followers() {
    for (const follower& one : over_) {
        one.widget->setGeometry(visualRect(model()->index(currentIndex().row(), one.column)));
    }
    for (const follower& one : above_) {
        const QPoint corner(frameWidth() + columnViewportPosition(one.column), 0);
        const int left = one.widget->parentWidget()->mapFromGlobal(mapToGlobal(corner)).x();
        one.widget->setGeometry(left + 1, one.widget->y(), columnWidth(one.column) - 2,
                                one.widget->height());
    }
}

void grid_view::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    share_width();
}

void grid_view::align_first_row() {
    verticalHeader()->setOffsetToSectionPosition(verticalScrollBar()->value());
    viewport()->update();
    place_followers();
}

void grid_view::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    align_first_row();
}

void grid_view::updateGeometries() {
    QTableView::updateGeometries();
    align_first_row();
}

void grid_view::moveEvent(QMoveEvent* event) {
    QTableView::moveEvent(event);
    place_followers();
}

void grid_view::keyPressEvent(QKeyEvent* event) {
    QTableView::keyPressEvent(event);
    if (currentIndex().isValid()) scrollTo(currentIndex());
}

void grid_view::focusInEvent(QFocusEvent* event) {
    const bool had_row = currentIndex().isValid();
    const QSignalBlocker silent(selectionModel());
    QTableView::focusInEvent(event);
    if (!had_row) selectionModel()->clear();
}

}  // namespace vantora::ui::desktop
