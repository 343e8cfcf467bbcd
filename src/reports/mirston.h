#pragma once

#include "reports/sheet_report.h"

namespace vantora {

/// A row of an order, as its customer's sheet shows it.
struct riga_cliente {
    bool con_testa;     ///< shows the order's head
    std::size_t testa;  ///< which of `teste`
    std::int16_t articolo;
    text<40> descrizione;
    text<10> descrizione2;
    somme quantita;
};

/// The customer sheets: for each customer the rows of their orders.
class mirston final : public sheets_report<text<40>, riga_cliente> {
 public:
    explicit mirston(program& app);

    /// Columns of `elenco` beside those of all sheets.
    enum { articolo = 4 };

 protected:
    [[nodiscard]] int last_step(const limiti_ordini& orders) const override;
    bool choose_sheets(raccolta& found) override;
    std::vector<int> orders_to_read(const raccolta& found, const limiti_ordini& orders) override;
    [[nodiscard]] bool complete(const raccolta& found) const override;
    void take_rows(raccolta& found, int order) override;
    void list_sheets(list_rows& list, raccolta& found) override;

 private:
    struct cliente;

    int primo_ = 1;                          ///< of the orders read
    std::vector<std::int16_t> proprietari_;  ///< theirs, from that one on
    std::int16_t cliente_ = 0;               ///< whose orders are being read
    int sue_righe_ = 0;                      ///< rows found of this customer
    int righe_piene_ = 0;                    ///< lines of the list that those before take

    [[nodiscard]] std::string article_text(const riga_cliente& row,
                                           etichette_articoli& articles) const;
};

}  // namespace vantora
