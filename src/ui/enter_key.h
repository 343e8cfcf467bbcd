#pragma once

#include <functional>
#include <utility>

#include "ui/control.h"

namespace vantora::ui {

/// Enter in a control does this and nothing else; it becomes the control's key event.
inline void on_enter(control& one, std::function<void()> then) {
    one.on_key_press = [then = std::move(then)](key_event& pressed) {
        if (pressed.code != key::enter) return;
        pressed.swallow();
        then();
    };
}

/// Enter in a field moves on to another one.
inline void enter_moves(control& from, control& to) {
    on_enter(from, [&to] { to.set_focus(); });
}

}  // namespace vantora::ui
