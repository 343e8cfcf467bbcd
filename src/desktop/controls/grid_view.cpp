#include "desktop/controls/grid_view.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSettings>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

#include "desktop/look/style.h"
#include "desktop/look/tip.h"
#include "text/code_page.h"
#include "ui/paper/toolkit_values.h"

namespace vantora::ui::desktop {

namespace {

/// What is typed after a longer pause is looked for anew. Milliseconds.
constexpr int typing_pause = 1500;

/// A small sign at the end of the cells of rows that deserve a second look.
class notice_marks final : public QStyledItemDelegate {
 public:
    notice_marks(const grid& model, QObject* parent) : QStyledItemDelegate(parent), model_(model) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        if (!model_.notice_of || model_.notice_of(index.row() + 1).empty()) return;
        const double side = std::min(option.rect.height() - 5, 14);
        QRectF sign(0, 0, side, side);
        sign.moveCenter(option.rect.center());
        sign.moveRight(option.rect.right() - 4);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        const bool chosen = (option.state & QStyle::State_Selected) != 0;
        const QColor ink = chosen ? Qt::white : QColor(0xa8, 0x4a, 0x00);
        painter->setPen(QPen(ink, 1.3));
        painter->drawEllipse(sign.adjusted(1, 1, -1, -1));
        // The hands of a clock.
        painter->drawPolyline(QPolygonF({sign.center() - QPointF(0, side * 0.26), sign.center(),
                                         sign.center() + QPointF(side * 0.2, side * 0.1)}));
        painter->restore();
    }

 private:
    const grid& model_;
};

/// Heads that stand over their columns' texts, with an arrow in the one sorted last: the toolkit's
/// own arrow would take its room from every head.
class column_heads final : public QHeaderView {
 public:
    explicit column_heads(QWidget* parent)
        : QHeaderView(Qt::Horizontal, parent), arrow_(picture_named("su")) {}
    void show_sorted(int column) {
        sorted_ = column;
        viewport()->update();
    }

 protected:
    void paintSection(QPainter* painter, const QRect& area, int column) const override {
        painter->save();  // it leaves a clip behind
        QHeaderView::paintSection(painter, area, column);
        painter->restore();
        if (column != sorted_) return;
        const bool right =
            (model()->headerData(column, orientation(), Qt::TextAlignmentRole).toInt() &
             Qt::AlignRight) != 0;
        QRect room(0, 0, arrow_size, arrow_size);
        room.moveCenter(area.center());
        right ? room.moveLeft(area.left() + margin) : room.moveRight(area.right() - margin);
        arrow_.paint(painter, room);
    }

 private:
    static constexpr int arrow_size = 12;
    static constexpr int margin = 4;
    QIcon arrow_;
    int sorted_ = -1;
};

}  // namespace

grid_view::grid_view(const grid& model, QWidget* parent) : QTableView(parent), model_(model) {
    setHorizontalHeader(new column_heads(this));
    // A list that is hidden while it is filled keeps its room.
    QSizePolicy place(QSizePolicy::Expanding, QSizePolicy::Expanding);
    place.setRetainSizeWhenHidden(true);
    setSizePolicy(place);
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
    QHeaderView* heads = horizontalHeader();
    heads->setHighlightSections(false);
    heads->setSectionsClickable(true);
    heads->setSectionResizeMode(QHeaderView::Interactive);
    heads->setFixedHeight(fontMetrics().height() + 12);
    heads->viewport()->installEventFilter(this);
    connect(heads, &QHeaderView::sectionClicked, this,
            [this](int column) { head_clicked(column); });
    connect(heads, &QHeaderView::sectionResized, this, [this] { dragging_ |= !sharing_; });
}

// Widths --------------------------------------------------------------------------------------

int grid_view::share_of(int column) const {
    const auto at = static_cast<std::size_t>(column);
    const int designed = model_.columns()[at].width;
    return designed == 0 || dragged_.size() != model_.columns().size() ? designed : dragged_[at];
}

std::vector<int> grid_view::shared_widths() const {
    const int columns = model_.cols();
    const int least = dragged_.empty() ? fontMetrics().horizontalAdvance("00000000000") + 14
                                       : horizontalHeader()->minimumSectionSize();
    int room = viewport()->width();
    int shares = 0;
    for (int i = 0; i < columns; ++i) shares += share_of(i);
    std::vector<int> widths(static_cast<std::size_t>(columns), 0);
    // Columns that would get too narrow take their least first; the others share what is left.
    for (bool again = true; again;) {
        again = false;
        for (int i = 0; i < columns; ++i) {
            int& width = widths[static_cast<std::size_t>(i)];
            const int share = share_of(i);
            if (share == 0 || width != 0 || shares == 0) continue;
            if (static_cast<long long>(room) * share / shares >= least) continue;
            width = least;
            room -= least;
            shares -= share;
            again = true;
        }
    }
    for (int i = 0; i < columns; ++i) {
        int& width = widths[static_cast<std::size_t>(i)];
        const int share = share_of(i);
        if (share == 0 || width != 0) continue;
        width = static_cast<int>(static_cast<long long>(room) * share / shares);
        room -= width;
        shares -= share;
    }
    return widths;
}

