#pragma once

#include <span>
#include <string>
#include <vector>

#include "archive/company_files.h"

namespace vantora::archive {

/// An article whose `ordinato_clienti` isn't what its open order rows add up to.
struct wrong_ordered_quantity {
    std::int16_t articolo = 0;
    std::string codice;  ///< UTF-8
    double stored = 0;   ///< what the article says
    double open = 0;     ///< what the orders have open of it
};

/// What the orders that aren't deleted have open of each article: quantity less fulfilled. A row
/// without a quantity moved no stock when it was saved, but what was fulfilled of it did.
class open_quantities {
 public:
    /// For articles 1 to `articles`.
    explicit open_quantities(std::int16_t articles);

    /// Adds an order's 200 rows.
    void add(std::span<const rec_orc> order);

    /// The articles whose figure differs by more than adding up in another order can make it.
    [[nodiscard]] std::vector<wrong_ordered_quantity> compare(
        const channel<rec_art>& articles) const;

 private:
    struct sum {
        double open = 0;
        double moved = 0;  ///< of all amounts, whatever their sign: what rounding depends on
    };

    std::vector<sum> by_article_;  ///< from 1
};

}  // namespace vantora::archive
