#pragma once

#include "reports/sheet_report.h"

namespace vantora {

/// A row of an order, as its article's sheet shows it.
struct riga_articolo {
    std::size_t testa;  ///< which of `teste`
    std::int16_t cliente;
    somme quantita;
};

/// The article sheets: for each article the rows of the orders that hold it.
class mirstoa final : public sheets_report<etichetta_articolo, riga_articolo> {
 public:
    explicit mirstoa(program& app);

    /// Columns of `elenco` beside those of all sheets.
    enum { cliente = 4 };

 protected:
    void load() override;
    [[nodiscard]] int last_step(const limiti_ordini& orders) const override;
    bool choose_sheets(raccolta& found) override;
    std::vector<int> orders_to_read(const raccolta& found, const limiti_ordini& orders) override;
    void take_rows(raccolta& found, int order) override;
    void list_sheets(list_rows& list, raccolta& found) override;

 private:
    struct articolo;
    struct filtri;
};

}  // namespace vantora
