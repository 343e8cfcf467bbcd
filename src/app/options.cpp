#include "app/options.h"

#include "command_line/command_line.h"
#include "text/code_page.h"

namespace vantora {

std::optional<int> program_options::read(int count, char** arguments) {
    command_line line(program, purpose);
    std::string moment;
    line.folder("--drive", drive, "cartella che contiene l'albero della suite");
    line.text("--clock", moment, "ferma l'orologio, per esempio a \"2024-05-06 10:20:30\"",
              [](const std::string& text) -> std::string {
                  if (read_clock(text)) return {};
                  return "serve una data con l'ora, come 2024-05-06 10:20:30";
              });
    line.text("--data", data, "cartella delle bozze e delle impostazioni della persona");
    if (takes_script) {
        line.text("--script", script, "esegue i comandi di un file (- per quelli in ingresso)");
    }
    line.text("DITTA", argument, "argomento del menu della suite, per esempio ordini007");
    if (const auto code = line.read(count, arguments)) return code;
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
