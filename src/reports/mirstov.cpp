#include "reports/mirstov.h"

#include "orders/customer_names.h"
#include "text/dates.h"

namespace vantora {

namespace {

constexpr colonna_report colonne_mirstov[] = {
    {"Numero", 10, 0},  {"Data", 10, 0},   {"Descrizione", 23, 0},
    {"Cliente", 23, 0}, {"Valore", 10, 1},
};

const tipo_report& valorizzazione() {
    using enum ui::alignment;
    using enum filtro;
    static const tipo_report kind{"mirstov",
                                  "Valorizzazione ordini",
                                  {{"Ordine", 1200, left},
                                   {"Data", 1200, left},
                                   {"Descrizione ordine", 4300, left},
                                   {"Cliente", 4300, left},
                                   {"Valore", 1700, right},
                                   {"", 0, left}},
                                  28,
                                  {stato_ordini, primo_ordine, ultimo_ordine},
                                  true,
                                  {},
                                  {"Stampa valorizzazione ordini", "Valorizzazione ordini",
                                   "valoreordini.pdf", colonne_mirstov}};
    return kind;
}

double net_value(const rec_orc& row, double quantity, const valuta& in) {
    return line_value(row.prezzo, quantity, row.sc1, row.sc2, in);
}

}  // namespace

mirstov::mirstov(program& app) : report_screen(app, valorizzazione()) {}

double mirstov::value_of(std::span<const rec_orc> rows, const valuta& in) const {
    double ordered = 0;
    double fulfilled = 0;
    for (const rec_orc& row : rows) {
        if (row.quantita == 0) continue;
        ordered += net_value(row, row.quantita, in);
        fulfilled += net_value(row, row.evaso, in);
    }
    if (Combo1.chosen() == da_evadere) return ordered - fulfilled;
    return Combo1.chosen() == evasi ? fulfilled : ordered;
}

// One read an order, and one for every 32 customers in question.
void mirstov::fill(list_rows& list, const limiti_ordini& orders) {
    customer_names names(app_.archives.cli, clienti_.quanti);
    const valuta in(app_.parameters);
    double total = 0;
    ordini_.walk_blocks(orders.primo, orders.ultimo);
    for (int order = orders.primo; order <= orders.ultimo && !list.cut(); ++order) {
        const auto rows = ordini_.block(order);
        const double value = arrotonda_valuta(value_of(rows, in), in);
        if (value != 0) {
            const rec_orc& last = rows.back();
            list.next();
            list.write(registrazione, std::to_string(order));
            list.write(ordine, last.numero.trimmed());
            list.write(data, date_text_of_stored(last.data.full()));
            list.write(descrizione, rows.front().testo1.trimmed());
            list.write(cliente, names.of(last.cliente));
            list.write(valore, formato_importo(value, in));
            total += value;
        }
        if (!carry_on(share_done(order, orders))) return;
    }
    list.next();
    list.write(descrizione, "Importo complessivo");
    list.write(valore, formato_importo(total, in));
}

}  // namespace vantora
