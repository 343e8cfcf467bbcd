#pragma once

#include "reports/sheet_report.h"

namespace vantora {

/// The customer sheets: for each customer the rows of their orders.
class mirston final : public sheet_report {
 public:
    explicit mirston(program& app);

    /// Columns of `elenco` beside those of all sheets.
    enum { articolo = 4 };

 protected:
    [[nodiscard]] int last_step(const limiti_ordini& orders) const override;
    void fill(list_rows& list, const limiti_ordini& orders) override;

 private:
    struct cliente;
    struct foglio;

    // Both are false if the work ends here.

    /// The sheets in the order of the index.
    bool choose_sheets(std::vector<foglio>& found);
    /// Whose order each is.
    bool read_heads(const limiti_ordini& orders);

    [[nodiscard]] int first_order_of(std::int16_t customer) const {
        return primo_[static_cast<std::uint16_t>(customer)];
    }
    /// The same customer's next order; 0 behind the last.
    [[nodiscard]] int order_behind(int order) const {
        return seguente_[static_cast<std::size_t>(order)];
    }
    /// False if the work ends here.
    bool list_sheet(list_rows& list, const foglio& sheet, article_texts& articles);
    void list_again(list_rows& list, const foglio& sheet) const;

    std::vector<int> primo_;     ///< order of each customer number, 0: none
    std::vector<int> seguente_;  ///< of each order, the next one of its customer
};

}  // namespace vantora
