#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantora {

/// Plain text of a number: at most 15 significant digits in their shortest form, the point as
/// decimal mark, no thousands mark, a minus in front. From 1E+15 upward, and for small values
/// that would need more than 15 decimals, in exponent form ("1E+15", "1.5E-20").
std::string plain_text(double value);

/// Plain text with its sign position: a blank in front of a number that isn't negative.
std::string plain_text_signed(double value);

/// The number at the head of a text: blanks, tabs and line feeds are skipped wherever they
/// stand; sign, digits, point and digits, exponent (E or D). Stops at the first other character;
/// nothing readable, or an amount beyond all numbers, gives 0. The comma is no part of a number.
double number_at_head(std::string_view text);

/// The same number if the whole text was needed for it and at least one digit was there.
std::optional<double> whole_number_text(std::string_view text);

/// The largest whole number not above the value.
double integer_part(double value);

/// A value by one of the system's digit masks, on Italian settings: "." groups thousands, ","
/// marks decimals. Known forms: "###,###,###,###" and alike without decimals, "...##0.#0" with
/// any count of places (all places show), "...##0.###" (trailing zeros drop, the mark stays).
/// The value is rounded half away from zero on its 15-digit decimal text. Zero under a mask
/// without "0" is the empty text.
std::string masked(double value, std::string_view mask);

}  // namespace vantora
