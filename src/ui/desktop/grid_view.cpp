#include "ui/desktop/grid_view.h"

#include <QHeaderView>
#include <QScrollBar>

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
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 9);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setFixedHeight(fontMetrics().height() + 12);
}

void grid_view::share_width() {
    const auto& columns = model_.columns();
    int shares = 0;
    for (const auto& column : columns) shares += column.width;
    if (shares == 0) return;
    const int width = viewport()->width();
    int given = 0;
    int given_shares = 0;
    for (int i = 0; i < model_.cols(); ++i) {
        const int share = columns[static_cast<std::size_t>(i)].width;
        setColumnHidden(i, share == 0);
        if (share == 0) continue;
        // Rounded at the column's right edge, so that together they fill the width.
        given_shares += share;
        const int edge = static_cast<int>(static_cast<long long>(width) * given_shares / shares);
        setColumnWidth(i, edge - given);
        given = edge;
    }
    place_followers();
}

void grid_view::keep_above(int column, QWidget* widget) {
    followers_.push_back({column, widget});
    place_followers();
}

void grid_view::place_followers() {
    for (const follower& one : followers_) {
        const int left = x() + frameWidth() + columnViewportPosition(one.column);
        one.widget->setGeometry(left + 1, one.widget->y(), columnWidth(one.column) - 2,
                                one.widget->height());
    }
}

void grid_view::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    share_width();
}

void grid_view::moveEvent(QMoveEvent* event) {
    QTableView::moveEvent(event);
    place_followers();
}

}  // namespace vantora::ui::desktop
