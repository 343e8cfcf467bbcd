#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ui/clock.h"
#include "ui/desk.h"
#include "ui/script/command.h"
#include "ui/script/kept_answers.h"
#include "ui/script/recording_ports.h"

namespace vantora::ui::script {

struct command_reply;
struct row_range;

/// Carries out command lines on a desk and composes their replies: one JSON object a command, to
/// be written when the program is about to read the next one.
class interpreter {
 public:
    interpreter(ui::desk& desk, local_clock& time, recording_printer& paper,
                recording_launcher& programs);
    interpreter(const interpreter&) = delete;
    interpreter& operator=(const interpreter&) = delete;
    ~interpreter();

    /// Saves a picture of the active window; a front end with windows provides it.
    std::function<bool(const std::filesystem::path&)> shoot;

    /// Carries out a line. The action may block inside and carry out further lines meanwhile; the
    /// reply to this one is then taken before. Empty lines and comments get no reply.
    void execute(std::string_view line);

    /// The reply that is due, with the present state of the desk; empty if there is none.
    std::optional<std::string> take_reply();

    /// The answer that was given in advance for a box that comes up; empty if there is none.
    std::optional<ui::answer> answer_kept_for(const message_box& box) {
        return answers_.take_for(box);
    }

    /// `quit` was given; the program has ended with it.
    [[nodiscard]] bool quitting() const { return quitting_; }

 private:
    using words = std::vector<word>;

    /// Why a command isn't carried out.
    struct refusal {
        std::string why;
    };

    void carry_out(const words& line);
    [[noreturn]] static void refuse(std::string why) { throw refusal{std::move(why)}; }
    void act(const std::function<void()>& action) { desk_.dispatch(action); }

    // What a command names; refused if there is no such thing, or the user can't get at it.
    [[nodiscard]] form& loaded(const std::string& name) const;
    [[nodiscard]] form& reachable(const word& name) const;
    [[nodiscard]] control& find_control(const word& address) const;
    [[nodiscard]] control& touchable(const word& address) const;
    [[nodiscard]] control& focusable(const word& address) const;
    /// A control as one of a kind, else refused.
    template <class Control, class Found>
    static Control& as(Found& found, const char* otherwise) {
        auto* one = dynamic_cast<Control*>(&found);
        if (!one) refuse(otherwise);
        return *one;
    }

    void click(const words& line);
    void cell(const words& line);
    void key(const words& line);
    void type(const words& line);
    void set(const words& line);
    void paste(const words& line);
    void pick(const words& line);
    void scroll(const words& line);
    void date(const words& line);
    void focus(const words& line);
    void activate(const words& line);
    void close(const words& line);
    void answer(const words& line);
    void open(const words& line);
    void quit(const words& line);

    void stop_clock(const words& line);
    void set_printer(const words& line);
    void set_launch(const words& line);
    void set_guards(const words& line);
    void shot(const words& line);

    void get(const words& line);
    void items(const words& line);
    void rows(const words& line);
    void colors(const words& line);
    void controls(const words& line);
    void screens(const words& line);
    void prints(const words& line);
    void launched(const words& line);

    static row_range read_range(const words& line);

    ui::desk& desk_;
    local_clock& clock_;
    recording_printer& printer_;
    recording_launcher& launcher_;
    std::unique_ptr<command_reply> reply_;  ///< null if none is due
    kept_answers answers_;
    bool quitting_ = false;
};

}  // namespace vantora::ui::script
