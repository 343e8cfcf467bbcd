#include "orders/order_seen.h"

#include <cstring>

#include "store/record_runs.h"
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
    if (seen.registrazione < 2) return false;
    const auto before = static_cast<std::size_t>(seen.registrazione - 1);
    // Others wait meanwhile: many heads are on their way at once.
    records_ahead<rec_orc> heads(orders_, before, [](std::size_t i) {
        return record_run{block_record(static_cast<std::int64_t>(i) + 1, 1), 1};
    });
    rec_orc row;
    for (std::size_t i = 0; i < before; ++i) {
        if (!heads.next(row)) continue;
        const ordine_visto there(static_cast<int>(i) + 1, row);
        if (same_order(seen, there) && same_head(seen, there)) return true;
    }
    return false;
}

}  // namespace vantora
