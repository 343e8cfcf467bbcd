#include "store/text/decimal.h"

#include <charconv>
#include <cmath>

namespace vantora {

decimal decimal_of(double value) {
    constexpr int places = 14;  // behind the first digit
    char text[40];
    const auto end = std::to_chars(text, text + sizeof text, std::fabs(value),
                                   std::chars_format::scientific, places)
                         .ptr;
    decimal number;
    number.negative = value < 0;
    number.digits.reserve(places + 1);
    const char* at = text;
    for (; *at != 'e'; ++at) {
        if (*at != '.') number.digits.push_back(*at);
    }
    ++at;
    if (*at == '+') ++at;
    int exponent = 0;
    std::from_chars(at, end, exponent);
    number.point = exponent + 1;
    return number;
}

}  // namespace vantora
