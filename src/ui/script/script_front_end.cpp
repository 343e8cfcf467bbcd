#include "ui/script/script_front_end.h"

#include <istream>
#include <ostream>
#include <string>

namespace vantora::ui::script {

bool script_runner::step() {
    write_reply();
    std::string line;
    if (interpreter_.quitting() || !std::getline(commands_, line)) return false;
    interpreter_.execute(line);
    return true;
}

void script_runner::write_reply() {
    if (const auto reply = interpreter_.take_reply()) replies_ << *reply << std::endl;
}

void script_front_end::begin(desk& on, interpreter& by) {
    desk_ = &on;
    interpreter_ = &by;
    runner_.emplace(by, commands_, replies_);
}

void script_front_end::run() {
    // The program's own end doesn't end the script: `quit` still gets its reply.
    run_until([this] { return interpreter_->quitting(); });
    runner_->write_reply();
}

void script_front_end::run_until(const std::function<bool()>& done) {
    while (!done()) {
        desk_->rest();
        if (!runner_->step()) return desk_->stop();
    }
}

}  // namespace vantora::ui::script
