#include "orders/order_seen.h"

#include <cstring>

namespace vantora {

orders_since::orders_since(const rec_tot& now, const rec_tot& then)
    : now_(now), others_at_work_(std::memcmp(&now, &then, sizeof then) != 0) {}

bool orders_since::took_away(const ordine_visto& seen, const rec_orc& row) const {
    if (seen.registrazione > now_.quanti) return true;
    constexpr f64le none;
    const auto same = [](const f64le& one, const f64le& other) {
        return std::memcmp(&one, &other, sizeof one) == 0;
    };
    if (!same(seen.data_reg, none) || !same(row.data_reg, none)) {
        return !same(seen.data_reg, row.data_reg);
    }
    const bool same_head =
        seen.numero == row.numero && seen.data == row.data && seen.cliente == row.cliente;
    return others_at_work_ && !same_head;
}

}  // namespace vantora
