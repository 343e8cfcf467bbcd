#pragma once

namespace vantora {

/// '0' to '9', whatever the machine's language.
constexpr bool is_digit(char character) {
    return character >= '0' && character <= '9';
}

}  // namespace vantora
