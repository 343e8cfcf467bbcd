#pragma once

#include "reports/key_range.h"
#include "reports/list_cells.h"
#include "reports/sheet_report.h"
#include "reports/sheet_rows.h"

namespace vantora {

/// The article sheets: for each article the rows of the orders that hold it.
class mirstoa final : public sheet_report {
 public:
    explicit mirstoa(program& app);

    /// Columns of `elenco` beside those of all sheets.
    enum { cliente = 4 };

 protected:
    void load() override;
    void fill(list_rows& list, const limiti_ordini& orders) override;
    [[nodiscard]] int last_step(const limiti_ordini& orders) const override;

 private:
    struct articolo;
    struct filtri;
    struct scheda_articolo {
        std::int16_t numero;
        etichetta_articolo etichetta;
    };
    /// A row of an order, as its article's sheet shows it.
    struct riga {
        std::size_t testa;  ///< which of `teste`
        std::int16_t cliente;
        somme quantita;
    };
    struct raccolta {
        std::vector<scheda_articolo> schede;
        sheet_rows<riga> righe;
        std::vector<testa_ordine> teste;
    };

    bool choose_articles(raccolta& found);
    void take_rows(raccolta& found, int order);
    void list_sheets(list_rows& list, raccolta& found);
};

}  // namespace vantora
