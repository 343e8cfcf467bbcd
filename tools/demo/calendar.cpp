#include "demo/calendar.h"

#include <chrono>

#include "text/dates.h"

namespace vantora::demo {

namespace {

std::chrono::sys_days system_day(int day) {
    using namespace std::chrono;
    return sys_days{year{1899} / December / 30} + days{day};
}

date date_of(int day) {
    const std::chrono::year_month_day parts{system_day(day)};
    return {static_cast<int>(parts.year()), static_cast<int>(static_cast<unsigned>(parts.month())),
            static_cast<int>(static_cast<unsigned>(parts.day()))};
}

}  // namespace

std::string stored_day(int day) {
    return stored_date(date_of(day));
}

std::string shown_day(int day) {
    return date_text(date_of(day));
}

int working_day(int day) {
    const unsigned weekday = std::chrono::weekday{system_day(day)}.iso_encoding();
    return weekday <= 5 ? day : day + static_cast<int>(8 - weekday);
}

}  // namespace vantora::demo
