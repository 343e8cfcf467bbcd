#pragma once

#include <span>
#include <string>
#include <string_view>

namespace vantora::ui {

/// A cell of a list, in the files' code page.
using list_cells = std::span<const std::string_view>;

/// A row as spreadsheets paste it: cells behind tabs, in UTF-8, with a line feed.
void add_tabbed_row(std::string& text, list_cells row);

/// A row of a CSV file as Italian spreadsheets open it: semicolons between, quotes where a cell
/// needs them, in UTF-8. The file begins with `utf8_mark`.
void add_csv_row(std::string& text, list_cells row);

}  // namespace vantora::ui
