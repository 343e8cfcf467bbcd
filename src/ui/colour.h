#pragma once

#include <cstdint>

namespace vantora::ui {

/// A colour as the files hold it: 24 bits, red in the low byte.
using colour = std::uint32_t;
inline constexpr colour white = 0xFFFFFF;

}  // namespace vantora::ui
