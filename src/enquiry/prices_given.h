#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "store/archives.h"

namespace vantora {

/// A row of an order that sold an article.
struct prezzo_praticato {
    std::int16_t registrazione = 0;
    rec_orc riga;
};

/// The prices of an article in all orders, the newest first: those of one customer, and those of
/// the others. One pass over the blocks; the newest `most` of each kind are kept.
struct prezzi_articolo {
    std::vector<prezzo_praticato> del_cliente;
    std::vector<prezzo_praticato> di_altri;
};

/// `goes_on(passed, of)` is asked behind each order; false ends the search with what was found.
prezzi_articolo find_prices(const archivi& files, std::int16_t articolo, std::int16_t cliente,
                            std::size_t most, const std::function<bool(int, int)>& goes_on);

}  // namespace vantora
