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
};

/// Reads lines whose columns are code; code, quantity; code, quantity, price; code, quantity,
/// discounts ("10" or "10+5"), price; or code, quantity, two discounts, price. Between them stand
/// tabs, else semicolons, else blanks. Decimal marks are Italian or points. Blank lines are left
/// out.
std::vector<pasted_line> read_pasted_lines(std::string_view text);

}  // namespace vantora
