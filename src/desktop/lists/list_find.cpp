#include "desktop/lists/list_find.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <algorithm>

#include "desktop/look/style.h"
#include "desktop/look/words.h"
#include "text/code_page.h"
#include "ui/paper/toolkit_values.h"

namespace vantora::ui::desktop {

namespace {

QToolButton* small_button(QWidget* parent, const char* icon, const char* what) {
    auto* button = new QToolButton(parent);
    if (*icon) button->setIcon(picture_named(icon));
    button->setToolTip(what);
    button->setAccessibleName(what);
    button->setFocusPolicy(Qt::NoFocus);
    button->setProperty("look", "small");
    return button;
}

}  // namespace

list_find::list_find(const shown_list& list, list_overlay& overlay, QWidget* parent)
    : QWidget(parent),
      list_(list),
      overlay_(overlay),
      text_(new QLineEdit(this)),
      count_(new QLabel(this)) {
    setObjectName(list.view().objectName() + "_trova");
    text_->setObjectName(list.view().objectName() + "_testo_da_trovare");
    text_->setAccessibleName(words::find_in_list);
    text_->setToolTip("Ctrl+Invio: prende la riga trovata");
    text_->setMaximumWidth(320);
    text_->installEventFilter(this);
    connect(text_, &QLineEdit::textChanged, this, [this] { typed(); });
    text_->setMinimumWidth(text_->fontMetrics().horizontalAdvance("00000000") + 14);
    count_->setMinimumWidth(count_->fontMetrics().horizontalAdvance("00 di 000"));
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 3, 0, 0);
    line->setSpacing(4);
    auto* caption = new QLabel("Trova", this);
    caption->setBuddy(text_);
    line->addWidget(caption);
    line->addWidget(text_, 3);
    auto* previous = small_button(this, "su", "Riga precedente (Maiusc+Invio)");
    auto* next = small_button(this, "giu", "Riga successiva (Invio)");
    auto* close = small_button(this, "", "Chiude la ricerca (Esc)");
    close->setText("×");
    connect(previous, &QToolButton::clicked, this, [this] { walk(-1); });
    connect(next, &QToolButton::clicked, this, [this] { walk(1); });
    connect(close, &QToolButton::clicked, this, [this] { leave(); });
    line->addWidget(previous);
    line->addWidget(next);
    line->addWidget(count_);
    line->addStretch(1);
    line->addWidget(close);
    hide();
}

void list_find::open() {
    if (isHidden()) {
        before_ = QApplication::focusWidget();
        origin_ = std::max(list_.current(), 0);
        show();
    }
    text_->setFocus(Qt::ShortcutFocusReason);
    text_->selectAll();
    typed();
}

void list_find::leave() {
    hide();
    overlay_.show_found({}, -1);
    // In a grid the row found is there to be taken.
    QWidget* back = list_.is_grid() ? &list_.view() : before_.data();
    if (back) back->setFocus(Qt::OtherFocusReason);
}

void list_find::take() {
    const int row = at_;
    leave();
    if (row < 0 || !list_.holds_text(row)) return;
    list_.go_to(row);  // a list box picks what is highlighted
    if (!list_.is_grid()) return;
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r");
    QCoreApplication::sendEvent(&list_.view(), &enter);
}

void list_find::search() {
    if (searched_ != list_.revision()) {
        searched_ = list_.revision();
        texts_.assign(static_cast<std::size_t>(list_.rows()), {});
        const std::vector<int> columns = list_.columns();
        for (int row = 0; row < list_.rows(); ++row) {
            std::string& text = texts_[static_cast<std::size_t>(row)];
            for (const int column : columns) {
                append_searchable(text, list_.text(row, column));
                text += '\0';
            }
        }
    }
    wanted_ = searchable(from_qt(text_->text()));
    found_.clear();
    for (std::size_t row = 0; row < texts_.size() && !wanted_.empty(); ++row) {
        if (texts_[row].find(wanted_) != std::string::npos) found_.push_back(static_cast<int>(row));
    }
}

void list_find::typed() {
    search();
    at_ = -1;
    const auto match = std::ranges::lower_bound(found_, origin_);
    if (!found_.empty()) {
        stand_on(match == found_.end() ? 0 : static_cast<std::size_t>(match - found_.begin()));
    }
    show_count();
}

void list_find::walk(int step) {
    const int here = at_ >= 0 ? at_ : origin_ - (step > 0 ? 1 : 0);
    search();
    if (!found_.empty()) {
        const auto beyond = std::ranges::upper_bound(found_, here);
        const auto from = std::ranges::lower_bound(found_, here);
        const std::size_t last = found_.size() - 1;
        const auto place = [&](auto one) { return static_cast<std::size_t>(one - found_.begin()); };
        if (step > 0) {
            stand_on(beyond == found_.end() ? 0 : place(beyond));
        } else {
            stand_on(from == found_.begin() ? last : place(from) - 1);
        }
        origin_ = at_;
    }
    show_count();
}

void list_find::stand_on(std::size_t match) {
    at_ = found_[match];
    list_.is_grid() ? list_.go_to(at_) : list_.show(at_);
}

void list_find::show_count() {
    QString text;
    if (!wanted_.empty() && found_.empty()) text = "nessuna riga";
    if (!found_.empty()) {
        const auto match = std::ranges::lower_bound(found_, at_) - found_.begin();
        text = QString("%1 di %2").arg(match + 1).arg(found_.size());
    }
    count_->setText(text);
    overlay_.show_found(wanted_, at_);
}

bool list_find::eventFilter(QObject* watched, QEvent* event) {
    const bool override = event->type() == QEvent::ShortcutOverride;
    if (!override && event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    const auto& key = static_cast<QKeyEvent&>(*event);
    const bool enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (!enter && key.key() != Qt::Key_Escape && key.key() != Qt::Key_Up &&
        key.key() != Qt::Key_Down) {
        return QWidget::eventFilter(watched, event);
    }
    event->accept();
    if (override) return true;
    if (key.key() == Qt::Key_Escape) {
        leave();
    } else if (enter && key.modifiers() & Qt::ControlModifier) {
        take();
    } else {
        const bool back = key.key() == Qt::Key_Up || key.modifiers() & Qt::ShiftModifier;
        walk(back ? -1 : 1);
    }
    return true;
}

}  // namespace vantora::ui::desktop
