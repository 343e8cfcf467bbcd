#pragma once

#include <cmath>
#include <cstdint>
#include <optional>

namespace vantora::ui {

/// A colour as the files hold it: 24 bits, red in the low byte.
using colour = std::uint32_t;
inline constexpr colour black = 0;
inline constexpr colour white = 0xFFFFFF;

/// The colour that a number of a file stands for; empty if it is none.
inline std::optional<colour> colour_of(double number) {
    const double nearest = std::nearbyint(number);
    if (!(nearest >= black && nearest <= white)) return {};
    return static_cast<colour>(nearest);
}

}  // namespace vantora::ui
