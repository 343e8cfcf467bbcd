#include "ui/desktop/form_window.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QToolButton>

#include "ui/desk.h"
#include "ui/desktop/layouts.h"

namespace vantora::ui::desktop {

QIcon picture_named(const char* name) {
    return QIcon(QString(":/icons/%1.svg").arg(name));
}

form_window::form_window(form& screen, user_action act, std::function<void(form&)> close,
                         bool remember)
    : screen_(&screen), act_(std::move(act)), close_(std::move(close)), remember_(remember) {
    setObjectName(shown(screen.name()));
    setWindowTitle(shown(screen.title()));
    for (control* one : screen.controls()) binders_[one] = make_binder(*one, this, act_);
    lay_out(*this);
    set_tab_order();
}

form_window::~form_window() {
    forget_screen();
}

void form_window::forget_screen() {
    if (!screen_) return;
    for (control* one : screen_->controls()) one->attach(nullptr);
    screen_ = nullptr;
    for (auto& [model, one] : binders_) one->retire();
}

QWidget* form_window::widget(const char* name, int index) const {
    const control* one =
        screen_->find(name, index < 0 ? std::optional<int>{} : std::optional<int>(index));
    return &binders_.at(one)->widget();
}

void form_window::dress(const char* name, int index, const command_look& look,
                        Qt::ToolButtonStyle style) {
    auto* button = as<QToolButton>(name, index);
    button->setIcon(picture_named(look.icon));
    button->setText(QString::fromUtf8(look.caption));
    button->setToolButtonStyle(style);
    QString tip = QString::fromUtf8(look.tooltip);
    if (*look.shortcut != '\0') {
        button->setShortcut(QKeySequence(look.shortcut));
        tip += QString(" (%1)").arg(button->shortcut().toString(QKeySequence::NativeText));
    }
    button->setToolTip(tip);
    button->setAccessibleName(QString::fromUtf8(look.caption).remove('&'));
    button->setAccessibleDescription(QString::fromUtf8(look.tooltip));
}

void form_window::set_tab_order() {
    QWidget* before = nullptr;
    for (control* one : screen_->controls()) {
        if (!one->focusable()) continue;
        QWidget* next = &binders_.at(one)->widget();
        if (before) setTabOrder(before, next);
        before = next;
    }
}

void form_window::appear() {
    if (!placed_) {
        placed_ = true;
        QSize size = first_size_;
        if (remember_) {
            size = QSettings().value("windows/" + objectName() + "/size", size).toSize();
        }
        const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
        resize(size.boundedTo(room.size()));
        move(room.center() - rect().center());
    }
    setWindowModality(screen_->desk().modal() == screen_ ? Qt::ApplicationModal : Qt::NonModal);
    show();
}

void form_window::focus_on(control& one) {
    QWidget& target = binders_.at(&one)->widget();
    if (!target.hasFocus()) target.setFocus(Qt::OtherFocusReason);
}

void form_window::closeEvent(QCloseEvent* event) {
    // The screen decides what closing means.
    event->ignore();
    if (screen_) close_(*screen_);
}

bool form_window::event(QEvent* event) {
    if (event->type() == QEvent::Resize && placed_ && remember_ && isVisible()) {
        QSettings().setValue("windows/" + objectName() + "/size", size());
    }
    if (event->type() == QEvent::WindowActivate && screen_ && screen_->visible() &&
        screen_->desk().active() && screen_->desk().active() != screen_ &&
        !screen_->desk().obstacle(*screen_)) {
        screen_->desk().dispatch([this] { screen_->show(); });
    }
    return QWidget::event(event);
}

}  // namespace vantora::ui::desktop
