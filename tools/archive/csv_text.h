#pragma once

#include <string>
#include <string_view>

namespace vantora::archive {

/// A text as a spreadsheet leaves it alone: with an apostrophe in front where it would compute it
/// (= + - @), or read it as another number or a date than it says ("007", "1E5", "3-4", a bar code
/// of more than eleven digits), and where it has an apostrophe there already. Without that one
/// apostrophe it is the text again.
std::string kept_as_text(std::string_view utf8);

/// dd/mm/yyyy of yyyy-mm-dd, with the time behind it if there is one; what isn't one as it is.
std::string italian_date(const std::string& iso);

/// The shortest digits that give the number again, never with an exponent; NaN, Inf, -Inf.
std::string digits_of(double number);

}  // namespace vantora::archive
