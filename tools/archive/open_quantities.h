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

    /// The same finding; a figure that is no number is the same as itself.
    bool operator==(const wrong_ordered_quantity& other) const {
        const auto same = [](double one, double another) {
            return one == another || (one != one && another != another);
        };
        return articolo == other.articolo && codice == other.codice && same(stored, other.stored) &&
               same(open, other.open);
    }
};

/// What the orders that aren't deleted have open of each article: quantity less fulfilled. A row
/// without a quantity has nothing open. If something was fulfilled of it, its quantity was taken
/// out afterwards, or a text row left the house with a quantity, which the article's figure
/// follows: the row doesn't tell which, so both are right.
class open_quantities {
 public:
    /// For articles 1 to `articles`.
    explicit open_quantities(std::int16_t articles);

    /// Adds all orders of a company: see(registrazione, rows) has a look at each on the way, its
    /// rows without the empty ones at its end. Returns how many couldn't be read.
    template <class See>
    int add_orders(company_files& company, See see) {
        const rec_tot counter = company.counter(contatori::ordini);
        const int orders = company.count(contatori::ordini);
        const auto& from = company.records().orc;
        const int unread = scan_blocks(from, orders, [&](int registrazione, auto order) {
            const auto used = without_empty_end(order);
            see(registrazione, used);
            add(used);
        });
        complete_ = unread == 0 && counter.quanti >= 0 &&
                    from.records_held().value_or(0) >= orders * righe_blocco;
        return unread;
    }

    /// Whether all orders of the company were there. Without them no figure can be told right.
    [[nodiscard]] bool complete() const { return complete_; }

    /// The articles whose figure differs by more than adding up in another order can make it; none
    /// of those that a row tells no number of, and none at all if the orders aren't complete.
    [[nodiscard]] std::vector<wrong_ordered_quantity> compare(
        const channel<rec_art>& articles) const;

 private:
    static std::span<const rec_orc> without_empty_end(std::span<const rec_orc> order);
    void add(std::span<const rec_orc> order);

    struct sum {
        double open = 0;
        double less = 0;   ///< what fulfilled rows without a quantity may have taken off
        double more = 0;   ///< or, taken back, added
        double moved = 0;  ///< of all amounts, whatever their sign: what rounding depends on
        bool known = true;
    };

    std::vector<sum> by_article_;  ///< from 1
    bool complete_ = false;
};

}  // namespace vantora::archive
