#include "text/int16.h"

#include <cmath>

namespace vantora {

std::optional<std::int16_t> to_int16(double value) {
    const double nearest = std::nearbyint(value);
    if (!(nearest >= -32768 && nearest <= 32767)) return {};
    return static_cast<std::int16_t>(nearest);
}

}  // namespace vantora
