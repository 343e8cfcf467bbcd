#pragma once

#include <cstdint>
#include <optional>

namespace vantora {

// The files count in signed 16-bit integers. These helpers refuse what doesn't fit, so that an
// overflow is an ignored step or a reported error, never a wrapped number.

/// The nearest whole number, ties to the even one; empty outside -32768 to 32767 or for a value
/// that isn't a number.
std::optional<std::int16_t> to_int16(double value);

/// left + right; empty when the sum doesn't fit.
std::optional<std::int16_t> add_int16(std::int16_t left, std::int16_t right);

/// left - right; empty when the difference doesn't fit.
std::optional<std::int16_t> subtract_int16(std::int16_t left, std::int16_t right);

}  // namespace vantora
