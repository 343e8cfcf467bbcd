#include "app/options.h"

#include <CLI/CLI.hpp>

#include "text/code_page.h"

namespace vantora {

std::optional<int> program_options::read(int count, char** arguments) {
    CLI::App parser(description);
    parser.set_version_flag("--version", VANTORA_VERSION);
    std::string moment;
    parser.add_option("--drive", drive, "folder that holds the suite's tree")
        ->check(CLI::ExistingDirectory);
    parser.add_option("--clock", moment, "stop the clock at a local date and time")
        ->check([](const std::string& text) {
            return read_clock(text) ? std::string() : "expected \"2024-05-06 10:20:30\"";
        });
    parser.add_option("--data", data, "folder for drafts and settings of the person");
    if (takes_script) {
        parser.add_option("--script", script, "carry out the commands of a file (- for input)");
    }
    parser.add_option("ARGUMENT", argument, "argument of the menu program, such as ordini007");
    try {
        parser.parse(count, arguments);
    } catch (const CLI::ParseError& problem) {
        return parser.exit(problem) == 0 ? 0 : 2;
    }
    clock = read_clock(moment);
    argument = from_utf8(argument);
    return {};
}

std::optional<day_book> book_for(const program_options& options, bool by_script) {
    const std::filesystem::path named = options.data;
    if (named.empty()) return by_script ? std::nullopt : book_of_person();
    if (is_switched_off(named / "libro.conf")) return {};
    return day_book(named);
}

int exit_code(const ui::desk& desk) {
    return desk.ended() && desk.ended()->fatal ? 3 : 0;
}

}  // namespace vantora
