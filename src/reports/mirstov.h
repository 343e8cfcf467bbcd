#pragma once

#include "reports/report_screen.h"
#include "store/money.h"

namespace vantora {

/// The order valuation: what each order is worth, what of it was shipped, or what is left.
class mirstov final : public report_screen {
 public:
    explicit mirstov(program& app);

    /// Columns of `elenco`.
    enum colonna { ordine, data, descrizione, cliente, valore, registrazione };

 protected:
    void fill(list_rows& list, const limiti_ordini& orders) override;

 private:
    [[nodiscard]] double value_of(std::span<const rec_orc> rows, const valuta& in) const;
};

}  // namespace vantora
