#include "archive/field_cells.h"

#include <cmath>
#include <cstdio>

#include "archive/words.h"
#include "text/dates.h"
#include "text/number_text.h"

namespace vantora::archive {

namespace {

/// The civil date of a day counted from 30 December 1899.
date date_of_day(std::int64_t days) {
    // Years begin in March here, so that a leap day is the last of its year.
    const std::int64_t since = days + 693899;  // from 1 March of the year 0
    const std::int64_t era = since / 146097;
    const std::int64_t of_era = since % 146097;
    const std::int64_t year = (of_era - of_era / 1460 + of_era / 36524 - of_era / 146096) / 365;
    const std::int64_t of_year = of_era - (365 * year + year / 4 - year / 100);
    const std::int64_t month = (5 * of_year + 2) / 153;
    date found;
    found.day = static_cast<int>(of_year - (153 * month + 2) / 5 + 1);
    found.month = static_cast<int>(month < 10 ? month + 3 : month - 9);
    found.year = static_cast<int>(year + era * 400 + (found.month <= 2 ? 1 : 0));
    return found;
}

}  // namespace

std::string cell_text(std::string_view stored) {
    const std::string_view kept = without_padding(stored);
    if (std::ranges::none_of(kept, is_control)) return to_utf8(kept);
    std::string shown;
    for (const char one : kept) shown += is_control(one) ? "\xEF\xBF\xBD" : to_utf8({&one, 1});
    return shown;
}

std::string cell_date(std::string_view stored) {
    const bool digits = stored.find_first_not_of("0123456789") == std::string_view::npos;
    if (!digits || !read_date(date_text_of_stored(stored))) return cell_text(stored);
    std::string iso(stored);
    return iso.insert(6, "-").insert(4, "-");
}

std::string cell_day(double days) {
    constexpr double last = 2958465;  // 31 December 9999
    if (days == 0) return {};
    if (!std::isfinite(days) || days < 1 || days > last) return plain_text(days);
    const auto seconds = std::llround(days * 86400);
    const date day = date_of_day(seconds / 86400);
    const int left = static_cast<int>(seconds % 86400);
    char text[32];
    int size = std::snprintf(text, sizeof text, "%04d-%02d-%02d", day.year, day.month, day.day);
    if (left != 0) {
        size += std::snprintf(text + size, sizeof text - static_cast<std::size_t>(size),
                              " %02d:%02d:%02d", left / 3600, left / 60 % 60, left % 60);
    }
    return {text, static_cast<std::size_t>(size)};
}

}  // namespace vantora::archive
