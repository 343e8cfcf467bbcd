#pragma once

#include "orders/article_texts.h"
#include "orders/order_rows.h"
#include "reports/report_screen.h"

namespace vantora {

/// Quantities of a row, or of a whole sheet.
struct somme {
    double ordinato = 0;
    double evaso = 0;
};

/// The head of an order, for the rows that show it.
struct testa_ordine {
    testa_ordine() = default;
    explicit testa_ordine(const rec_orc& row)
        : numero(row.numero), data(row.data), testo1(row.testo1) {}

    vantora::text<10> numero;
    vantora::text<8> data;
    vantora::text<40> testo1;
};

/// What article and customer sheets share: they stand in the order of an index, each with the rows
/// of the orders in question and their sums, and are built when the user asks for them.
class sheet_report : public report_screen {
 protected:
    using report_screen::report_screen;

    limiti_ordini limits() override { return correct_limits(); }

    /// Columns that both sheets have at the same place.
    enum colonna { scheda, ordine, data, descrizione, ordinato = 5, evaso, numero };

    static void list_head(list_rows& list, const testa_ordine& head);
    static void list_quantities(list_rows& list, const somme& amounts);
    /// The sums of a sheet, and a blank line behind them.
    static void list_totals(list_rows& list, const somme& sums);

    /// The whole work: the index, then the orders.
    void plan(int entries, const limiti_ordini& orders);
    bool entry_done();  ///< or the head of an order
    bool order_done();
    /// Rows are being listed.
    bool listing();

 private:
    double planned_ = 1;
    double done_ = 0;
};

}  // namespace vantora
