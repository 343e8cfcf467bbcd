#include "desktop/controls/binder.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QShortcutEvent>
#include <QTimer>

#include "desktop/keys/keys.h"
#include "ui/desk.h"

namespace vantora::ui::desktop {

namespace {

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
    const std::string text = from_qt(event.text());
    if (command || text.size() != 1 || static_cast<unsigned char>(text[0]) < key::blank) return {};
    return {key::of(text[0]), text[0]};
}

}  // namespace

void binder::act_click(const QAbstractButton& button, const std::function<void()>& click) {
    const bool gives_back = clicked_by_key(button);
    act([&] {
        control* before = model_.owner().desk().focus();
        click();
        if (!gives_back || !before || &before->owner() != &model_.owner()) return;
        if (model_.has_focus()) before->set_focus();
        // A command that leads to another screen leaves the work where it was.
        model_.owner().come_back_to(*before, model_);
    });
}

binder::binder(control& model, QWidget* made, const user& by)
    : model_(model), widget_(made), by_(by) {
    widget_->setObjectName(to_qt(model.address()));
    widget_->setFocusPolicy(model.focusable() ? Qt::StrongFocus : Qt::NoFocus);
    widget_->installEventFilter(this);
    model.attach(this);
}

void binder::show_all() {
    for (const aspect what : {aspect::shape, aspect::items, aspect::limits, aspect::text,
                              aspect::value, aspect::content, aspect::position, aspect::enabling}) {
        changed(what);
    }
    show_visibility();
}

void binder::changed(aspect what) {
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

void binder::show_visibility() {
    if (widget_->isHidden() != model_.visible()) return;
    widget_->setVisible(model_.visible());
    // It may have been given the focus before it could be seen.
    if (model_.visible() && model_.has_focus()) widget_->setFocus(Qt::OtherFocusReason);
}

bool binder::key_pressed(QKeyEvent& event) {
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

bool binder::wheel_changes_value() const {
    const auto kind = model_.kind();
    return kind == control_kind::drop_down || kind == control_kind::date_picker ||
           kind == control_kind::scroll_bar;
}

bool binder::eventFilter(QObject* watched, QEvent* event) {
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

std::unique_ptr<binder> make_binder(control& to, QWidget* parent, const user& by) {
    switch (to.kind()) {
        case control_kind::text_box:
        case control_kind::label:
        case control_kind::button:
        case control_kind::picture:
            return bind_text_kind(to, parent, by);
        case control_kind::check_box:
        case control_kind::option_button:
            return bind_choice_kind(to, parent, by);
        case control_kind::list_box:
        case control_kind::drop_down:
            return bind_list_kind(to, parent, by);
        case control_kind::scroll_bar:
        case control_kind::progress_bar:
        case control_kind::date_picker:
            return bind_value_kind(to, parent, by);
        case control_kind::grid:
            return bind_grid(to, parent, by);
    }
    return nullptr;
}

}  // namespace vantora::ui::desktop
