#include "desktop/lists/list_overlay.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QPainter>

#include "text/code_page.h"

namespace vantora::ui::desktop {

namespace {

const QColor found_frame(0xb2, 0x5f, 0x00);
const QColor found_tint(0xff, 0xc1, 0x4d, 60);
const QColor mark_bar(0xe0, 0x8a, 0x00);
const QColor mark_tint(0x2f, 0x6e, 0xa5, 64);
constexpr int bar_width = 5;  ///< dots

}  // namespace

list_overlay::list_overlay(const shown_list& list) : QWidget(&list.view()), list_(list) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    list_.view().viewport()->installEventFilter(this);
    hide();
}

void list_overlay::show_found(std::string wanted, int at) {
    wanted_ = std::move(wanted);
    found_ = at;
    cover();
}

void list_overlay::show_marked(std::set<int> rows) {
    marked_ = std::move(rows);
    marked_at_ = list_.revision();
    cover();
}

std::set<int> list_overlay::marked() const {
    return marked_at_ == list_.revision() ? marked_ : std::set<int>();
}

/// Stands over the rows while there is something to show.
void list_overlay::cover() {
    setGeometry(list_.view().viewport()->geometry());
    setVisible(!wanted_.empty() || !marked_.empty());
    raise();
    update();
}

bool list_overlay::eventFilter(QObject* watched, QEvent* event) {
    const bool moved = event->type() == QEvent::Resize || event->type() == QEvent::Move;
    if (moved && isVisible()) cover();
    return QWidget::eventFilter(watched, event);
}

void list_overlay::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // The first row may be cut off at the top.
    for (int row = std::max(list_.row_at(QPoint(1, 1)), 0); row < list_.rows(); ++row) {
        if (list_.place_of(row, list_.columns().front()).top() > height()) break;
        paint_row(painter, row);
    }
}

void list_overlay::paint_row(QPainter& painter, int row) {
    if (marked_at_ == list_.revision() && marked_.contains(row)) {
        QRect place = list_.place_of(row, list_.columns().front());
        place.setRight(width());
        painter.fillRect(place, mark_tint);
        painter.fillRect(QRect(place.topLeft(), QSize(bar_width, place.height())), mark_bar);
    }
    if (wanted_.empty()) return;
    for (const int column : list_.columns()) {
        if (searchable(list_.text(row, column)).find(wanted_) == std::string::npos) continue;
        const QRectF cell = QRectF(list_.place_of(row, column)).adjusted(1, 0.5, -1, -0.5);
        painter.setPen(QPen(found_frame, row == found_ ? 2.5 : 1));
        // The highlight of the current row bears no tint.
        painter.setBrush(row == list_.current() ? QBrush(Qt::NoBrush) : QBrush(found_tint));
        painter.drawRoundedRect(cell, 3, 3);
    }
}

}  // namespace vantora::ui::desktop
