#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantora {

struct date {
    int year = 1899;  ///< 100 to 9999
    int month = 12;   ///< 1 to 12
    int day = 30;     ///< 1 to 31

    bool operator==(const date&) const = default;
};

struct date_time {
    date day;
    int hour = 0;    ///< 0 to 23
    int minute = 0;  ///< 0 to 59
    int second = 0;  ///< 0 to 59

    bool operator==(const date_time&) const = default;
};

/// True for a day that the calendar has, in the years 100 to 9999.
bool exists(const date& day);

/// The date in a typed text: day, month, year with "/", "-", "." or a blank between; where that
/// gives no date, month, day, year. One or two digits for day and month, two or four for the
/// year (00 to 29 are 2000s, 30 to 99 1900s). Blanks around are no matter. Empty if it is none.
std::optional<date> read_date(std::string_view text);

/// "2024-05-06 10:20:30", for command lines; empty if it isn't one.
std::optional<date_time> read_clock(std::string_view text);

/// dd/mm/yyyy
std::string date_text(const date& day);

/// hh:mm, 24 hours
std::string time_text(const date_time& moment);

/// yyyymmdd, as the files hold dates.
std::string stored_date(const date& day);

/// dd/mm/yyyy cut out of the eight stored characters, whatever they are; a shorter text counts as
/// padded with blanks.
std::string date_text_of_stored(std::string_view yyyymmdd);

/// yyyymmdd cut out of the ten characters of dd/mm/yyyy, whatever they are (characters 7 to 10,
/// 4 and 5, 1 and 2; what isn't there is left out).
std::string stored_of_date_text(std::string_view text);

/// Days since 30 December 1899, the time of day as the fraction.
double date_number(const date_time& moment);

}  // namespace vantora
