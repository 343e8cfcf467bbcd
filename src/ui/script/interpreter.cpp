#include "ui/script/interpreter.h"

#include <algorithm>

#include "text/code_page.h"
#include "ui/script/replies.h"

namespace vantora::ui::script {

interpreter::interpreter(ui::desk& desk, local_clock& time, recording_printer& paper,
                         recording_launcher& programs)
    : desk_(desk), clock_(time), printer_(paper), launcher_(programs) {}

interpreter::~interpreter() = default;

void interpreter::execute(std::string_view line) {
    const std::size_t first = line.find_first_not_of(" \t\r");
    if (first == std::string_view::npos || line[first] == '#') return;
    reply_ = std::make_unique<command_reply>();
    try {
        const auto read = split_words(line);
        if (!read || read->empty()) refuse("the command line can't be read");
        carry_out(*read);
    } catch (const refusal& refused) {
        reply_->error = refused.why;
    }
}

void interpreter::carry_out(const words& line) {
    struct command {
        std::string_view name;
        std::size_t least_words;  ///< behind the name
        std::size_t most_words;
        void (interpreter::*run)(const words&);
    };
    static constexpr command commands[] = {
        {"click", 1, 1, &interpreter::click},       {"cell", 3, 3, &interpreter::cell},
        {"key", 2, 2, &interpreter::key},           {"type", 2, 2, &interpreter::type},
        {"set", 2, 2, &interpreter::set},           {"pick", 2, 2, &interpreter::pick},
        {"scroll", 2, 2, &interpreter::scroll},     {"date", 2, 2, &interpreter::date},
        {"focus", 1, 1, &interpreter::focus},       {"activate", 1, 1, &interpreter::activate},
        {"close", 1, 1, &interpreter::close},       {"answer", 1, 1, &interpreter::answer},
        {"open", 1, 1, &interpreter::open},         {"quit", 0, 0, &interpreter::quit},
        {"clock", 1, 1, &interpreter::stop_clock},  {"printer", 0, 2, &interpreter::set_printer},
        {"launch", 1, 1, &interpreter::set_launch}, {"guards", 1, 1, &interpreter::set_guards},
        {"shot", 1, 1, &interpreter::shot},         {"get", 1, 1, &interpreter::get},
        {"items", 1, 1, &interpreter::items},       {"rows", 1, 3, &interpreter::rows},
        {"colors", 1, 3, &interpreter::colors},     {"controls", 1, 1, &interpreter::controls},
        {"screens", 0, 0, &interpreter::screens},   {"prints", 0, 0, &interpreter::prints},
        {"launched", 0, 0, &interpreter::launched}, {"paste", 2, 2, &interpreter::paste},
    };
    const std::string& name = line[0].text;
    const auto* known = std::ranges::find(commands, name, &command::name);
    if (known == std::end(commands)) refuse("there is no such command");
    if (desk_.ended() && name != "quit") refuse("the program has ended");
    const std::size_t given = line.size() - 1;
    if (given < known->least_words || given > known->most_words) {
        refuse("the command has too many or too few words");
    }
    (this->*known->run)(line);
}

std::optional<std::string> interpreter::take_reply() {
    if (!reply_) return {};
    const auto due = std::move(reply_);
    return compose(std::move(*due), desk_, answers_.take_answered());
}

form& interpreter::loaded(const std::string& name) const {
    form* screen = desk_.find(from_utf8(name));
    if (!screen) refuse("the screen is not loaded");
    return *screen;
}

form& interpreter::reachable(const word& name) const {
    form& screen = loaded(name.text);
    if (const auto why = desk_.obstacle(screen)) refuse(*why);
    return screen;
}

control& interpreter::find_control(const word& text) const {
    const auto where = read_address(text.text);
    if (!where) refuse("this is no address of a control");
    control* found = loaded(where->screen).find(from_utf8(where->control), where->index);
    if (!found) refuse("the screen has no such control");
    return *found;
}

control& interpreter::touchable(const word& text) const {
    control& found = find_control(text);
    if (const auto why = desk_.obstacle(found)) refuse(*why);
    return found;
}

control& interpreter::focusable(const word& text) const {
    control& found = touchable(text);
    if (!found.focusable()) refuse("the control can't take the focus");
    return found;
}

}  // namespace vantora::ui::script
