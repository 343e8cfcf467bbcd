#include "orders/order_seen.h"

#include <cstring>

namespace vantora {

bool ordine_visto::dated() const {
    constexpr f64le none;
    return std::memcmp(&data_reg, &none, sizeof none) != 0;
}

bool same_order(const ordine_visto& one, const ordine_visto& other) {
    if (one.dated() || other.dated()) {
        return std::memcmp(&one.data_reg, &other.data_reg, sizeof one.data_reg) == 0;
    }
    return one.numero == other.numero && one.data == other.data && one.cliente == other.cliente;
}

orders_since::orders_since(const rec_tot& now, const rec_tot& then)
    : now_(now), others_at_work_(std::memcmp(&now, &then, sizeof then) != 0) {}

bool orders_since::took_away(const ordine_visto& seen, const ordine_visto& there) const {
    if (seen.registrazione > now_.quanti) return true;
    return !same_order(seen, there) && (others_at_work_ || seen.dated() || there.dated());
}

}  // namespace vantora
