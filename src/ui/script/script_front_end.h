#pragma once

#include <iosfwd>
#include <optional>

#include "ui/front_end.h"
#include "ui/script/interpreter.h"

namespace vantora::ui::script {

/// Carries out a stream of command lines, one at a time, each answered by one reply.
class script_runner {
 public:
    script_runner(interpreter& by, std::istream& commands, std::ostream& replies)
        : interpreter_(by), commands_(commands), replies_(replies) {}

    /// Writes the reply that is due and carries out the next command. False after `quit` and at
    /// the end of the commands.
    bool step();
    /// Writes the reply that is due.
    void write_reply();

 private:
    interpreter& interpreter_;
    std::istream& commands_;
    std::ostream& replies_;
};

/// The front end without windows: the user is a stream of command lines. Whenever the program
/// waits, the reply that is due is written and the next command read.
class script_front_end final : public front_end {
 public:
    script_front_end(std::istream& commands, std::ostream& replies)
        : commands_(commands), replies_(replies) {}

    /// Tells whose front end this is. Called once, before the program starts.
    void begin(desk& on, interpreter& by);

    /// Serves commands until `quit` or the end of the input. Both end the program, even while it
    /// waits for an answer.
    void run();

    void run_until(const std::function<bool()>& done) override;
    std::optional<answer> answer_at_once(const message_box& box) override {
        return interpreter_->answer_kept_for(box);
    }
    /// A script does nothing by itself.
    void let_events_run() override {}

 private:
    std::istream& commands_;
    std::ostream& replies_;
    desk* desk_ = nullptr;
    interpreter* interpreter_ = nullptr;
    std::optional<script_runner> runner_;
};

}  // namespace vantora::ui::script
