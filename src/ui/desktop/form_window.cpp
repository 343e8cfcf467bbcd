#include "ui/desktop/form_window.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QShortcut>
#include <QToolButton>
#include <algorithm>

#include "ui/desk.h"
#include "ui/desktop/layouts.h"

namespace vantora::ui::desktop {

namespace {

// What the window system's frame takes, about.
constexpr int title_room = 30;
constexpr QSize frame_room(8, title_room + 6);

}  // namespace

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
    button->setToolTip(tip);
    if (*look.shortcut != '\0') add_shortcut(*button, look.shortcut);
    button->setAccessibleName(QString::fromUtf8(look.caption).remove('&'));
    button->setAccessibleDescription(QString::fromUtf8(look.tooltip));
}

void add_shortcut(QAbstractButton& button, const char* keys) {
    auto* shortcut = new QShortcut(QKeySequence(keys), &button);
    QObject::connect(shortcut, &QShortcut::activated, &button, &QAbstractButton::click);
    const QString named = QString("(%1)").arg(shortcut->key().toString(QKeySequence::NativeText));
    button.setToolTip((button.toolTip() + " " + named).trimmed());
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

QSize form_window::size_on(const QRect& room) const {
    QSize size = first_size_;
    if (remember_) {
        size = QSettings().value("windows/" + objectName() + "/size", size).toSize();
    }
    return size.boundedTo(room.size() - frame_room);
}

void form_window::appear(const window_place& place) {
    const bool modal = screen_->desk().modal() == screen_;
    const QScreen* around = place.known ? QGuiApplication::screenAt(place.middle) : nullptr;
    const QRect room = (around ? around : QGuiApplication::primaryScreen())->availableGeometry();
    if (!placed_) resize(size_on(room));
    placed_ = true;
    setWindowModality(modal ? Qt::ApplicationModal : Qt::NonModal);
    setWindowState(place.full_screen && !modal ? windowState() | Qt::WindowMaximized
                                               : windowState() & ~Qt::WindowMaximized);
    QRect inside(QPoint(), normal_size());
    inside.moveCenter(place.known ? place.middle : room.center() + QPoint(0, title_room / 2));
    inside.moveRight(std::min(inside.right(), room.right()));
    inside.moveBottom(std::min(inside.bottom(), room.bottom()));
    inside.moveTopLeft(QPoint(std::max(inside.left(), room.left()),
                              std::max(inside.top(), room.top() + title_room)));
    setGeometry(inside);
    show();
}

QSize form_window::normal_size() const {
    return isMaximized() && normalGeometry().isValid() ? normalGeometry().size() : size();
}

window_place form_window::place() const {
    return {true, geometry().center(), isMaximized()};
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
    if (event->type() == QEvent::Hide && placed_ && remember_) {
        QSettings().setValue("windows/" + objectName() + "/size", normal_size());
    }
    if (event->type() == QEvent::WindowActivate && screen_ && screen_->visible() &&
        screen_->desk().active() && screen_->desk().active() != screen_ &&
        !screen_->desk().obstacle(*screen_)) {
        screen_->desk().dispatch([this] { screen_->show(); });
    }
    return QWidget::event(event);
}

}  // namespace vantora::ui::desktop
