#include "archive/csv_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "text/code_page.h"
#include "text/digit.h"

namespace vantora::archive {

namespace {

bool is_letter(char one) {
    return (one >= 'A' && one <= 'Z') || (one >= 'a' && one <= 'z');
}

constexpr std::string_view month_heads[] = {"GEN", "FEB", "MAR", "APR", "MAG", "GIU", "LUG",
                                            "AGO", "SET", "OTT", "NOV", "DIC", "JAN", "MAY",
                                            "JUN", "JUL", "AUG", "SEP", "OCT", "DEC"};

/// Whether a word may stand in a number or a date.
bool may_be_counted(std::string_view word) {
    const std::string capitals = upper(word);
    return capitals == "E" || capitals == "AM" || capitals == "PM" || capitals == "EUR" ||
           std::ranges::any_of(month_heads, [&](auto head) { return capitals.starts_with(head); });
}

/// Whether a spreadsheet may take it for a number, an amount, a fraction, a time or a date.
bool may_be_number(std::string_view text) {
    if (std::ranges::none_of(text, is_digit)) return false;
    for (std::size_t at = 0; at < text.size();) {
        std::size_t end = at;
        while (end < text.size() && is_letter(text[end])) ++end;
        if (end > at) {
            if (!may_be_counted(text.substr(at, end - at))) return false;
            at = end;
        } else if (is_digit(text[at]) ||
                   std::string_view(" .,:;/-+%()$").find(text[at]) != std::string_view::npos ||
                   static_cast<unsigned char>(text[at]) >= 0x80) {
            ++at;
        } else {
            return false;
        }
    }
    return true;
}

/// Shown by a spreadsheet as it stands, be it taken for a number or not.
bool is_harmless_number(std::string_view text) {
    constexpr std::size_t digits_shown = 11;
    return text.size() <= digits_shown && std::ranges::all_of(text, is_digit) &&
           (text.size() == 1 || text[0] != '0');
}

}  // namespace

std::string kept_as_text(std::string_view text) {
    if (text.empty()) return {};
    // Blanks and line ends in front may be passed over.
    const auto first = std::min(text.find_first_not_of(" \r\n"), text.size() - 1);
    const bool computed = std::string_view("=+-@'\t").find(text[first]) != std::string_view::npos;
    if (!computed && (is_harmless_number(text) || !may_be_number(text))) return std::string(text);
    return "'" + std::string(text);
}

std::string digits_of(double number) {
    if (std::isnan(number)) return "NaN";
    if (std::isinf(number)) return number < 0 ? "-Inf" : "Inf";
    char digits[400];
    const auto end =
        std::to_chars(digits, digits + sizeof digits, number, std::chars_format::fixed);
    return {digits, end.ptr};
}

std::string italian_date(const std::string& iso) {
    if (iso.size() < 10 || iso[4] != '-' || iso[7] != '-') return iso;
    return iso.substr(8, 2) + "/" + iso.substr(5, 2) + "/" + iso.substr(0, 4) + iso.substr(10);
}

}  // namespace vantora::archive
