#pragma once

#include "enquiry/enquiry_screen.h"
#include "enquiry/prices_given.h"

namespace vantora {

/// What an article was sold for: to this customer first, then to others, the newest first. Enter
/// takes price and discounts into the row that the screen was opened from.
class prezzi final : public enquiry_screen {
 public:
    explicit prezzi(program& app);

    enum colonna { data, cliente, prezzo, sconti, quantita, ordine, riga, data_stored };

 protected:
    std::string fill(list_rows& list) override;
    void open_row(int row) override;
    void run_command(int command, int row) override;

 private:
    std::vector<prezzo_praticato> listed_;  ///< in the order of their discovery
};

}  // namespace vantora
