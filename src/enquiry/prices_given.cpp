#include "enquiry/prices_given.h"

#include "enquiry/order_walk.h"

namespace vantora {

prezzi_articolo find_prices(const archivi& files, std::int16_t articolo, std::int16_t cliente,
                            std::size_t most, const std::function<bool(int, int)>& goes_on) {
    prezzi_articolo all;
    order_walk orders(files);
    while (const auto order = orders.next()) {
        const bool own = order->righe.front().cliente == cliente;
        auto& kept = own ? all.del_cliente : all.di_altri;
        for (const rec_orc& row : order->righe) {
            if (row.articolo == articolo && kept.size() < most) {
                kept.push_back({order->registrazione, row});
            }
        }
        if (!goes_on(orders.passed(), orders.count())) break;
    }
    return all;
}

}  // namespace vantora
