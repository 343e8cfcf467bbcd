#include "text/dates.h"

#include <array>
#include <chrono>

#include "text/code_page.h"
#include "text/digit.h"

namespace vantora {

namespace {

std::string digits(int value, std::size_t width) {
    std::string text(width, '0');
    for (std::size_t i = width; i-- > 0; value /= 10) text[i] = static_cast<char>('0' + value % 10);
    return text;
}

/// A number of `least` to `most` digits at the position, which moves behind it.
std::optional<int> number_at(std::string_view text, std::size_t& position, std::size_t least,
                             std::size_t most) {
    int value = 0;
    std::size_t count = 0;
    while (position < text.size() && is_digit(text[position])) {
        if (++count > most) return {};
        value = value * 10 + (text[position++] - '0');
    }
    if (count < least) return {};
    return value;
}

bool skip_separator(std::string_view text, std::size_t& position) {
    if (position >= text.size()) return false;
    return std::string_view("/-. ").find(text[position++]) != std::string_view::npos;
}

std::optional<int> year_at(std::string_view text, std::size_t& position) {
    const std::size_t begin = position;
    const auto year = number_at(text, position, 2, 4);
    if (!year || position - begin == 3) return {};
    if (position - begin == 4) return year;
    return *year < 30 ? 2000 + *year : 1900 + *year;
}

}  // namespace

bool exists(const date& day) {
    if (day.year < 100 || day.year > 9999) return false;
    if (day.month < 1 || day.month > 12 || day.day < 1) return false;
    const std::chrono::year_month_day_last last(
        std::chrono::year(day.year),
        std::chrono::month_day_last(std::chrono::month(static_cast<unsigned>(day.month))));
    return day.day <= static_cast<int>(static_cast<unsigned>(last.day()));
}

std::optional<date> read_date(std::string_view text) {
    text = trimmed(text);
    std::size_t position = 0;
    const auto first = number_at(text, position, 1, 2);
    if (!first || !skip_separator(text, position)) return {};
    const auto second = number_at(text, position, 1, 2);
    if (!second || !skip_separator(text, position)) return {};
    const auto year = year_at(text, position);
    if (!year || position != text.size()) return {};
    const date day_first{*year, *second, *first};
    if (exists(day_first)) return day_first;
    const date month_first{*year, *first, *second};
    if (exists(month_first)) return month_first;
    return {};
}

std::optional<date_time> read_clock(std::string_view text) {
    constexpr std::string_view form = "dddd-dd-dd dd:dd:dd";
    if (text.size() != form.size()) return {};
    for (std::size_t i = 0; i < form.size(); ++i) {
        if (form[i] == 'd' ? !is_digit(text[i]) : text[i] != form[i]) return {};
    }
    const auto at = [&](std::size_t begin, std::size_t size) {
        std::size_t position = begin;
        return number_at(text.substr(0, begin + size), position, 1, size).value_or(0);
    };
    const date_time moment{{at(0, 4), at(5, 2), at(8, 2)}, at(11, 2), at(14, 2), at(17, 2)};
    if (!exists(moment.day) || moment.hour > 23 || moment.minute > 59 || moment.second > 59) {
        return {};
    }
    return moment;
}

std::string date_text(const date& day) {
    return digits(day.day, 2) + "/" + digits(day.month, 2) + "/" + digits(day.year, 4);
}

std::string time_text(const date_time& moment) {
    return digits(moment.hour, 2) + ":" + digits(moment.minute, 2);
}

std::string stored_date(const date& day) {
    return digits(day.year, 4) + digits(day.month, 2) + digits(day.day, 2);
}

std::string date_text_of_stored(std::string_view yyyymmdd) {
    std::array<char, 8> stored{};
    stored.fill(' ');
    yyyymmdd.copy(stored.data(), stored.size());
    const std::string_view all(stored.data(), stored.size());
    std::string text;
    text.reserve(10);
    text.append(all.substr(6, 2)).append("/").append(all.substr(4, 2)).append("/");
    return text.append(all.substr(0, 4));
}

std::string stored_of_date_text(std::string_view text) {
    const auto cut = [&](std::size_t begin, std::size_t size) {
        return begin < text.size() ? text.substr(begin, size) : std::string_view{};
    };
    return std::string(cut(6, 4)).append(cut(3, 2)).append(cut(0, 2));
}

double date_number(const date_time& moment) {
    using namespace std::chrono;
    const auto days_of = [](const date& day) {
        return sys_days(year(day.year) / month(static_cast<unsigned>(day.month)) /
                        std::chrono::day(static_cast<unsigned>(day.day)));
    };
    const auto days = (days_of(moment.day) - days_of({1899, 12, 30})).count();
    const int seconds = (moment.hour * 60 + moment.minute) * 60 + moment.second;
    const double fraction = seconds / 86400.0;
    return static_cast<double>(days) + (days < 0 ? -fraction : fraction);
}

}  // namespace vantora
