#include "desktop/controls/widget_binder.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QPointer>
#include <QShortcutEvent>
#include <QTimer>

#include "ui/desk.h"

namespace vantora::ui::desktop {

namespace {

/// Set while a button is pressed by a key of its own.
constexpr const char* by_key = "by_key";

struct pressed_key {
    int code = 0;
    std::optional<char> character;
};

/// The key in the system's own codes; code 0 for a key that it doesn't know.
pressed_key key_of(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return {key::enter, static_cast<char>(key::enter)};
        case Qt::Key_Backspace:
            return {key::backspace, static_cast<char>(key::backspace)};
        case Qt::Key_Delete:
            return {key::del, {}};
        case Qt::Key_Tab:
            return {key::tab, {}};
        case Qt::Key_F1:
            return {key::f1, {}};
        case Qt::Key_Up:
            return {key::up, {}};
        case Qt::Key_Down:
            return {key::down, {}};
        default:
            break;
    }
    const bool command = (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0 &&
                         (event.modifiers() & Qt::GroupSwitchModifier) == 0;
    const std::string text = taken(event.text());
    if (command || text.size() != 1 || static_cast<unsigned char>(text[0]) < key::blank) return {};
    return {key::of(text[0]), text[0]};
}

}  // namespace

void click_by_key(QAbstractButton& button) {
    const QPointer<QAbstractButton> pressed(&button);
    button.setProperty(by_key, true);
    button.click();
    if (pressed) pressed->setProperty(by_key, false);
}

void widget_binder::act_click(const QAbstractButton& button, const std::function<void()>& click) {
    const bool gives_back = button.property(by_key).toBool();
    act([&] {
        control* before = model_.owner().desk().focus();
        click();
        if (!gives_back || !before || &before->owner() != &model_.owner()) return;
        if (model_.has_focus()) before->set_focus();
        // A command that leads to another screen leaves the work where it was.
        model_.owner().come_back_to(*before, model_);
    });
}

widget_binder::widget_binder(control& model, QWidget* made, user_action act)
    : model_(model), widget_(made), act_(std::move(act)) {
    widget_->setObjectName(shown(model.address()));
    widget_->setFocusPolicy(model.focusable() ? Qt::StrongFocus : Qt::NoFocus);
    widget_->installEventFilter(this);
    model.attach(this);
}

void widget_binder::show_all() {
    for (const aspect what : {aspect::shape, aspect::items, aspect::limits, aspect::text,
                              aspect::value, aspect::content, aspect::position, aspect::enabling}) {
        changed(what);
    }
    show_visibility();
}

void widget_binder::changed(aspect what) {
    const quiet while_showing(*this);
    if (what == aspect::visibility) {
        // A list is hidden only while it is filled; it would lose the focus and flicker.
        if (model_.kind() != control_kind::grid) {
            show_visibility();
        } else {
            QTimer::singleShot(0, this, [this] {
                if (!retired_) show_visibility();
            });
        }
    } else if (what == aspect::enabling) {
        widget_->setEnabled(model_.enabled());
    } else {
        show_value(what);
    }
}

void widget_binder::show_visibility() {
    if (widget_->isHidden() != model_.visible()) return;
    widget_->setVisible(model_.visible());
    // It may have been given the focus before it could be seen.
    if (model_.visible() && model_.has_focus()) widget_->setFocus(Qt::OtherFocusReason);
}

bool widget_binder::key_pressed(QKeyEvent& event) {
    pressed_key pressed = key_of(event);
    if (pressed.code == 0) return false;
    const bool typed =
        pressed.character && static_cast<unsigned char>(*pressed.character) >= key::blank;
    // F1 means nothing to a control that doesn't swallow it: the window opens the manual.
    const bool leave = pressed.code == key::tab || pressed.code == key::f1 || widget_takes(typed);
    bool goes_on = false;
    act([&] {
        goes_on = model_.offer_key(pressed.code, pressed.character);
        if (goes_on && !leave) model_.take_effect(pressed.code, pressed.character);
    });
    return !(goes_on && leave);
}

bool widget_binder::wheel_changes_value() const {
    const auto kind = model_.kind();
    return kind == control_kind::drop_down || kind == control_kind::date_picker ||
           kind == control_kind::scroll_bar;
}

bool widget_binder::eventFilter(QObject* watched, QEvent* event) {
    if (retired_) return false;
    // A window that comes to the front picks a widget of its own; where the focus goes then is the
    // screen's business.
    const bool by_user = event->type() == QEvent::FocusIn &&
                         static_cast<QFocusEvent*>(event)->reason() != Qt::ActiveWindowFocusReason;
    if (by_user && !model_.has_focus()) act([this] { model_.set_focus(); });
    // Who gave the focus on at once mustn't show a cursor.
    if (by_user && !retired_ && !widget_->hasFocus()) return true;
    // The letter with Alt; the toolkit would take the focus first.
    if (event->type() == QEvent::Shortcut && !static_cast<QShortcutEvent*>(event)->isAmbiguous()) {
        if (auto* button = qobject_cast<QAbstractButton*>(widget_)) {
            click_by_key(*button);
            return true;
        }
    }
    if (event->type() == QEvent::FocusOut) {
        const auto why = static_cast<QFocusEvent*>(event)->reason();
        if (why != Qt::ActiveWindowFocusReason && why != Qt::PopupFocusReason) focus_lost();
    }
    if (event->type() == QEvent::KeyPress && !retired_) {
        if (key_pressed(static_cast<QKeyEvent&>(*event))) return true;
    }
    // The wheel changes nothing where the focus isn't; what lies around may scroll.
    if (event->type() == QEvent::Wheel && !widget_->hasFocus() && wheel_changes_value()) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace vantora::ui::desktop
