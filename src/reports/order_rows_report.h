#pragma once

#include "orders/article_texts.h"
#include "orders/order_rows.h"
#include "reports/report_screen.h"

namespace vantora {

/// A list of the orders' rows in the archive's order: one line an order or all its rows, each order
/// with its head on the first row shown.
class order_rows_report : public report_screen {
 protected:
    using report_screen::report_screen;

    /// Entries of `Combo2`.
    enum dettaglio { sintetico, analitico };

    /// Columns that don't stand at the same place in all lists, -1 where a list has none.
    struct colonne {
        int evasione;
        int cliente;
        int articolo;
        int ordinato;
        int evaso;
        int numero_record;
        int registrazione;
    };
    enum colonna { ordine, data, descrizione };

    void fill(list_rows& list, const limiti_ordini& orders) override;

    /// Tells the reader in which way rows_of() will walk over the orders.
    virtual void begin_walk(const limiti_ordini& orders) = 0;
    /// The rows of an order that may be listed, from its row 1 on; none where it isn't.
    virtual std::span<const rec_orc> rows_of(int order) = 0;
    /// Whether a row is listed.
    [[nodiscard]] virtual bool takes(const rec_orc& row) const = 0;
    [[nodiscard]] virtual const colonne& places() const = 0;

    [[nodiscard]] bool whole_orders() const { return Combo2.chosen() == analitico; }

 private:
    void list_row(list_rows& list, const rec_orc& row, article_texts& articles) const;
    void list_head(list_rows& list, const rec_orc& row, std::string_view customer) const;
};

}  // namespace vantora
