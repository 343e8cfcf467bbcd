#pragma once

#include <string>
#include <string_view>

namespace vantora {

/// What a CSV file in UTF-8 begins with, for spreadsheets that would take it for another encoding.
inline constexpr std::string_view utf8_mark = "\xEF\xBB\xBF";

/// A cell of a CSV file: in quotes where it holds the separator, a quote or a line's end.
inline void add_csv_cell(std::string& to, std::string_view cell, char separator) {
    const bool quoted = cell.find_first_of(std::string("\"\r\n\t") + separator) != cell.npos;
    if (quoted) to += '"';
    for (const char one : cell) to.append(one == '"' ? 2 : 1, one);
    if (quoted) to += '"';
}

}  // namespace vantora
