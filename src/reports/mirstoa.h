#pragma once

#include "reports/sheet_report.h"
#include "reports/sheet_rows.h"

namespace vantora {

/// A row of an order, as its article's sheet shows it.
struct riga_articolo {
    std::size_t testa;  ///< which of `teste`
    std::int16_t cliente;
    somme quantita;
};

/// The article sheets: for each article the rows of the orders that hold it.
class mirstoa final : public sheet_report {
 public:
    explicit mirstoa(program& app);

    /// Columns of `elenco` beside those of all sheets.
    enum { cliente = 4 };

 protected:
    void load() override;
    [[nodiscard]] int last_step(const limiti_ordini& orders) const override;
    void fill(list_rows& list, const limiti_ordini& orders) override;

 private:
    struct articolo;
    struct filtri;
    struct raccolta;

    /// The sheets in the order of the index. False if the work ends here.
    bool choose_sheets(raccolta& found);
    void take_rows(raccolta& found, int order);
    void list_sheets(list_rows& list, raccolta& found);
};

}  // namespace vantora
