#pragma once

#include <string>
#include <vector>

#include "ui/message_box.h"

namespace vantora::ui {

class desk;

/// Questions and refusals that only protect a person from a slip, or from what another station did
/// meanwhile. A window asks them; a script gets what happens without them, unless it switches them
/// on. What keeps an archive whole is no guard and never comes through here.
class guards {
 public:
    explicit guards(desk& on) : desk_(on) {}

    [[nodiscard]] bool on() const { return on_; }
    void switch_to(bool on) { on_ = on; }

    /// Whether to go on: what the user says, or yes without a question where guards are off.
    bool confirm(std::string question, answer proposed = answer::no);

    /// True if the user was told why something isn't done; it is not to be done then.
    bool refuse(std::string why);

    /// What the user chose among some captions, two to four of them; `unasked` where guards are
    /// off. Escape gives the last one.
    answer choose(std::string question, std::vector<std::string> choices, answer unasked);

 private:
    desk& desk_;
    bool on_ = false;
};

}  // namespace vantora::ui
