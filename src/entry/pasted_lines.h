#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantora {

/// Why a pasted line can't be typed.
enum class paste_fault { none, no_code, number, columns };

/// One line of an order as it comes from a spreadsheet. Numbers are as a hand would have typed them
/// into their cells; an empty one has no column or an empty cell.
struct pasted_line {
    int number = 0;      ///< in the pasted text, from 1, blank lines counted
    std::string source;  ///< as it came, without blanks at its ends
    paste_fault fault = paste_fault::none;
    std::string code;
    std::string quantity;
    std::string discount1;
    std::string discount2;
    std::string price;
    /// A number such as "1.234" that was taken for a fraction, and may have been meant for more.
    std::string doubtful;
};

/// What is pasted at once.
inline constexpr std::size_t pasted_lines_max = 20'000;
inline constexpr std::size_t pasted_bytes_max = 4'000'000;

bool too_much_to_paste(std::string_view text);

/// Reads lines whose columns are code; code, quantity; code, quantity, price; code, quantity,
/// discounts ("10" or "10+5"), price; or code, quantity, two discounts, price. Between them stand
/// tabs, else semicolons, in a file else commas, else blanks. Decimal marks are Italian or points,
/// the same in all lines: where a number has a decimal comma, "1.234" is a thousand and more. Blank
/// lines are left out.
std::vector<pasted_line> read_pasted_lines(std::string_view text, bool from_file = false);

}  // namespace vantora
