#pragma once

#include "enquiry/enquiry_screen.h"

namespace vantora {

/// The rows that sold an article in all orders, the newest first: those of one customer, and those
/// of the others. One pass over the blocks; the newest `most` of each kind are kept.
struct prezzi_articolo {
    std::vector<rec_orc> del_cliente;
    std::vector<rec_orc> di_altri;
};

/// `goes_on(passed, of)` is asked behind each order; false ends the search with what was found.
prezzi_articolo find_prices(const archivi& files, std::int16_t articolo, std::int16_t cliente,
                            std::size_t most, const std::function<bool(int, int)>& goes_on);

/// What an article was sold for: to this customer first, then to others, the newest first. Enter
/// takes price and discounts into the row that the screen was opened from.
class prezzi final : public enquiry_screen {
 public:
    explicit prezzi(program& app);

    enum colonna { data, cliente, prezzo, sconti, quantita, ordine, riga, data_stored };

 protected:
    std::string fill(list_rows& list) override;
    void open_row(int row) override;

 private:
    std::vector<rec_orc> listed_;  ///< in the order of their discovery
};

}  // namespace vantora
