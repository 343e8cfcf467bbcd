#include "reports/order_bounds.h"

#include <algorithm>

#include "text/int16.h"
#include "text/number_text.h"

namespace vantora {

namespace {

int whole_number(std::string_view text) {
    const double clamped = std::clamp<double>(number_at_head(text), INT16_MIN, INT16_MAX);
    return to_int16(clamped).value_or(0);
}

}  // namespace

limiti_ordini read_limits(std::string_view primo, std::string_view ultimo) {
    return {whole_number(primo), whole_number(ultimo)};
}

limiti_ordini corrected(limiti_ordini typed, std::int16_t orders) {
    const int ultimo = std::min<int>(typed.ultimo, orders);
    return {std::min(std::max(typed.primo, 1), ultimo), ultimo};
}

}  // namespace vantora
