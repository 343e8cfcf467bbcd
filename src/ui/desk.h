#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/clock.h"
#include "ui/form.h"
#include "ui/front_end.h"
#include "ui/guards.h"
#include "ui/launcher.h"
#include "ui/message_box.h"
#include "ui/printer.h"

namespace vantora::ui {

/// How the program came to its end.
struct ending {
    bool fatal = false;
    std::string message;  ///< of a fatal error
};

/// Everything that is on the user's desk: the screens that are loaded, the active one, the focus,
/// the open message boxes, and the ports to the world outside. Screens call it to show things and
/// to wait; front ends call it to pass on what the user does.
class desk {
 public:
    /// REQUIRES: all of these outlive the desk.
    desk(front_end& front, ui::clock& time, ui::printer& paper, ui::launcher& programs);
    desk(const desk&) = delete;
    desk& operator=(const desk&) = delete;
    ~desk();

    // For screens ---------------------------------------------------------------------------

    /// Shows a box and waits for its answer.
    answer show_box(message_box box);
    void message(std::string text, std::string title, icon sign);
    /// A message that the user should heed.
    void warn(std::string text) { message(std::move(text), attention, icon::warning); }
    /// True for yes. Where a yes destroys something, no is proposed.
    bool ask(std::string text, std::string title, icon sign = icon::question,
             answer proposed = answer::yes);

    /// Waits in a loop, letting events run, until `done` answers true.
    void wait_until(const std::function<bool()>& done);
    /// Lets pending events run once.
    void let_events_run();
    void set_pointer(pointer shape);
    /// Shows how much of a list is there, of 0 to 1; the first call begins it. No events run.
    void show_progress(control& list, double done);
    void end_progress(control& list) { front_.progress_ended(list); }
    /// Tells in passing what needs no answer.
    void note(const std::string& text) { front_.note_shown(text); }
    /// Lets the user save a text in a file of their own; `called` is the name proposed.
    void offer_to_save(const std::string& called, const std::string& text) {
        front_.text_offered(called, text);
    }
    /// Shows which station holds this one up, until called with none. No events run.
    void show_station_awaited(const std::optional<std::string>& station);

    /// Ends the program at once: nothing behind the call runs.
    [[noreturn]] void end_program();

    /// Questions that only protect a person.
    [[nodiscard]] ui::guards& guards() { return guards_; }

    [[nodiscard]] ui::clock& clock() const { return clock_; }
    [[nodiscard]] ui::printer& printer() const { return printer_; }
    [[nodiscard]] ui::launcher& launcher() const { return launcher_; }

    /// Runs when the program ends, before anything is dropped: closes the files.
    std::function<void()> at_end;

    // For screens and their holders ---------------------------------------------------------

    form& load(std::unique_ptr<form> made);
    void show(form& which);
    void show_modal(form& which);
    /// The same in front of the active screen, which notices as little as of a message box: it
    /// isn't activated anew, and its focus comes back.
    void show_over(form& which);
    void hide(form& which);
    void unload(form& which);

    bool give_focus(control& to);
    /// The focus leaves a control that is hidden or disabled.
    void focus_lost_by(control& from);

    // For front ends --------------------------------------------------------------------------

    /// Runs one action of the user. Errors that end the program are caught here; the front end
    /// looks at ended() afterwards.
    void dispatch(const std::function<void()>& action);
    /// The user pauses.
    void rest();
    /// The program is asked to end; false if a screen would rather go on.
    bool may_end();
    /// There is no user any more: the program ends.
    void stop() { finish({}); }
    /// Moves the focus along the Tab order.
    void tab(bool backwards);
    /// The user closes a screen by its title bar.
    void close(form& which);
    /// Answers the open box. False if there is none or it has no such button.
    bool answer_box(answer given);

    /// Why the user can't touch a screen now; empty if they can.
    [[nodiscard]] std::optional<std::string> obstacle(const form& which) const;
    /// Why the user can't touch a control now; empty if they can.
    [[nodiscard]] std::optional<std::string> obstacle(const control& which) const;

    [[nodiscard]] form* active() const { return active_; }
    [[nodiscard]] control* focus() const { return focus_; }
    [[nodiscard]] const message_box* open_box() const;
    [[nodiscard]] form* modal() const { return modals_.empty() ? nullptr : modals_.back(); }
    [[nodiscard]] bool waiting() const { return waiting_ > 0 && boxes_.empty(); }
    [[nodiscard]] pointer pointer_shape() const { return pointer_; }
    [[nodiscard]] const std::optional<ending>& ended() const { return ended_; }
    /// The loaded screens, in the order of their loading.
    [[nodiscard]] std::vector<form*> forms() const;
    [[nodiscard]] form* find(std::string_view name) const;

 private:
    void run_until(const std::function<bool()>& done);
    void activate(form& which, bool anew = true);
    void drop_focus();
    void finish(ending how);
    void fail(const std::string& message);

    class depth_guard;

    front_end& front_;
    ui::clock& clock_;
    ui::printer& printer_;
    ui::launcher& launcher_;
    ui::guards guards_{*this};

    std::vector<std::unique_ptr<form>> loaded_;
    std::vector<std::unique_ptr<form>> buried_;  ///< unloaded, but something of theirs still runs
    std::vector<form*> stacking_;                ///< shown forms, the last activated at the end
    std::vector<form*> modals_;
    form* active_ = nullptr;
    control* focus_ = nullptr;

    struct open_message {
        message_box box;
        std::optional<answer> given;
    };
    std::vector<open_message*> boxes_;

    pointer pointer_ = pointer::normal;
    int waiting_ = 0;
    int depth_ = 0;
    std::optional<ending> ended_;
};

}  // namespace vantora::ui
