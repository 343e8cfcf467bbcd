#include "text/int16.h"

#include <cmath>

namespace vantora {

std::optional<std::int16_t> to_int16(double value) {
    const double nearest = std::nearbyint(value);
    if (!(nearest >= -32768 && nearest <= 32767)) return {};
    return static_cast<std::int16_t>(nearest);
}

std::optional<std::int16_t> add_int16(std::int16_t left, std::int16_t right) {
    return to_int16(left + right);
}

std::optional<std::int16_t> subtract_int16(std::int16_t left, std::int16_t right) {
    return to_int16(left - right);
}

}  // namespace vantora
