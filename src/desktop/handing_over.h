#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <vector>

#include "desktop/form_window.h"

namespace vantora::ui::desktop {

/// From one window to the next no key is lost: the one before stays on the screen until the next
/// has the keyboard, and what is typed into it meanwhile goes to the next.
class handing_over final : public QObject {
 public:
    /// `front`: the window to which keys belong; null while something else asks for an answer.
    explicit handing_over(std::function<form_window*()> front);

    /// From now on. REQUIRES: the application object stands.
    void begin();
    /// The window goes once another one has the keyboard.
    void leave(form_window& window);
    /// The window is wanted again.
    void stay(const form_window& window);
    /// A window has the keyboard.
    void came(const form_window& window);

    /// No other window comes.
    void hide_all();

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    std::function<form_window*()> front_;
    std::vector<QPointer<form_window>> leaving_;
    QTimer at_last_;
};

}  // namespace vantora::ui::desktop
