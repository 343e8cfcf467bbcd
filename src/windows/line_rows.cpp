#include "windows/line_rows.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QStyle>
#include <QTimer>
#include <QWheelEvent>

#include "desktop/look/tip.h"
#include "windows/layout_pieces.h"

namespace vantora::ui::desktop {

namespace {

constexpr int pick_width = 250;
constexpr int wheel_step = 120;  ///< one notch, in eighths of a degree
constexpr int lines_a_notch = 3;

// Columns, by their place from the left.
constexpr int code_column = 0;
constexpr int description_column = 1;

/// Shows the text of a cell that is too narrow for it. False if it is all in sight.
bool tell_cut_text(QLineEdit& cell, const QHelpEvent& asked) {
    constexpr int margins = 14;  // dots
    const QString text = cell.text();
    if (cell.fontMetrics().horizontalAdvance(text) <= cell.width() - margins) return false;
    show_tip(asked.globalPos(), text, &cell);
    return true;
}

// The pick of the VAT code -----------------------------------------------------------------------

/// The pick of a line's VAT code: it opens as a list at once. Two digits choose that
/// code, one arrow the next one, Enter the highlighted one; Escape leaves without a choice.
class vat_pick final : public QObject {
 public:
    /// `leave`: the user leaves it, by 1 to the next cell, by -1 or by Escape back to the price.
    vat_pick(form_window& window, drop_down& codes, std::function<void(int)> leave)
        : QObject(&window),
          window_(window),
          codes_(codes),
          box_(window.widget(codes)),
          leave_(std::move(leave)) {
        box_->installEventFilter(this);
        box_->view()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::KeyPress) return key_pressed(static_cast<QKeyEvent&>(*event));
        if (watched == box_ && event->type() == QEvent::FocusIn) {
            const auto why = static_cast<QFocusEvent*>(event)->reason();
            if (why != Qt::PopupFocusReason && why != Qt::ActiveWindowFocusReason) {
                first_digit_ = -1;
                QTimer::singleShot(0, this, [this] {
                    if (box_->isVisible() && box_->hasFocus()) box_->showPopup();
                });
            }
        }
        if (watched == box_->view() && event->type() == QEvent::Hide) {
            // A click outside; what a pick closed isn't there any more.
            QTimer::singleShot(0, this, [this] {
                const bool stays = box_->isVisible() && box_->hasFocus();
                if (stays && !box_->view()->isVisible()) leave_(-1);
            });
        }
        return QObject::eventFilter(watched, event);
    }

 private:
    bool key_pressed(const QKeyEvent& key) {
        switch (key.key()) {
            case Qt::Key_Up:
            case Qt::Key_Down: {
                const int code = key.key() == Qt::Key_Up ? key::up : key::down;
                box_->hidePopup();
                window_.act_on(codes_, [this, code] { codes_.press_key(code, {}); });
                return true;
            }
            case Qt::Key_Return:
            case Qt::Key_Enter:
                pick(box_->view()->isVisible() ? box_->view()->currentIndex().row()
                                               : box_->currentIndex());
                return true;
            case Qt::Key_Escape:
            case Qt::Key_Backtab:
            case Qt::Key_Tab:
                box_->hidePopup();
                leave_(key.key() == Qt::Key_Tab ? 1 : -1);
                return true;
            default:
                break;
        }
        if (key.key() < Qt::Key_0 || key.key() > Qt::Key_9) return false;
        digit_typed(key.key() - Qt::Key_0);
        return true;
    }

    void digit_typed(int digit) {
        if (first_digit_ < 0) {
            first_digit_ = digit;
            const int first = std::max(digit * 10 - 1, 0);
            if (first < box_->count())
                box_->view()->setCurrentIndex(box_->model()->index(first, 0));
            return;
        }
        const int code = std::exchange(first_digit_, -1) * 10 + digit;
        if (code < 1 || code > box_->count()) return QApplication::beep();
        pick(code - 1);
    }

    void pick(int entry) {
        box_->hidePopup();
        window_.act_on(codes_, [this, entry] { codes_.pick(entry); });
    }

    form_window& window_;
    drop_down& codes_;
    QComboBox* box_;
    std::function<void(int)> leave_;
    int first_digit_ = -1;
};

}  // namespace

line_rows::line_rows(form_window& window, line_grid& screen)
    : QObject(&window),
      window_(window),
      screen_(screen),
      bar_(window.widget(screen.VScroll1)),
      pick_(window.widget(screen.Combo1)) {
    for (QLabel*& label : numbers_) {
        label = new QLabel(&window);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        sized(label, 3, 8);
        label->setContentsMargins(0, 0, 5, 0);
        set_look(label, "role", "number");
    }
    set_look(pick_, "look", "over");
    // Those who read know it by the column that it lies over.
    caption_of(pick_, "Codice iva", &window)->hide();
    pick_->installEventFilter(this);
    take_wheel_over(bar_);
    connect(bar_, &QScrollBar::valueChanged, this, [this] { show_numbers(); });
    new vat_pick(window, screen.Combo1, [this](int step) {
        const int last = static_cast<int>(columns_.size()) - 1;
        const place code{std::max(current_, 0), last};
        if (step > 0) {
            walk(code, step);
        } else {
            go_to({code.row, last - 1}, step);
        }
    });
}

void line_rows::add_column(text_box (&cells)[line_grid::rows], const char* head) {
    columns_.push_back(cells);
    heads_ << (*head != '\0' ? spoken(head) : heads_.back() + " 2");
    auto& column = cells_.emplace_back();
    for (int row = 0; row < count; ++row) {
        QWidget* cell = window_.widget(cells[row]);
        set_look(cell, "cell", "true");
        column[static_cast<std::size_t>(row)] = cell;
        place_of_[cell] = {row, static_cast<int>(columns_.size()) - 1};
        cell->installEventFilter(this);
    }
}

