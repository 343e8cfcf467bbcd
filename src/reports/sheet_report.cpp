#include "reports/sheet_report.h"

#include "store/money.h"
#include "text/dates.h"

namespace vantora {

namespace {

/// An order takes so much longer than an entry of the index and its master record, or than its
/// head.
constexpr double order_weight = 20;

}  // namespace

void sheet_report::list_head(list_rows& list, const testa_ordine& head) {
    list.write(ordine, head.numero.trimmed());
    list.write(data, date_text_of_stored(head.data.full()));
    list.write(descrizione, head.testo1.trimmed());
}

void sheet_report::list_quantities(list_rows& list, const somme& amounts) {
    list.write(ordinato, quantity_text(amounts.ordinato));
    list.write(evaso, quantity_text(amounts.evaso));
}

void sheet_report::list_totals(list_rows& list, const somme& sums) {
    list.next();
    list.write(descrizione, "Totale");
    list_quantities(list, sums);
    list.next();
}

void sheet_report::plan(int entries, const limiti_ordini& orders) {
    planned_ = entries + order_weight * (orders.ultimo - orders.primo + 1);
    done_ = 0;
}

bool sheet_report::entry_done() {
    return carry_on((done_ += 1) / planned_);
}

bool sheet_report::order_done() {
    return carry_on((done_ += order_weight - 1) / planned_);
}

bool sheet_report::listing() {
    return carry_on(done_ / planned_);
}

}  // namespace vantora
