#include "desktop/lists/list_marks.h"

#include <QAbstractItemView>
#include <QKeyEvent>

namespace vantora::ui::desktop {

list_marks::list_marks(const shown_list& list, list_overlay& overlay, QObject* parent)
    : QObject(parent), list_(list), overlay_(overlay) {
    list_.view().installEventFilter(this);
    list_.view().viewport()->installEventFilter(this);
}

std::set<int> list_marks::rows() const {
    std::set<int> rows = overlay_.marked();
    if (rows.empty() && list_.holds_text(list_.current())) rows.insert(list_.current());
    return rows;
}

void list_marks::mark_all() {
    std::set<int> rows;
    for (int row = 0; row < list_.rows(); ++row) {
        if (list_.holds_text(row)) rows.insert(rows.end(), row);
    }
    overlay_.show_marked(std::move(rows));
}

void list_marks::clear() {
    anchor_ = end_ = -1;
    if (!overlay_.marked().empty()) overlay_.show_marked({});
}

void list_marks::toggle(int row) {
    std::set<int> rows = overlay_.marked();
    if (rows.erase(row) == 0) rows.insert(row);
    anchor_ = end_ = row;
    overlay_.show_marked(std::move(rows));
}

/// From the anchor to here, and nothing else.
void list_marks::mark_to(int row) {
    if (overlay_.marked().empty() || anchor_ < 0) anchor_ = std::max(list_.current(), 0);
    end_ = row;
    std::set<int> rows;
    for (int i = std::min(anchor_, end_); i <= std::max(anchor_, end_); ++i) {
        if (list_.holds_text(i)) rows.insert(rows.end(), i);
    }
    overlay_.show_marked(std::move(rows));
    list_.show(row);
}

bool list_marks::mouse_pressed(const QMouseEvent& mouse) {
    const int row = list_.row_at(mouse.position().toPoint());
    if (!list_.holds_text(row)) return false;
    const bool menu = mouse.button() == Qt::RightButton;
    if (menu) {
        if (!overlay_.marked().contains(row)) overlay_.show_marked({row});
    } else if (mouse.modifiers() & Qt::ShiftModifier) {
        mark_to(row);
    } else if (mouse.modifiers() & Qt::ControlModifier) {
        toggle(row);
    } else {
        clear();
        return false;
    }
    return true;
}

/// `pressed`: false where it is only asked whether the key has a use here.
bool list_marks::key_pressed(QKeyEvent& key, bool pressed) {
    const bool up = key.key() == Qt::Key_Up;
    const bool shift = key.modifiers() == Qt::ShiftModifier;
    if (shift && (up || key.key() == Qt::Key_Down)) {
        const int from = overlay_.marked().empty() || end_ < 0 ? list_.current() : end_;
        const int to = from + (up ? -1 : 1);
        if (pressed && list_.holds_text(to)) mark_to(to);
    } else if (key.matches(QKeySequence::SelectAll)) {
        if (pressed) mark_all();
    } else if (key.key() == Qt::Key_Escape && !overlay_.marked().empty()) {
        if (pressed) clear();
    } else {
        return false;
    }
    key.accept();
    return true;
}

bool list_marks::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::ShortcutOverride:
        case QEvent::KeyPress:
            if (watched != &list_.view()) break;
            return key_pressed(static_cast<QKeyEvent&>(*event), event->type() == QEvent::KeyPress);
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            if (watched == &list_.view()) break;
            taken_ = mouse_pressed(static_cast<QMouseEvent&>(*event));
            return taken_;
        case QEvent::MouseMove:
            return taken_ && watched != &list_.view();
        case QEvent::MouseButtonRelease:
            return watched != &list_.view() && std::exchange(taken_, false);
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace vantora::ui::desktop
