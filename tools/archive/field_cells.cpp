#include "archive/field_cells.h"

#include <chrono>
#include <cmath>
#include <cstdio>

#include "archive/words.h"
#include "text/dates.h"
#include "text/number_text.h"

namespace vantora::archive {

std::string_view without_padding(std::string_view stored) {
    const auto pads = [](char one) { return one == ' ' || one == '\0'; };
    while (!stored.empty() && pads(stored.back())) stored.remove_suffix(1);
    while (!stored.empty() && pads(stored.front())) stored.remove_prefix(1);
    return stored;
}

std::string cell_text(std::string_view stored) {
    const std::string_view kept = without_padding(stored);
    if (std::ranges::none_of(kept, is_control)) return to_utf8(kept);
    std::string shown;
    for (const char one : kept) shown += is_control(one) ? "\xEF\xBF\xBD" : to_utf8({&one, 1});
    return shown;
}

namespace {

/// yyyy-mm-dd of a stored date; what is no date stays as it is.
std::string cell_date(std::string_view stored) {
    const bool digits = stored.find_first_not_of("0123456789") == std::string_view::npos;
    if (!digits || !read_date(date_text_of_stored(stored))) return cell_text(stored);
    std::string iso(stored);
    return iso.insert(6, "-").insert(4, "-");
}

/// The date of a date number, with the time if it has one; empty for 0.
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

table_column column_of(const record_field& field, const naming& names) {
    table_column column{names(field.column, field.english), content::number};
    if (field.type == field_type::words) column.of = content::words;
    if (field.type == field_type::i16) column.of = content::whole;
    if (field.means == meaning::date || field.means == meaning::day) column.of = content::date;
    if (field.means == meaning::customer) column.refers_to = names(table_id::customers);
    if (field.means == meaning::article) column.refers_to = names(table_id::articles);
    return column;
}

}  // namespace

cell_value plain_cell(const any_record& one, const record_field& field, std::size_t which) {
    if (field.type == field_type::words) return cell_text(one.text(field, which));
    const double number = one.number(field, which);
    if (field.type == field_type::i16) return static_cast<std::int64_t>(number);
    return number;
}

bool is_empty(const any_record& one, const record_field& field) {
    if (field.type == field_type::words) return without_padding(one.text(field)).empty();
    return one.number(field) == 0;
}

cell_value meant_cell(const any_record& one, const record_field& field, const referred& to) {
    if (field.means == meaning::date) return cell_date(one.text(field));
    if (field.means == meaning::day) return cell_day(one.number(field));
    if (is_reference(field) && !to.has(field.means, one.number(field))) return std::string();
    return plain_cell(one, field);
}

void add_columns(std::vector<table_column>& into, record_table fields, const naming& names,
                 bool head) {
    for (const record_field& field : fields) {
        if (field.column && field.head == head) into.push_back(column_of(field, names));
    }
}

void add_cells(std::vector<cell_value>& into, const any_record& one, const referred& to,
               bool head) {
    for (const record_field& field : one.fields) {
        if (field.column && field.head == head) into.push_back(meant_cell(one, field, to));
    }
}

}  // namespace vantora::archive
