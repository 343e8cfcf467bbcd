#include "desktop/keys/early_keys.h"

#include <QApplication>
#include <QShortcut>
#include <QWidget>

namespace vantora::ui::desktop {

early_keys::early_keys(QWidget& dialog) : dialog_(dialog) {
    qApp->installEventFilter(this);
}

bool early_keys::eventFilter(QObject* watched, QEvent* event) {
    const bool key = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease ||
                     event->type() == QEvent::ShortcutOverride;
    const bool mouse =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease;
    const auto* widget = qobject_cast<QWidget*>(watched);
    if ((!key && !mouse) || !widget || widget->window() != &dialog_) return false;
    if (event->type() == QEvent::KeyPress) {
        kept_.emplace_back(static_cast<QKeyEvent*>(event->clone()));
    }
    event->accept();
    return true;
}

void early_keys::give_to(QWidget& window) {
    // Those that wait in the window system's queue are the dialog's, too.
    QCoreApplication::processEvents();
    qApp->removeEventFilter(this);
    dialog_.hide();
    for (const auto& key : kept_) press_key_in(window, *key);
    kept_.clear();
}

void press_key_in(QWidget& window, QKeyEvent& key) {
    const QKeySequence pressed(key.keyCombination());
    for (auto* shortcut : window.findChildren<QShortcut*>()) {
        if (shortcut->key() != pressed || !shortcut->isEnabled()) continue;
        emit shortcut->activated();
        return;
    }
    QWidget* worked_in = window.focusWidget() ? window.focusWidget() : &window;
    QApplication::sendEvent(worked_in, &key);
    QKeyEvent released(QEvent::KeyRelease, key.key(), key.modifiers(), key.text());
    QApplication::sendEvent(worked_in, &released);
}

}  // namespace vantora::ui::desktop
