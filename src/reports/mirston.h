#pragma once

#include "reports/list_cells.h"
#include "reports/sheet_report.h"
#include "reports/sheet_rows.h"

namespace vantora {

/// The customer sheets: for each customer the rows of their orders.
class mirston final : public sheet_report {
 public:
    explicit mirston(program& app);

    /// Columns of `elenco` beside those of all sheets.
    enum { articolo = 4 };

 protected:
    void fill(list_rows& list, const limiti_ordini& orders) override;
    [[nodiscard]] int last_step(const limiti_ordini& orders) const override;

 private:
    struct cliente;
    struct scheda_cliente {
        std::int16_t numero;
        text<40> nome;
    };
    /// A row of an order, as its customer's sheet shows it.
    struct riga {
        bool con_testa;     ///< shows the order's head
        std::size_t testa;  ///< which of `teste`
        std::int16_t articolo;
        text<40> descrizione;
        text<10> descrizione2;
        somme quantita;
    };
    struct raccolta {
        std::vector<scheda_cliente> schede;
        sheet_rows<riga> righe;
        std::vector<testa_ordine> teste;
    };

    bool choose_customers(raccolta& found);
    void take_rows(raccolta& found, int order);
    void list_sheets(list_rows& list, raccolta& found);
    [[nodiscard]] std::string article_text(const riga& row, etichette_articoli& articles) const;
};

}  // namespace vantora
