#include "desktop/handing_over.h"

#include <QApplication>
#include <QKeyEvent>

#include "desktop/keys/early_keys.h"

namespace vantora::ui::desktop {

namespace {

/// A window system that gives the keyboard to none has had its chance. Milliseconds.
constexpr int longest_stay = 700;

}  // namespace

handing_over::handing_over(std::function<form_window*()> front) : front_(std::move(front)) {
    at_last_.setSingleShot(true);
    at_last_.setInterval(longest_stay);
    connect(&at_last_, &QTimer::timeout, this, [this] { hide_all(); });
}

void handing_over::begin() {
    qApp->installEventFilter(this);
}

void handing_over::leave(form_window& window) {
    const form_window* front = front_();
    if (front && front != &window && front->isActiveWindow()) return window.hide();
    leaving_.emplace_back(&window);
    at_last_.start();
}

void handing_over::stay(const form_window& window) {
    std::erase(leaving_, &window);
}

void handing_over::came(const form_window& window) {
    stay(window);
    hide_all();
}

void handing_over::hide_all() {
    at_last_.stop();
    for (const auto& window : std::exchange(leaving_, {})) {
        if (window) window->hide();
    }
}

bool handing_over::eventFilter(QObject* watched, QEvent* event) {
    const bool key = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    const auto* widget = key ? qobject_cast<QWidget*>(watched) : nullptr;
    if (!widget || !dynamic_cast<form_window*>(widget->window())) return false;
    form_window* front = front_();
    if (!front || front == widget->window() || !front->isVisible()) return false;
    // An override that is taken becomes a plain key.
    if (event->type() == QEvent::KeyPress) press_key_in(*front, static_cast<QKeyEvent&>(*event));
    event->accept();
    return true;
}

}  // namespace vantora::ui::desktop
