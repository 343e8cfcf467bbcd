#include "text/number_text.h"

#include <cmath>

#include "text/decimal.h"

namespace vantora {

namespace {

constexpr int most_decimals = 15;

void drop_trailing_zeros(std::string& digits) {
    digits.erase(digits.find_last_not_of('0') + 1);
}

std::string exponent_form(const decimal& number, const std::string& digits) {
    std::string text = digits.substr(0, 1);
    if (digits.size() > 1) text.append(".").append(digits, 1);
    const int exponent = number.point - 1;
    text.append(exponent < 0 ? "E-" : "E+");
    const std::string shown = std::to_string(std::abs(exponent));
    return text.append(shown.size() < 2 ? "0" : "").append(shown);
}

}  // namespace

std::string plain_text(double value) {
    if (!std::isfinite(value) || value == 0) return "0";
    const decimal number = decimal_of(value);
    std::string digits = number.digits;
    drop_trailing_zeros(digits);
    const int size = static_cast<int>(digits.size());
    std::string text = number.negative ? "-" : "";
    if (number.point > most_decimals ||
        (number.point < -3 && size - number.point > most_decimals)) {
        return text + exponent_form(number, digits);
    }
    if (number.point <= 0) {
        return text.append("0.").append(static_cast<std::size_t>(-number.point), '0') + digits;
    }
    if (size <= number.point) {
        return text.append(digits).append(static_cast<std::size_t>(number.point - size), '0');
    }
    const auto point = static_cast<std::size_t>(number.point);
    return text.append(digits, 0, point).append(".").append(digits, point);
}

std::string plain_text_signed(double value) {
    std::string text = plain_text(value);
    return text.starts_with('-') ? text : " " + text;
}

double integer_part(double value) {
    return std::floor(value);
}

}  // namespace vantora
