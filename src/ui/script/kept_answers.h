#pragma once

#include <deque>
#include <optional>
#include <utility>
#include <vector>

#include "ui/message_box.h"

namespace vantora::ui::script {

/// A box that was answered without being shown.
struct answered_box {
    message_box box;
    answer given;
};

/// Answers given in advance, each for the next box to come.
class kept_answers {
 public:
    void keep(answer given) { kept_.push_back(given); }

    /// The answer for a box that comes up; empty if the next one isn't for a box of its kind.
    std::optional<answer> take_for(const message_box& box) {
        if (kept_.empty() || !fits(box, kept_.front())) return {};
        const answer given = kept_.front();
        kept_.pop_front();
        answered_.push_back({box, given});
        return given;
    }

    /// The boxes answered since the last call.
    std::vector<answered_box> take_answered() { return std::exchange(answered_, {}); }

 private:
    std::deque<answer> kept_;
    std::vector<answered_box> answered_;
};

}  // namespace vantora::ui::script
