#pragma once

#include <deque>
#include <functional>

#include "ui/desk.h"
#include "ui/script/kept_answers.h"
#include "ui/script/recording_ports.h"

namespace vantora::ui::test {

/// Nobody: nothing is shown, nothing is waited for. Boxes take the answers laid out for them.
class silent_front_end : public front_end {
 public:
    script::kept_answers answers;

    void run_until(const std::function<bool()>&) override {}
    void let_events_run() override {}
    std::optional<answer> answer_at_once(const message_box& box) override {
        return answers.take_for(box);
    }
};

/// A user for tests: while the program waits, does the prepared actions one after the other.
class prepared_user final : public silent_front_end {
 public:
    std::deque<std::function<void()>> actions;
    std::function<void()> pending;  ///< done the next time that pending events run

    void run_until(const std::function<bool()>& done) override {
        while (!done() && !actions.empty()) {
            const auto next = actions.front();
            actions.pop_front();
            next();
        }
    }
    void let_events_run() override {
        if (auto now = std::exchange(pending, nullptr)) now();
    }
};

/// A desk with everything a test needs around it.
struct desk_stage {
    prepared_user user;
    local_clock time;
    script::recording_printer paper;
    script::recording_launcher programs;
    ui::desk desk{user, time, paper, programs};
};

}  // namespace vantora::ui::test
