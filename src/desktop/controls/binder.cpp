#include "desktop/controls/binder.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QShortcutEvent>
#include <QTimer>
#include <map>

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
    static const std::map<int, pressed_key> named = {
        {Qt::Key_Return, {key::enter, static_cast<char>(key::enter)}},
        {Qt::Key_Enter, {key::enter, static_cast<char>(key::enter)}},
        {Qt::Key_Backspace, {key::backspace, static_cast<char>(key::backspace)}},
        {Qt::Key_Delete, {key::del, {}}},
        {Qt::Key_Tab, {key::tab, {}}},
        {Qt::Key_F1, {key::f1, {}}},
        {Qt::Key_Up, {key::up, {}}},
        {Qt::Key_Down, {key::down, {}}}};
    if (const auto known = named.find(event.key()); known != named.end()) return known->second;
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
        control* before = control_.owner().desk().focus();
        click();
        if (!gives_back || !before || &before->owner() != &control_.owner()) return;
        if (control_.has_focus()) before->set_focus();
        // A command that leads to another screen leaves the work where it was.
        control_.owner().come_back_to(*before, control_);
    });
}

binder::binder(control& model, QWidget* made, const user& by)
    : control_(model), made_(made), by_(by) {
    made_->setObjectName(to_qt(model.address()));
    made_->setFocusPolicy(model.focusable() ? Qt::StrongFocus : Qt::NoFocus);
    made_->installEventFilter(this);
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
        if (control_.kind() != control_kind::grid) {
            show_visibility();
        } else {
            QTimer::singleShot(0, this, [this] {
                if (!retired_) show_visibility();
            });
        }
    } else if (what == aspect::enabling) {
        made_->setEnabled(control_.enabled());
    } else {
        show_value(what);
    }
}

void binder::show_visibility() {
    if (made_->isHidden() != control_.visible()) return;
    made_->setVisible(control_.visible());
    // It may have been given the focus before it could be seen.
    if (control_.visible() && control_.has_focus()) made_->setFocus(Qt::OtherFocusReason);
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
        goes_on = control_.offer_key(pressed.code, pressed.character);
        if (goes_on && !leave) control_.take_effect(pressed.code, pressed.character);
    });
    return !(goes_on && leave);
}

bool binder::wheel_changes_value() const {
    const auto kind = control_.kind();
    return kind == control_kind::drop_down || kind == control_kind::date_picker ||
           kind == control_kind::scroll_bar;
}

bool binder::eventFilter(QObject* watched, QEvent* event) {
    if (retired_) return false;
    // A window that comes to the front picks a widget of its own; where the focus goes then is the
    // screen's business.
    const bool by_user = event->type() == QEvent::FocusIn &&
                         static_cast<QFocusEvent*>(event)->reason() != Qt::ActiveWindowFocusReason;
    if (by_user && !control_.has_focus()) act([this] { control_.set_focus(); });
    // Who gave the focus on at once mustn't show a cursor.
    if (by_user && !retired_ && !made_->hasFocus()) return true;
    // The letter with Alt; the toolkit would take the focus first.
    if (event->type() == QEvent::Shortcut && !static_cast<QShortcutEvent*>(event)->isAmbiguous()) {
        if (auto* button = qobject_cast<QAbstractButton*>(made_)) {
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
    if (event->type() == QEvent::Wheel && !made_->hasFocus() && wheel_changes_value()) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

namespace {

std::unique_ptr<binder> bind_by_kind(control& to, QWidget* parent, const user& by) {
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

}  // namespace

std::unique_ptr<binder> make_binder(control& to, QWidget* parent, const user& by) {
    auto made = bind_by_kind(to, parent, by);
    made->show_all();
    return made;
}

}  // namespace vantora::ui::desktop
