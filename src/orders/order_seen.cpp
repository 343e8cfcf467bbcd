#include "orders/order_seen.h"

#include <cstring>

#include "store/records/order_block.h"

namespace vantora {

bool ordine_visto::dated() const {
    constexpr f64le none;
    return std::memcmp(&data_reg, &none, sizeof none) != 0;
}

namespace {

bool same_head(const ordine_visto& one, const ordine_visto& other) {
    return one.numero == other.numero && one.data == other.data && one.cliente == other.cliente;
}

}  // namespace

bool same_order(const ordine_visto& one, const ordine_visto& other) {
    if (one.dated() || other.dated()) {
        return std::memcmp(&one.data_reg, &other.data_reg, sizeof one.data_reg) == 0;
    }
    return same_head(one, other);
}

orders_since::orders_since(const rec_tot& now, const rec_tot& then, const channel<rec_orc>& orders)
    : now_(now), orders_(orders), others_at_work_(std::memcmp(&now, &then, sizeof then) != 0) {}

bool orders_since::took_away(const ordine_visto& seen, const ordine_visto& there) const {
    if (seen.registrazione > now_.quanti) return true;
    if (same_order(seen, there)) return !same_head(seen, there) && stands_before(seen);
    return others_at_work_ || seen.dated() || there.dated();
}

bool orders_since::stands_before(const ordine_visto& seen) const {
    for (int block = seen.registrazione - 1; block >= 1; --block) {
        rec_orc row;
        if (!orders_.read(block_record(block, 1), row)) continue;
        const ordine_visto there(block, row);
        if (same_order(seen, there) && same_head(seen, there)) return true;
    }
    return false;
}

}  // namespace vantora
