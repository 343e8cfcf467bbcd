#include "orders/order_seen.h"

#include <cstring>

namespace vantora {

orders_since::orders_since(const rec_tot& now, const rec_tot& then)
    : now_(now), others_at_work_(std::memcmp(&now, &then, sizeof then) != 0) {}

bool orders_since::took_away(const ordine_visto& seen, const rec_orc& row) const {
    if (others_at_work_ && seen.registrazione > now_.quanti) return true;
    const bool same_head = seen.numero.full() == row.numero.full() &&
                           seen.data.full() == row.data.full() && seen.cliente == row.cliente;
    const bool same_stamp = std::memcmp(&seen.data_reg, &row.data_reg, sizeof seen.data_reg) == 0;
    return !same_head && (others_at_work_ || !same_stamp);
}

}  // namespace vantora
