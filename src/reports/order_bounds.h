#pragma once

#include <cstdint>
#include <string_view>

namespace vantora {

/// Which orders a list goes over, both ends included.
struct limiti_ordini {
    int primo = 1;
    int ultimo = 0;

    bool operator==(const limiti_ordini&) const = default;
};

/// The bounds as typed: the whole number nearest to what stands at the head of each text. No order
/// lies beyond 32767, so bounds beyond it, or below -32768, stop there.
limiti_ordini read_limits(std::string_view primo, std::string_view ultimo);

/// Bounds brought back among the orders that there are: the lower one begins at 1, the upper one
/// ends at `orders`, and they don't cross.
limiti_ordini corrected(limiti_ordini typed, std::int16_t orders);

}  // namespace vantora
