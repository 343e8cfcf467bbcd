#include "archive/field_cells.h"

#include <chrono>
#include <cmath>
#include <cstdio>

#include "archive/words.h"
#include "text/dates.h"
#include "text/number_text.h"

namespace vantora::archive {

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
    constexpr std::chrono::sys_days first = std::chrono::year(1899) / 12 / 30;
    const auto seconds = std::llround(days * 86400);
    const std::chrono::year_month_day day = first + std::chrono::days(seconds / 86400);
    const int left = static_cast<int>(seconds % 86400);
    char text[32];
    int size = std::snprintf(text, sizeof text, "%04d-%02u-%02u", int{day.year()},
                             unsigned{day.month()}, unsigned{day.day()});
    if (left != 0) {
        size += std::snprintf(text + size, sizeof text - static_cast<std::size_t>(size),
                              " %02d:%02d:%02d", left / 3600, left / 60 % 60, left % 60);
    }
    return {text, static_cast<std::size_t>(size)};
}

}  // namespace vantora::archive
