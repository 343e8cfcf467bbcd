#include "entry/pasted_lines.h"

#include <algorithm>

#include "ui/input_rule.h"

namespace vantora {

namespace {

constexpr std::size_t columns_max = 5;

using fields = std::vector<std::string>;

std::string_view stripped(std::string_view text) {
    constexpr std::string_view around = " \t\r\n\xA0";
    const std::size_t first = text.find_first_not_of(around);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(around) - first + 1);
}

/// "digits, points, commas, one sign in front", as a hand types it; false for anything else.
bool take_number(std::string_view text, const ui::input_rule& rule, std::string& to) {
    text = stripped(text);
    if (text.empty()) return true;
    const std::string_view digits = text.substr(text[0] == '-' || text[0] == '+' ? 1 : 0);
    const bool clean = digits.find_first_not_of("0123456789.,") == std::string_view::npos &&
                       digits.find_first_of("0123456789") != std::string_view::npos;
    const auto admitted = clean ? rule.admit("", text) : std::nullopt;
    if (admitted) to = *admitted;
    return admitted.has_value();
}

/// Fields behind a separator; in quotes it is none, and two quotes are one.
fields separated(std::string_view line, char separator) {
    fields found(1);
    bool quoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char one = line[i];
        if (one == '"' && quoted && i + 1 < line.size() && line[i + 1] == '"') {
            found.back() += line[++i];
        } else if (one == '"' && (quoted || stripped(found.back()).empty())) {
            quoted = !quoted;
        } else if (one == separator && !quoted) {
            found.emplace_back();
        } else {
            found.back() += one;
        }
    }
    return found;
}

bool is_number(std::string_view text) {
    std::string ignored;
    return !text.empty() && take_number(text, ui::input_rule::number(), ignored);
}

/// Columns stand two blanks apart or more; one blank is enough before numbers.
fields aligned(std::string_view line) {
    fields found;
    for (std::size_t at = 0; at < line.size();) {
        const std::size_t end = std::min(line.find("  ", at), line.size());
        found.emplace_back(stripped(line.substr(at, end - at)));
        at = std::min(line.find_first_not_of(' ', end), line.size());
    }
    for (std::size_t i = 0; i < found.size(); ++i) {
        // "AB 12 5 3,50"
        const std::size_t blank = found[i].find(' ');
        if (blank == std::string::npos) continue;
        fields words = separated(found[i], ' ');
        if (!std::all_of(words.begin() + 1, words.end(), is_number)) continue;
        if (i > 0 && !is_number(words[0])) continue;
        found.erase(found.begin() + static_cast<std::ptrdiff_t>(i));
        found.insert(found.begin() + static_cast<std::ptrdiff_t>(i), words.begin(), words.end());
    }
    return found;
}

bool take_discounts(std::string_view text, pasted_line& line) {
    const auto rule = ui::input_rule::small_number();
    text = stripped(text);
    while (!text.empty() && text.back() == '%') text = stripped(text.substr(0, text.size() - 1));
    const std::size_t plus = text.find('+', 1);
    if (plus == std::string_view::npos) return take_number(text, rule, line.discount1);
    return take_number(text.substr(0, plus), rule, line.discount1) &&
           take_number(text.substr(plus + 1), rule, line.discount2);
}

paste_fault take_fields(const fields& from, pasted_line& line) {
    if (from.size() > columns_max) return paste_fault::columns;
    line.code = stripped(from[0]);
    if (line.code.empty()) return paste_fault::no_code;
    const auto number = [](const std::string& text, std::string& to) {
        return take_number(text, ui::input_rule::number(), to);
    };
    bool read = from.size() < 2 || number(from[1], line.quantity);
    if (from.size() > 2) read = read && number(from.back(), line.price);
    if (from.size() > 3) read = read && take_discounts(from[2], line);
    if (from.size() > 4) {
        read = read && line.discount2.empty() &&
               take_number(from[3], ui::input_rule::small_number(), line.discount2);
    }
    return read ? paste_fault::none : paste_fault::number;
}

bool has_decimal_comma(std::string_view field) {
    field = stripped(field);
    return std::ranges::count(field, ',') == 1 && is_number(field);
}

/// "1.234", "-12.500": a thousand and more, or a fraction.
bool is_ambiguous(std::string_view field) {
    if (!field.empty() && (field[0] == '-' || field[0] == '+')) field.remove_prefix(1);
    const std::size_t point = field.find('.');
    const auto digits = [](std::string_view part) {
        return part.find_first_not_of("0123456789") == std::string_view::npos;
    };
    return point != std::string_view::npos && point >= 1 && point <= 3 && field[0] != '0' &&
           field.size() == point + 4 && digits(field.substr(0, point)) &&
           digits(field.substr(point + 1));
}

/// Reads the ambiguous numbers of a line by the paste's convention.
void settle_numbers(fields& of, bool decimal_commas, pasted_line& line) {
    for (std::size_t i = 1; i < of.size(); ++i) {
        const std::string number(stripped(of[i]));
        if (!is_ambiguous(number)) continue;
        if (decimal_commas) {
            std::erase(of[i], '.');
        } else {
            line.doubtful += (line.doubtful.empty() ? "" : ", ") + number;
        }
    }
}

}  // namespace

bool too_much_to_paste(std::string_view text) {
    const auto ends = std::max(std::ranges::count(text, '\n'), std::ranges::count(text, '\r'));
    return text.size() > pasted_bytes_max || static_cast<std::size_t>(ends) > pasted_lines_max;
}

std::vector<pasted_line> read_pasted_lines(std::string_view text, bool from_file) {
    const auto has = [text](char one) { return text.find(one) != std::string_view::npos; };
    std::vector<pasted_line> lines;
    std::vector<std::string_view> wholes;
    for (int number = 1; !text.empty(); ++number) {
        const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        const std::string_view whole = text.substr(0, end);
        const bool pair = text.substr(end).starts_with("\r\n");
        text = text.substr(std::min(end + (pair ? 2 : 1), text.size()));
        if (stripped(whole).empty()) continue;
        pasted_line& line = lines.emplace_back();
        line.number = number;
        line.source = stripped(whole);
        wholes.push_back(whole);
    }
    // Where blanks part a line, its commas are those of decimals.
    const bool commas = from_file && has(',') && std::ranges::all_of(lines, [](const auto& one) {
                            return aligned(one.source).size() == 1;
                        });
    const char separator = has('\t') ? '\t' : has(';') ? ';' : commas ? ',' : ' ';
    std::vector<fields> columns;
    for (const std::string_view whole : wholes) {
        columns.push_back(separator == ' ' ? aligned(stripped(whole))
                                           : separated(whole, separator));
    }
    const bool decimal_commas = std::ranges::any_of(columns, [](const fields& one) {
        return std::any_of(one.begin() + 1, one.end(), has_decimal_comma);
    });
    for (std::size_t i = 0; i < lines.size(); ++i) {
        settle_numbers(columns[i], decimal_commas, lines[i]);
        lines[i].fault = take_fields(columns[i], lines[i]);
    }
    return lines;
}

}  // namespace vantora
