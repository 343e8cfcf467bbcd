#include "mirxpdf/mail_settings.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <map>

#include "text/csv.h"

namespace vantora::mirxpdf {

namespace {

constexpr std::string_view blanks = " \t\r";

std::string_view stripped(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos) return {};
    return text.substr(begin, text.find_last_not_of(blanks) + 1 - begin);
}

struct security {
    std::string_view name;
    sicurezza is;
    int usual_port;
};

constexpr security securities[] = {{"tls", sicurezza::tls, 465},
                                   {"starttls", sicurezza::starttls, 587},
                                   {"nessuna", sicurezza::nessuna, 25}};

/// Takes one setting over. The answer is what is wrong with the value, empty if nothing is.
using taker = std::function<std::string(mail_settings&, std::string_view)>;

taker text_of(std::string mail_settings::*member) {
    return [member](mail_settings& into, std::string_view value) {
        into.*member = value;
        return std::string();
    };
}

std::string take_port(mail_settings& into, std::string_view value) {
    const char* end = value.data() + value.size();
    const auto read = std::from_chars(value.data(), end, into.porta);
    const bool good = read.ec == std::errc() && read.ptr == end;
    return good && into.porta > 0 && into.porta < 65536 ? "" : "la porta va da 1 a 65535";
}

std::string take_security(mail_settings& into, std::string_view value) {
    const auto* found = std::ranges::find(securities, value, &security::name);
    if (found == std::end(securities)) return "la sicurezza è tls, starttls oppure nessuna";
    into.sicurezza = found->is;
    return {};
}

std::string take_text_line(mail_settings& into, std::string_view value) {
    into.testo.append(value).append("\n");
    return {};
}

const std::map<std::string_view, taker> keys = {
    {"server", text_of(&mail_settings::server)},
    {"porta", take_port},
    {"sicurezza", take_security},
    {"utente", text_of(&mail_settings::utente)},
    {"password", text_of(&mail_settings::password)},
    {"mittente", text_of(&mail_settings::mittente)},
    {"oggetto", text_of(&mail_settings::oggetto)},
    {"testo", take_text_line},
};

bool has_control_characters(std::string_view text) {
    return std::ranges::any_of(
        text, [](unsigned char character) { return character < 32 || character == 127; });
}

std::string take_line(mail_settings& into, std::string_view line) {
    if (line.empty() || line.front() == '#') return {};
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) return "manca il segno =";
    const auto key = keys.find(stripped(line.substr(0, equals)));
    if (key == keys.end()) return "chiave sconosciuta";
    const std::string_view value = stripped(line.substr(equals + 1));
    if (has_control_characters(value)) return "il valore contiene caratteri di controllo";
    return key->second(into, value);
}

}  // namespace

std::variant<mail_settings, settings_error> read_mail_settings(std::string_view content) {
    if (content.starts_with(utf8_mark)) content.remove_prefix(utf8_mark.size());
    if (content.size() > settings_size_max) return settings_error{"il file è troppo lungo"};
    mail_settings read;
    for (int number = 1; !content.empty(); ++number) {
        const std::size_t end = std::min(content.find('\n'), content.size());
        const std::string wrong = take_line(read, stripped(content.substr(0, end)));
        if (!wrong.empty()) return settings_error{"riga " + std::to_string(number) + ": " + wrong};
        content.remove_prefix(std::min(end + 1, content.size()));
    }
    if (read.porta == 0) {
        read.porta = std::ranges::find(securities, read.sicurezza, &security::is)->usual_port;
    }
    if (read.testo.empty()) read.testo = "In allegato il documento {documento}.\n";
    if (read.mittente.empty() && read.utente.find('@') != std::string::npos) {
        read.mittente = read.utente;
    }
    if (!read.server.empty() && read.mittente.empty()) return settings_error{"manca il mittente"};
    return read;
}

}  // namespace vantora::mirxpdf
