#include "text/decimal.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>

namespace vantora {

namespace {

constexpr std::size_t places = 15;

/// Room for any number in the exponent form.
using exponent_text = char[40];

decimal taken_apart(std::string_view text, bool negative) {
    decimal number;
    number.negative = negative;
    const std::size_t mark = text.find('e');
    for (const char character : text.substr(0, mark)) {
        if (character != '.') number.digits.push_back(character);
    }
    number.digits.resize(std::max(places, number.digits.size()), '0');
    text.remove_prefix(mark + 1);
    if (text.front() == '+') text.remove_prefix(1);
    int exponent = 0;
    std::from_chars(text.data(), text.data() + text.size(), exponent);
    number.point = exponent + 1;
    return number;
}

}  // namespace

decimal decimal_of(double value) {
    exponent_text text;
    const double size = std::fabs(value);
    // Amounts as people write them have few digits: these are quicker found than fifteen, and are
    // the same, but where a number is too small to keep fifteen.
    if (size >= std::numeric_limits<double>::min()) {
        const auto end =
            std::to_chars(text, text + sizeof text, size, std::chars_format::scientific).ptr;
        const decimal number = taken_apart({text, end}, value < 0);
        if (number.digits.size() == places) return number;
    }
    const auto end = std::to_chars(text, text + sizeof text, size, std::chars_format::scientific,
                                   static_cast<int>(places) - 1)
                         .ptr;
    return taken_apart({text, end}, value < 0);
}

}  // namespace vantora
