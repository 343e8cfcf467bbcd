#include "ui/input_rule.h"

#include <algorithm>
#include <cmath>

#include "text/code_page.h"
#include "text/dates.h"
#include "text/digit.h"
#include "text/number_text.h"

namespace vantora::ui {

namespace {

constexpr std::ptrdiff_t digits_max = 15;

/// "1.234.567": groups of three behind the first one.
bool grouped_by_points(std::string_view whole) {
    const std::size_t first = whole.find('.');
    if (first == 0 || first > 3 || first == std::string_view::npos) return false;
    for (std::size_t at = first; at < whole.size(); at += 4) {
        if (whole[at] != '.' || whole.size() - at < 4) return false;
        if (!std::ranges::all_of(whole.substr(at + 1, 3), is_digit)) return false;
    }
    return true;
}

/// The decimal mark of either keyboard as a point, thousands without theirs. Empty if there are
/// more marks than a number has.
std::optional<std::string> with_one_point(std::string number) {
    const auto points = std::ranges::count(number, '.');
    const auto commas = std::ranges::count(number, ',');
    if (commas > 1 || (commas == 0 && points <= 1)) {
        return commas > 1 ? std::nullopt : std::optional(number);
    }
    const std::size_t comma = std::min(number.find(','), number.size());
    const std::size_t sign = number.find_first_of("+-") == 0 ? 1 : 0;
    if (points > 0) {
        if (!grouped_by_points(std::string_view(number).substr(sign, comma - sign))) return {};
        if (number.find('.', comma) != std::string::npos) return {};
        std::erase(number, '.');
    }
    std::ranges::replace(number, ',', '.');
    return number;
}

std::optional<std::string> as_number(std::string_view typed, const input_rule& rule) {
    std::string kept;
    for (const char one : typed) {
        const bool sign = one == '+' || one == '-';
        if (is_digit(one) || one == '.' || one == ',' || (sign && kept.empty())) kept += one;
    }
    auto number = with_one_point(std::move(kept));
    if (!number) return {};
    const auto leading = std::ranges::find_if(*number, [](char one) { return one >= '1'; });
    if (std::count_if(leading, number->end(), is_digit) > digits_max) return {};
    if (std::abs(number_at_head(*number)) > rule.largest) return {};
    return number;
}

/// Of what was put in, as much as has room.
std::string cut_to(std::size_t longest, std::string_view before, std::string_view now) {
    if (now.size() <= longest || now.size() <= before.size()) return std::string(now);
    const std::string_view put = put_in(before, now);
    const std::size_t over = std::min(now.size() - longest, put.size());
    const auto head = static_cast<std::size_t>(put.data() - now.data());
    std::string cut(now.substr(0, head + put.size() - over));
    return cut.append(now.substr(head + put.size()));
}

}  // namespace

std::string_view put_in(std::string_view before, std::string_view now) {
    const std::size_t same = std::min(before.size(), now.size());
    std::size_t head = 0;
    while (head < same && before[head] == now[head]) ++head;
    std::size_t tail = 0;
    while (tail < same - head && before[before.size() - 1 - tail] == now[now.size() - 1 - tail]) {
        ++tail;
    }
    return now.substr(head, now.size() - head - tail);
}

std::string with_first_cell(std::string_view before, std::string_view now) {
    constexpr std::string_view between = "\t\r\n";
    const std::string_view put = put_in(before, now);
    if (put.find_first_of(between) == std::string_view::npos) return std::string(now);
    const auto begin = static_cast<std::size_t>(put.data() - now.data());
    const std::size_t first = std::min(put.find_first_not_of(between), put.size());
    const std::string_view cell = put.substr(first, put.find_first_of(between, first) - first);
    return std::string(now.substr(0, begin)).append(cell).append(now.substr(begin + put.size()));
}

std::optional<std::string> input_rule::admit(std::string_view before, std::string_view now) const {
    if (holds == content::number && (alone == 0 || now != std::string_view(&alone, 1))) {
        auto number = as_number(now, *this);
        if (!number || (*number == before && now != before)) return {};
        return number;
    }
    std::string cut = cut_to(static_cast<std::size_t>(longest), before, now);
    if (cut == before && now != before) return {};
    return cut;
}

std::optional<std::string> written_out_number(std::string_view typed, const input_rule& rule) {
    if (typed.empty() || (rule.alone != 0 && typed.front() == rule.alone)) return {};
    // What a screen put in with a comma is taken when it is confirmed, not before.
    if (typed.find(',') != std::string_view::npos) return {};
    const double number = number_at_head(typed);
    const double taken = rule.whole ? std::nearbyint(number) : number;
    return taken == 0 ? std::string() : plain_text(taken);
}

std::optional<std::string> doubtful_number(std::string_view typed) {
    const std::size_t sign = typed.find_first_of("+-") == 0 ? 1 : 0;
    if (typed.substr(sign).starts_with('0')) return {};
    if (!grouped_by_points(typed.substr(sign)) || std::ranges::count(typed, '.') != 1) return {};
    std::string thousands(typed);
    std::erase(thousands, '.');
    return "preso come " + plain_text(number_at_head(typed)) + ", non come " +
           plain_text(number_at_head(thousands));
}

std::optional<std::string> written_out_day(std::string_view typed, int this_year) {
    std::string day(trimmed(typed));
    if (day.size() == 4 && std::ranges::all_of(day, is_digit)) {
        day = day.insert(2, "/") + "/" + std::to_string(this_year);
    } else if ((day.size() == 6 || day.size() == 8) && std::ranges::all_of(day, is_digit)) {
        day.insert(4, "/").insert(2, "/");
    } else if (std::ranges::count_if(day, [](char one) { return !is_digit(one); }) == 1) {
        day += "/" + std::to_string(this_year);
    }
    const auto read = read_date(day);
    if (!read) return {};
    return date_text(*read);
}

}  // namespace vantora::ui
