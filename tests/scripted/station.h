#pragma once

#include <stdexcept>

#include "support/program_stage.h"

namespace vantora::test {

/// A user who answers every question at once, and remembers what the boxes said.
class answering_user final : public silent_front_end {
 public:
    void run_until(const std::function<bool()>& done) override {
        while (!done()) {
            if (!desk->open_box()) {
                if (!meanwhile) throw std::logic_error("waits for a user who does nothing");
                meanwhile();
                continue;
            }
            told.push_back(desk->open_box()->text);
            if (!desk->answer_box(ui::answer::ok)) {
                desk->answer_box(decide() ? ui::answer::yes : ui::answer::no);
            }
        }
    }
    void let_events_run() override {
        if (meanwhile) meanwhile();
    }
    void box_opened(const ui::message_box&) override {
        if (at_box) at_box();
    }
    ui::desk* desk = nullptr;
    std::function<void()> meanwhile;  ///< done whenever pending events run, or are waited for
    std::function<void()> at_box;     ///< done whenever a box opens
    std::function<bool()> decide = [] { return false; };
    std::vector<std::string> told;
};

/// The program at work on company 1 of a drive folder.
struct station : program_on_drive<answering_user> {
    explicit station(const std::filesystem::path& root) : program_on_drive(root) {
        front.desk = &desk;
    }
};

}  // namespace vantora::test
