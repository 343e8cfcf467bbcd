#pragma once

#include <cstdint>
#include <optional>

namespace vantora {

// The files count in signed 16-bit integers. This refuses what doesn't fit, so that an
// overflow is an ignored step or a reported error, never a wrapped number.

/// The nearest whole number, ties to the even one; empty outside -32768 to 32767 or for a value
/// that isn't a number.
std::optional<std::int16_t> to_int16(double value);

}  // namespace vantora
