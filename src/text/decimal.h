#pragma once

#include <string>

namespace vantora {

/// A number as the decimal text that all showing and rounding starts from: 15 significant digits.
struct decimal {
    bool negative = false;
    std::string digits;  ///< 15 digits, the first not 0
    int point = 0;       ///< place of the decimal point in them: 0.00123 has -2, 123.0 has 3
};

/// REQUIRES: the value is finite and not 0.
decimal decimal_of(double value);

}  // namespace vantora
