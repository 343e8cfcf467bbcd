#include "store/day_book.h"

#include <cstdlib>
#include <fstream>

#include "store/station.h"
#include "text/code_page.h"

namespace vantora {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t longest_book = 1U << 20U;
constexpr int kept_books = 5;

/// A folder of the person by the variable that names it, or below the home.
fs::path folder_of_person(const char* variable, const char* below_home) {
    const char* named = std::getenv(variable);
    if (named && fs::path(named).is_absolute()) return named;
    const char* home = std::getenv("HOME");
    return home && *home ? fs::path(home) / below_home : fs::path();
}

}  // namespace

void day_book::turn_page() const {
    std::error_code failed;
    const auto page = [this](int number) {
        return folder_ / (number == 0 ? "libro.txt" : "libro." + std::to_string(number) + ".txt");
    };
    if (fs::file_size(page(0), failed) < longest_book || failed) return;
    for (int number = kept_books - 1; number >= 0; --number) {
        fs::rename(page(number), page(number + 1), failed);
    }
}

void day_book::watch(archivi& files, int numero_azienda, std::function<date_time()> now) const {
    files.book = [book = *this, company = "ditta " + std::to_string(numero_azienda),
                  now = std::move(now)](const std::string& what, const std::string& which,
                                        const std::string& outcome) {
        const date_time moment = now();
        std::string second = std::to_string(moment.second);
        if (second.size() < 2) second.insert(0, "0");
        book.write({date_text(moment.day) + " " + time_text(moment) + ":" + second, this_station(),
                    company, what, which, outcome});
    };
}

void day_book::write(std::initializer_list<std::string_view> fields) const {
    std::string line;
    for (const std::string_view field : fields) {
        if (!line.empty()) line += '\t';
        for (const char one : field) line += static_cast<unsigned char>(one) < ' ' ? ' ' : one;
    }
    std::error_code failed;
    fs::create_directories(folder_, failed);
    turn_page();
    // In one write, so that lines of several programs stand apart.
    std::ofstream book(folder_ / "libro.txt", std::ios::app);
    book << to_utf8(line) + '\n' << std::flush;
}

fs::path settings_file(std::string_view name) {
    const fs::path folder = folder_of_person("XDG_CONFIG_HOME", ".config");
    return folder.empty() ? folder : folder / "vantora-ordini" / name;
}

std::string setting_in(const fs::path& file, std::string_view key) {
    std::ifstream in(file);
    std::string value;
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with(key) && line.substr(key.size()).starts_with('=')) {
            value = trimmed(std::string_view(line).substr(key.size() + 1));
        }
    }
    return value;
}

bool is_switched_off(const fs::path& settings) {
    return setting_in(settings, "LIBRO") == "no";
}

std::optional<day_book> book_of_person() {
    const fs::path folder = folder_of_person("XDG_STATE_HOME", ".local/state");
    if (folder.empty() || is_switched_off(settings_file("libro.conf"))) return {};
    return day_book(folder / "vantora-ordini");
}

}  // namespace vantora
