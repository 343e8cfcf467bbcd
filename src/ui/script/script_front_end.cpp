#include "ui/script/script_front_end.h"

#include <istream>
#include <ostream>
#include <string>

namespace vantora::ui::script {

void script_front_end::begin(desk& on, interpreter& by) {
    desk_ = &on;
    interpreter_ = &by;
}

void script_front_end::run() {
    // The program's own end doesn't end the script: `quit` still gets its reply.
    run_until([this] { return interpreter_->quitting(); });
    write_reply();
}

void script_front_end::run_until(const std::function<bool()>& done) {
    std::string line;
    while (!done()) {
        desk_->rest();
        write_reply();
        if (!std::getline(commands_, line)) return desk_->stop();
        interpreter_->execute(line);
    }
}

void script_front_end::write_reply() {
    if (const auto reply = interpreter_->take_reply()) replies_ << *reply << std::endl;
}

}  // namespace vantora::ui::script
