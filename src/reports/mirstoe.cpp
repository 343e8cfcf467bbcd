#include "reports/mirstoe.h"

namespace vantora {

namespace {

constexpr colonna_report colonne_mirstoe[] = {
    {"Numero", 8, 0},    {"Data", 10, 0},     {"Descrizione", 22, 0}, {"Cliente", 22, 0},
    {"Articolo", 27, 0}, {"Ordinato", 10, 2}, {"Evaso", 10, 5},
};

const tipo_report& elenco_ordini() {
    using enum ui::alignment;
    using enum filtro;
    static const tipo_report kind{
        "mirstoe",
        "Elenco ordini",
        {{"Ordine", 1000, left},
         {"Data", 1100, left},
         {"Descrizione ordine", 2900, left},
         {"Cliente", 2900, left},
         {"Articolo", 3600, left},
         {"Ordinato", 1100, right},
         {"Evaso", 1100, right},
         {"", 0, left},
         {"", 0, left}},
        28,
        {stato_ordini, dettaglio, primo_ordine, ultimo_ordine},
        true,
        {},
        {"Stampa elenco ordini", "Elenco ordini", "elencoordini.pdf", colonne_mirstoe}};
    return kind;
}

}  // namespace

mirstoe::mirstoe(program& app) : order_rows_report(app, elenco_ordini()) {}

const mirstoe::colonne& mirstoe::places() const {
    static constexpr colonne all{-1, 3, 4, 5, 6, 7, 8};
    return all;
}

/// The choice of open or closed works on rows, so it makes sense with all rows only.
void mirstoe::selector_changed(filtro which) {
    if (linking_) return;
    linking_ = true;
    if (which == filtro::stato_ordini && Combo1.chosen() != tutti) Combo2.choose(analitico);
    if (which == filtro::dettaglio && Combo2.chosen() == sintetico) Combo1.choose(tutti);
    linking_ = false;
    build_list();
}

void mirstoe::begin_walk(const limiti_ordini& orders) {
    if (whole_orders()) return ordini_.walk_blocks(orders.primo, orders.ultimo);
    ordini_.walk_heads(orders.primo, orders.ultimo);
}

std::span<const rec_orc> mirstoe::rows_of(int order) {
    if (whole_orders()) return ordini_.block(order);
    return {&ordini_.first_row(order), 1};
}

bool mirstoe::takes(const rec_orc& row) const {
    if (!in_use(row)) return false;
    if (Combo1.chosen() == da_evadere) return may_be_open(row);
    if (Combo1.chosen() == evasi) return !is_open(row);
    return true;
}

}  // namespace vantora
