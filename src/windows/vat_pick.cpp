#include "windows/vat_pick.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QTimer>

#include "desktop/form_window.h"
#include "ui/list_controls.h"

namespace vantora::ui::desktop {

vat_pick::vat_pick(form_window& window, drop_down& codes, std::function<void(int)> leave)
    : QObject(&window),
      window_(window),
      codes_(codes),
      box_(window.widget(codes)),
      leave_(std::move(leave)) {
    box_->installEventFilter(this);
    box_->view()->installEventFilter(this);
}

bool vat_pick::eventFilter(QObject* watched, QEvent* event) {
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

bool vat_pick::key_pressed(const QKeyEvent& key) {
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

void vat_pick::digit_typed(int digit) {
    if (first_digit_ < 0) {
        first_digit_ = digit;
        const int first = std::max(digit * 10 - 1, 0);
        if (first < box_->count()) box_->view()->setCurrentIndex(box_->model()->index(first, 0));
        return;
    }
    const int code = std::exchange(first_digit_, -1) * 10 + digit;
    if (code < 1 || code > box_->count()) return QApplication::beep();
    pick(code - 1);
}

void vat_pick::pick(int entry) {
    box_->hidePopup();
    window_.act_on(codes_, [this, entry] { codes_.pick(entry); });
}

}  // namespace vantora::ui::desktop
