#include "ui/script/interpreter.h"

#include "text/code_page.h"
#include "ui/script/replies.h"

namespace vantora::ui::script {

struct interpreter::command {
    std::string_view name;
    std::size_t least_words;  ///< behind the name
    std::size_t most_words;
    void (interpreter::*run)(const words&);
};

const std::vector<interpreter::command>& interpreter::commands() {
    static const std::vector<command> all = {
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
    return all;
}

interpreter::interpreter(ui::desk& desk, local_clock& time, recording_printer& paper,
                         recording_launcher& programs)
    : desk_(desk), clock_(time), printer_(paper), launcher_(programs) {}

interpreter::~interpreter() = default;

void interpreter::execute(std::string_view line) {
    const std::size_t first = line.find_first_not_of(" \t\r");
    if (first == std::string_view::npos || line[first] == '#') return;
    reply_ = std::make_unique<command_reply>();
    const auto read = split_words(line);
    if (!read || read->empty()) return refuse("the command line can't be read");
    carry_out(*read);
}

void interpreter::carry_out(const words& line) {
    for (const command& known : commands()) {
        if (known.name != line[0].text) continue;
        if (desk_.ended() && known.name != "quit") return refuse("the program has ended");
        const std::size_t given = line.size() - 1;
        if (given < known.least_words || given > known.most_words) {
            return refuse("the command has too many or too few words");
        }
        (this->*known.run)(line);
        return;
    }
    refuse("there is no such command");
}

void interpreter::refuse(std::string why) {
    reply_->error = std::move(why);
}

std::optional<std::string> interpreter::take_reply() {
    if (!reply_) return {};
    const auto due = std::move(reply_);
    return compose(std::move(*due), desk_, answers_.take_answered());
}

control* interpreter::find_control(const word& text) {
    const auto where = read_address(text.text);
    if (!where) {
        refuse("this is no address of a control");
        return nullptr;
    }
    const form* screen = desk_.find(from_utf8(where->screen));
    if (!screen) {
        refuse("the screen is not loaded");
        return nullptr;
    }
    control* found = screen->find(from_utf8(where->control), where->index);
    if (!found) refuse("the screen has no such control");
    return found;
}

control* interpreter::touchable(const word& text) {
    control* found = find_control(text);
    if (!found) return nullptr;
    if (const auto why = desk_.obstacle(*found)) {
        refuse(*why);
        return nullptr;
    }
    return found;
}

form* interpreter::reachable(const word& text) {
    form* screen = desk_.find(from_utf8(text.text));
    if (!screen) {
        refuse("the screen is not loaded");
        return nullptr;
    }
    if (const auto why = desk_.obstacle(*screen)) {
        refuse(*why);
        return nullptr;
    }
    return screen;
}

bool interpreter::takes_focus(const control& one) {
    if (!one.focusable()) {
        refuse("the control can't take the focus");
        return false;
    }
    return true;
}

}  // namespace vantora::ui::script
