#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace vantora::ui {

enum class icon { stop, warning, question, information };
enum class buttons { ok, yes_no, choice };
/// The choices are those of a box with captions of its own, in their order.
enum class answer { choice_1 = 1, choice_2, choice_3, choice_4, ok, yes, no };

/// The title of what the user should heed.
inline constexpr char attention[] = "Attenzione";

/// A question or a message of the system, shown in front of everything until it is answered.
struct message_box {
    std::string text;
    std::string title;
    ui::icon icon = ui::icon::information;
    ui::buttons buttons = ui::buttons::ok;
    /// What Enter gives in a window: no where a yes destroys something.
    answer proposed = answer::yes;
    /// The captions of a choice, at most four; the last one is what Escape gives.
    std::vector<std::string> choices{};
};

/// True if the box has a button for the answer.
inline bool fits(const message_box& box, answer given) {
    switch (box.buttons) {
        case buttons::ok:
            return given == answer::ok;
        case buttons::yes_no:
            return given == answer::yes || given == answer::no;
        case buttons::choice:
            return static_cast<std::size_t>(given) <= box.choices.size();
    }
    return false;
}

}  // namespace vantora::ui
