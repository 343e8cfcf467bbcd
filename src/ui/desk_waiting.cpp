#include <algorithm>
#include <utility>

#include "errors/run_time_errors.h"
#include "ui/desk.h"

namespace vantora::ui {

// How the desk waits for the user, and how the program ends in the midst of it. The end unwinds
// the screens' code as an exception, but never through a front end: each wait of the desk throws
// it anew on its own side.

/// Unwinds whatever runs when the program ends.
struct program_end {};

/// Counts the dispatches that run inside one another; behind the last one, screens that went
/// meanwhile are dropped.
class desk::depth_guard {
 public:
    explicit depth_guard(desk& of) : of_(of) { ++of_.depth_; }
    ~depth_guard() {
        if (--of_.depth_ == 0) of_.buried_.clear();
    }
    depth_guard(const depth_guard&) = delete;
    depth_guard& operator=(const depth_guard&) = delete;

 private:
    desk& of_;
};

void desk::dispatch(const std::function<void()>& action) {
    if (ended_) return;
    const depth_guard inside(*this);
    try {
        action();
        // What a focus that moves sets off comes in the midst of what moves it.
        const bool in_the_midst = depth_ > 1 && boxes_.empty() && modals_.empty() && waiting_ == 0;
        if (active_ && !in_the_midst) active_->settled();
    } catch (const program_end&) {
        // finish() has done what there is to do
    } catch (const std::exception& error) {
        fail(error.what());
    } catch (...) {
        fail("Errore imprevisto");
    }
}

void desk::rest() {
    dispatch([this] {
        for (form* one : forms()) one->rest();
    });
}

bool desk::may_end() {
    return std::ranges::all_of(forms(), [](form* one) { return one->may_end(); });
}

void desk::fail(const std::string& message) {
    finish({true, message});
    front_.report_fatal(message);
}

void desk::finish(ending how) {
    if (ended_) return;
    ended_ = std::move(how);
    boxes_.clear();
    modals_.clear();
    waiting_ = 0;
    if (at_end) at_end();
}

void desk::end_program() {
    finish({});
    throw program_end{};
}

void desk::run_until(const std::function<bool()>& done) {
    front_.run_until([&] { return ended_ || done(); });
    if (ended_) throw program_end{};
}

void desk::wait_until(const std::function<bool()>& done) {
    ++waiting_;
    run_until(done);
    --waiting_;
}

void desk::let_events_run() {
    front_.let_events_run();
    if (ended_) throw program_end{};
}

void desk::show_progress(control& list, double done) {
    front_.progress_changed(list, done);
    if (ended_) throw program_end{};
}

void desk::show_station_awaited(const std::optional<std::string>& station) {
    front_.station_awaited(station);
    if (ended_) throw program_end{};
}

void desk::set_pointer(pointer shape) {
    if (pointer_ == shape) return;
    pointer_ = shape;
    front_.pointer_changed();
}

answer desk::show_box(message_box box) {
    if (const auto given = front_.answer_at_once(box)) return *given;
    open_message message{std::move(box), {}};
    boxes_.push_back(&message);
    front_.box_opened(message.box);
    run_until([&] { return message.given.has_value(); });
    return *message.given;
}

bool desk::answer_box(answer given) {
    if (boxes_.empty() || !fits(boxes_.back()->box, given)) return false;
    boxes_.back()->given = given;
    boxes_.pop_back();
    front_.box_closed();
    return true;
}

const message_box* desk::open_box() const {
    return boxes_.empty() ? nullptr : &boxes_.back()->box;
}

void desk::message(std::string text, std::string title, icon sign) {
    show_box({std::move(text), std::move(title), sign, buttons::ok});
}

bool desk::ask(std::string text, std::string title, icon sign, answer proposed) {
    return show_box({std::move(text), std::move(title), sign, buttons::yes_no, proposed}) ==
           answer::yes;
}

std::optional<std::string> desk::obstacle(const form& which) const {
    if (ended_) return "the program has ended";
    if (!boxes_.empty()) return "a message box is open";
    if (modal() && modal() != &which) return "another screen is modal";
    if (!which.visible()) return "the screen is not visible";
    if (which.at_work()) return "the screen saves or prints";
    return {};
}

std::optional<std::string> desk::obstacle(const control& which) const {
    if (auto why = obstacle(which.owner())) return why;
    if (active_ != &which.owner()) return "the screen is not the active one";
    if (!which.visible()) return "the control is not visible";
    if (!which.enabled()) return "the control is disabled";
    return {};
}

}  // namespace vantora::ui
