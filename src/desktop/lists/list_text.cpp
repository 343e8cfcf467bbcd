#include "desktop/lists/list_text.h"

#include <algorithm>

#include "text/code_page.h"
#include "text/csv.h"

namespace vantora::ui {

namespace {

/// What a spreadsheet would take for a formula gets an apostrophe in front; numbers stay numbers.
/// It may pass over blanks and control characters, and takes quotes off what is pasted.
std::string harmless(std::string_view cell) {
    constexpr std::string_view begins_formula = "=@\t\r\n";
    const auto passed_over = [](unsigned char one) { return one <= ' ' || one == '"'; };
    const auto begin = std::ranges::find_if_not(cell, passed_over);
    const std::string_view shown(begin, cell.end());
    const bool is_signed = shown.starts_with('+') || shown.starts_with('-');
    const std::string_view rest = shown.substr(is_signed ? 1 : 0);
    const bool is_number = rest.find_first_not_of("0123456789., ") == std::string_view::npos;
    const bool is_rule = cell.find_first_not_of("-+= ") == std::string_view::npos;
    const bool is_formula = is_signed ? !is_number
                                      : shown.find_first_of(begins_formula) == 0 ||
                                            cell.find_first_of(begins_formula) == 0;
    return (is_formula && !is_rule ? "'" : "") + std::string(cell);
}

}  // namespace

void add_tabbed_row(std::string& text, list_cells row) {
    for (std::size_t i = 0; i < row.size(); ++i) {
        if (i > 0) text += '\t';
        std::string cell = harmless(row[i]);
        std::ranges::replace_if(
            cell, [](char one) { return static_cast<unsigned char>(one) < ' '; }, ' ');
        text += to_utf8(cell);
    }
    text += '\n';
}

void add_csv_row(std::string& text, list_cells row) {
    for (std::size_t i = 0; i < row.size(); ++i) {
        if (i > 0) text += ';';
        add_csv_cell(text, to_utf8(harmless(row[i])), ';');
    }
    text += "\r\n";
}

}  // namespace vantora::ui
