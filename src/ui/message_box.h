#pragma once

#include <string>

namespace vantora::ui {

enum class icon { stop, warning, question, information };
enum class buttons { ok, yes_no };
enum class answer { ok, yes, no };

/// A question or a message of the system, shown in front of everything until it is answered.
struct message_box {
    std::string text;
    std::string title;
    ui::icon icon = ui::icon::information;
    ui::buttons buttons = ui::buttons::ok;
    /// What Enter gives in a window: no where a yes destroys something.
    answer proposed = answer::yes;
};

/// True if the box has a button for the answer.
inline bool fits(const message_box& box, answer given) {
    return (box.buttons == buttons::ok) == (given == answer::ok);
}

}  // namespace vantora::ui