void grid_view::share_width() {
    sharing_ = true;
    const std::vector<int> widths = shared_widths();
    for (int i = 0; i < model_.cols(); ++i) {
        const int width = widths[static_cast<std::size_t>(i)];
        setColumnHidden(i, width == 0);
        if (width != 0) setColumnWidth(i, width);
    }
    sharing_ = false;
    place_followers();
}

void grid_view::remember_widths(const QString& name) {
    widths_name_ = name;
    dragged_.clear();
    for (const QVariant& width : QSettings().value(name).toList()) {
        dragged_.push_back(std::max(width.toInt(), 1));
    }
    share_width();
}

void grid_view::take_dragged_widths() {
    dragging_ = false;
    dragged_.clear();
    QVariantList kept;
    for (int i = 0; i < model_.cols(); ++i) {
        dragged_.push_back(std::max(columnWidth(i), 1));
        kept << dragged_.back();
    }
    if (!widths_name_.isEmpty()) QSettings().setValue(widths_name_, kept);
    share_width();
}

bool grid_view::eventFilter(QObject* watched, QEvent* event) {
    if (watched == horizontalHeader()->viewport() && event->type() == QEvent::MouseButtonRelease &&
        dragging_) {
        take_dragged_widths();
    }
    return QTableView::eventFilter(watched, event);
}

// What follows columns and cells ----------------------------------------------------------------

void grid_view::keep_above(int column, QWidget* widget) {
    above_.push_back({column, widget});
    call_by_column(above_.back());
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        connect(button, &QAbstractButton::clicked, this, [this, column] { show_sorted(column); });
    }
    place_followers();
}

void grid_view::keep_over(QWidget* widget, int column) {
    const bool seen = !widget->isHidden();
    widget->setParent(viewport());
    widget->setVisible(seen);
    over_.push_back({column, widget});
    call_by_column(over_.back());
    place_followers();
}

void grid_view::call_by_column(const follower& one) {
    const auto call = [this, one] {
        const auto* button = qobject_cast<QAbstractButton*>(one.widget);
        const QString head = model()->headerData(one.column, Qt::Horizontal).toString();
        one.widget->setAccessibleName(
            ((button ? button->text() + ' ' : QString()) + head).trimmed());
    };
    call();
    connect(model(), &QAbstractItemModel::modelReset, one.widget, call);
}

void grid_view::show_notices_in(int column) {
    setItemDelegateForColumn(column, new notice_marks(model_, this));
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

void grid_view::head_clicked(int column) {
    for (const follower& one : above_) {
        auto* button = qobject_cast<QAbstractButton*>(one.widget);
        if (button && one.column == column && button->isEnabled()) button->click();
    }
}

void grid_view::show_sorted(int column) {
    sorted_ = column;
    static_cast<column_heads*>(horizontalHeader())->show_sorted(column);
}

// Typing ----------------------------------------------------------------------------------------

void grid_view::keyboardSearch(const QString& typed) {
    const bool goes_on = since_typed_.isValid() && since_typed_.elapsed() < typing_pause;
    since_typed_.start();
    typed_ = goes_on ? typed_ + typed : typed;
    const QPoint below(frameWidth(), horizontalHeader()->height());
    show_tip(mapToGlobal(below), QString("Cerca: %1").arg(typed_), this, typing_pause);
    const std::string wanted = upper(from_qt(typed_));
    const int column = sorted_ >= 0 ? sorted_ : search_column_;
    const int rows = model_.rows() - 1;
    // A text typed on may still fit the row that was found by its beginning.
    const int start = currentIndex().row() + (goes_on ? 0 : 1);
    for (int step = 0; step < rows; ++step) {
        const int row = (std::max(start, 0) + step) % rows;
        const std::string_view text = model_.text(row + 1, column);
        if (upper(std::string(text.substr(0, wanted.size()))) != wanted) continue;
        setCurrentIndex(model()->index(row, 0));
        return;
    }
}

// Scrolling and focus -----------------------------------------------------------------------------

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

void grid_view::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    QPainter painter(viewport());
    paint_below(painter);
    const bool empty = model_.rows() < 2 || model_.text(1, 0).empty();
    if (model_.empty_note.empty() || !empty) return;
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(0, 40, 0, 0), Qt::AlignHCenter | Qt::AlignTop,
                     to_qt(model_.empty_note));
}

void grid_view::paint_below(QPainter& painter) {
    const int step = verticalHeader()->defaultSectionSize();
    const int room = viewport()->height();
    const int rows = model()->rowCount();
    if (rows == 0 || step <= 0) return;
    const int first = std::max(verticalScrollBar()->value(), 0);
    const int whole = room / step;  // rows that have their full height
    for (int place = rows - first; place <= whole; ++place) {
        // As the last two rows are coloured, in turns.
        const int like = rows - 1 - (rows > 1 && (first + place - rows) % 2 == 0 ? 1 : 0);
        painter.fillRect(QRect(0, place * step, viewport()->width(), step),
                         model()->index(like, 0).data(Qt::BackgroundRole).value<QColor>());
    }
    if (whole * step < room && rows - first > whole) {
        painter.fillRect(QRect(0, whole * step, viewport()->width(), room - whole * step),
                         palette().color(QPalette::Base));
    }
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
