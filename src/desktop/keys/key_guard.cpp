#include "desktop/keys/key_guard.h"

#include <QApplication>
#include <QKeyEvent>

namespace vantora::ui::desktop {

namespace {

/// Function keys and letters with Ctrl or Alt, but not those that edit a text.
bool is_command(const QKeyEvent& key) {
    if (key.key() >= Qt::Key_F1 && key.key() <= Qt::Key_F35) return true;
    if ((key.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0) return false;
    for (const Qt::Key edits : {Qt::Key_A, Qt::Key_C, Qt::Key_V, Qt::Key_X, Qt::Key_Y, Qt::Key_Z}) {
        if (key.key() == edits && key.modifiers() == Qt::ControlModifier) return false;
    }
    return key.key() >= Qt::Key_0 && key.key() <= Qt::Key_Z;
}

bool is_modifier(int code) {
    return code == Qt::Key_Control || code == Qt::Key_Alt || code == Qt::Key_Shift ||
           code == Qt::Key_AltGr || code == Qt::Key_Meta;
}

}  // namespace

void key_guard::begin() {
    qApp->installEventFilter(this);
}

void key_guard::screen_came_up() {
    ++screen_;
    bringer_ = last_key_;
    since_screen_.start();
}

bool key_guard::repeats(const QKeyEvent& key) {
    if (key.isAutoRepeat()) return true;
    const auto last = let_go_.constFind(key.key());
    if (last == let_go_.constEnd() || key.timestamp() == 0 || last->moment != key.timestamp()) {
        return false;
    }
    down_[key.key()] = last->screen;
    return true;
}

bool key_guard::holds_back(const QKeyEvent& key) {
    const int code = key.key();
    if (is_modifier(code)) return false;
    if (repeats(key)) return is_command(key) || down_.value(code, -1) != screen_;
    if (down_.contains(code)) return false;  // on its way from widget to widget
    const bool in_haste = code == bringer_ && is_command(key) &&
                          since_screen_.elapsed() < QApplication::doubleClickInterval();
    if (in_haste) return true;
    down_[code] = screen_;
    last_key_ = code;
    if (code != bringer_) bringer_ = 0;
    return false;
}

bool key_guard::holds_back_mouse(QEvent::Type what) {
    switch (what) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            click_held_back_ = since_screen_.isValid() &&
                               since_screen_.elapsed() < QApplication::doubleClickInterval();
            return click_held_back_;
        case QEvent::MouseButtonRelease:
            return click_held_back_;
        default:
            return false;
    }
}

bool key_guard::eventFilter(QObject*, QEvent* event) {
    if (holds_back_mouse(event->type())) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::KeyRelease) {
        const auto& key = static_cast<QKeyEvent&>(*event);
        if (key.isAutoRepeat() || !down_.contains(key.key())) return false;
        let_go_[key.key()] = {key.timestamp(), down_.take(key.key())};
        return false;
    }
    if (event->type() == QEvent::ApplicationDeactivate) down_.clear();
    const bool pressed =
        event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (!pressed || !holds_back(static_cast<QKeyEvent&>(*event))) return false;
    // An override that is taken becomes a plain key, which is held back in its turn.
    event->accept();
    return true;
}

}  // namespace vantora::ui::desktop