void line_rows::take_wheel_over(QWidget* area) {
    area->installEventFilter(this);
}

void line_rows::mark(int row) {
    if (row == current_) return;
    for (const int changed : {current_, row}) {
        if (changed < 0) continue;
        // Not by colour alone.
        QFont font = number(changed)->font();
        font.setBold(changed == row);
        number(changed)->setFont(font);
        for (const auto& column : cells_) {
            QWidget* cell = column[static_cast<std::size_t>(changed)];
            set_look(cell, "cell", changed == row ? "current" : "true");
            const QFont grown = cell->font();  // the style sheet takes it back
            cell->style()->unpolish(cell);
            cell->style()->polish(cell);
            cell->setFont(grown);
        }
    }
    current_ = row;
}

void line_rows::go_back() {
    if (last_cell_) last_cell_->setFocus(Qt::ShortcutFocusReason);
}

void line_rows::show_numbers() {
    const int first = bar_->value();
    for (int row = 0; row < count; ++row) {
        number(row)->setText(QString::number(first + row));
        for (std::size_t column = 0; column < cells_.size(); ++column) {
            cells_[column][static_cast<std::size_t>(row)]->setAccessibleName(
                QString("%1, riga %2")
                    .arg(heads_[static_cast<qsizetype>(column)])
                    .arg(first + row));
        }
    }
}

void line_rows::place_pick() {
    if (current_ < 0) return;
    const QWidget* over = cells_.back()[static_cast<std::size_t>(current_)];
    QWidget* all = pick_->parentWidget();
    QRect area(over->mapTo(all, QPoint()), QSize(pick_width, over->height()));
    area.moveRight(std::min(area.right(), all->rect().right() - 8));
    pick_->setGeometry(area);
    pick_->raise();
}

void line_rows::scroll(int lines) {
    scroll_bar& bar = screen_.VScroll1;
    window_.act_on(bar, [&bar, lines] {
        bar.set_value(std::clamp(bar.value() + lines, bar.minimum(), bar.maximum()));
    });
}

void line_rows::wheel(const QWheelEvent& turned) {
    wheel_rest_ += turned.angleDelta().y() * lines_a_notch;
    const int lines = wheel_rest_ / wheel_step;
    wheel_rest_ -= lines * wheel_step;
    if (lines != 0) scroll(-lines);
}

// Keys ----------------------------------------------------------------------------------------

bool line_rows::key_pressed(const place& from, int key) {
    const bool described = from.column == description_column;
    const int column = described ? code_column : from.column;
    switch (key) {
        case Qt::Key_Tab:
            return walk(from, 1);
        case Qt::Key_Backtab:
            return walk(from, -1);
        case Qt::Key_Up:
            go_to({from.row - 1, column}, -1);
            return true;
        case Qt::Key_Down:
            go_to({from.row + 1, column}, 1);
            return true;
        default:
            return false;
    }
}

bool line_rows::walk(place from, int step) {
    const int columns = static_cast<int>(columns_.size());
    do {
        from.column += step;
        if (from.column < 0 || from.column >= columns) {
            from = {from.row + step, step > 0 ? 0 : columns - 1};
        }
    } while (passes_over(from));
    return go_to(from, step);
}

/// The description of a line that has an article: entering it takes the article off.
bool line_rows::passes_over(const place& cell) const {
    if (cell.column != description_column || cell.row < 0 || cell.row >= count) return false;
    const QWidget* code = cells_[code_column][static_cast<std::size_t>(cell.row)];
    return !static_cast<const QLineEdit*>(code)->text().isEmpty();
}

bool line_rows::go_to(place to, int step) {
    if (to.row < 0 || to.row >= count) {
        const int before = bar_->value();
        scroll(step);
        if (bar_->value() == before) return false;
        to.row -= step;
    }
    text_box& cell = columns_[static_cast<std::size_t>(to.column)][to.row];
    window_.act_on(cell, [&cell] { cell.set_focus(); });
    return true;
}

bool line_rows::eventFilter(QObject* watched, QEvent* event) {
    const auto cell = place_of_.constFind(watched);
    const bool is_cell = cell != place_of_.constEnd();
    switch (event->type()) {
        case QEvent::Wheel:
            if (is_cell || watched == pick_) break;
            wheel(static_cast<QWheelEvent&>(*event));
            return true;
        case QEvent::ShortcutOverride:
            // A field would do its own typing again; here the lines come back.
            if (is_cell && static_cast<QKeyEvent&>(*event).matches(QKeySequence::Redo)) {
                event->ignore();
                return true;
            }
            break;
        case QEvent::FocusIn:
            // Before the screen hears of it: the cell of the VAT code gives the focus on at once.
            if (!is_cell) break;
            last_cell_ = static_cast<QWidget*>(watched);
            mark(cell->row);
            break;
        case QEvent::KeyPress: {
            const auto& key = static_cast<QKeyEvent&>(*event);
            if (is_cell && key_pressed(*cell, key.key())) return true;
            break;
        }
        case QEvent::ToolTip:
            if (is_cell && tell_cut_text(static_cast<QLineEdit&>(*watched),
                                         static_cast<const QHelpEvent&>(*event))) {
                return true;
            }
            break;
        case QEvent::Show:
            if (watched == pick_) place_pick();
            break;
        case QEvent::Move:
        case QEvent::Resize:
            if (is_cell && cell->row == current_) place_pick();
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace vantora::ui::desktop
