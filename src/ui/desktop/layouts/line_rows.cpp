#include "ui/desktop/layouts/line_rows.h"

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QScrollBar>
#include <QStyle>
#include <QWheelEvent>

#include "ui/desktop/layouts/parts.h"

namespace vantora::ui::desktop {

namespace {

constexpr int pick_width = 250;

}  // namespace

line_rows::line_rows(form_window& window)
    : QObject(&window),
      window_(window),
      bar_(window.as<QScrollBar>("VScroll1")),
      pick_(window.as<QComboBox>("Combo1")) {
    for (QLabel*& label : numbers_) {
        label = new QLabel(&window);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        label->setMinimumWidth(label->fontMetrics().horizontalAdvance("000") + 4);
        set_look(label, "role", "number");
    }
    for (int row = 0; row < count; ++row) {
        codes_[static_cast<std::size_t>(row)] = window.widget("civ", row);
    }
    set_look(pick_, "look", "over");
    pick_->installEventFilter(this);
    show_numbers(bar_->value());
    connect(bar_, &QScrollBar::valueChanged, this, [this](int first) { show_numbers(first); });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        const auto row = row_of_.constFind(now);
        if (row == row_of_.constEnd()) return;
        last_cell_ = now;
        mark(*row);
    });
}

void line_rows::add_cell(int row, QWidget* cell) {
    set_look(cell, "cell", "true");
    cells_[static_cast<std::size_t>(row)].push_back(cell);
    row_of_[cell] = row;
    cell->installEventFilter(this);
}

void line_rows::mark(int row) {
    if (row == current_) return;
    for (const int changed : {current_, row}) {
        if (changed < 0) continue;
        for (QWidget* cell : cells_[static_cast<std::size_t>(changed)]) {
            set_look(cell, "cell", changed == row ? "current" : "true");
            cell->style()->unpolish(cell);
            cell->style()->polish(cell);
        }
    }
    current_ = row;
}

void line_rows::go_back() {
    if (last_cell_) last_cell_->setFocus(Qt::ShortcutFocusReason);
}

void line_rows::show_numbers(int first) {
    for (int row = 0; row < count; ++row) number(row)->setText(QString::number(first + row));
}

void line_rows::place_pick() {
    if (current_ < 0) return;
    const QWidget* over = codes_[static_cast<std::size_t>(current_)];
    QRect area(over->mapTo(&window_, QPoint()), QSize(pick_width, over->height()));
    area.moveRight(std::min(area.right(), window_.rect().right() - 8));
    pick_->setGeometry(area);
    pick_->raise();
}

bool line_rows::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Wheel && watched != pick_) {
        return QApplication::sendEvent(bar_, event);
    }
    const bool pick_shows = watched == pick_ && event->type() == QEvent::Show;
    const bool moved = event->type() == QEvent::Resize || event->type() == QEvent::Move;
    const bool cell_moved =
        moved && current_ >= 0 && watched == codes_[static_cast<std::size_t>(current_)];
    if (pick_shows || cell_moved) place_pick();
    return QObject::eventFilter(watched, event);
}

}  // namespace vantora::ui::desktop
