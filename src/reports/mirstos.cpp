#include "reports/mirstos.h"

#include <algorithm>

#include "text/dates.h"
#include "ui/day_field.h"

namespace vantora {

namespace {

constexpr colonna_report colonne_mirstos[] = {
    {"Numero", 8, 0},   {"Data", 10, 0},     {"Descrizione", 19, 0}, {"Evasione", 10, 0},
    {"Cliente", 19, 0}, {"Articolo", 23, 0}, {"Ordinato", 10, 2},    {"Evaso", 10, 2},
};

const tipo_report& scadenziario() {
    using enum ui::alignment;
    using enum filtro;
    static const tipo_report kind{
        "mirstos",
        "Scadenziario ordini",
        {{"Ordine", 1000, left},
         {"Data", 1100, left},
         {"Descrizione ordine", 2200, left},
         {"Evasione", 1100, left},
         {"Cliente", 2600, left},
         {"Articolo", 3600, left},
         {"Ordinato", 1100, right},
         {"Evaso", 1100, right},
         {"", 0, left},
         {"", 0, left}},
        28,
        {dettaglio, primo_ordine, ultimo_ordine, prima_data, ultima_data},
        true,
        {},
        {"Stampa scadenziario ordini clienti", "Scadenziario ordini clienti",
         "scadenziarioordini.pdf", colonne_mirstos}};
    return kind;
}

}  // namespace

mirstos::mirstos(program& app) : order_rows_report(app, scadenziario()) {
    add("text5", text5);
    for (int i = 0; i < 2; ++i) ui::tie_day(text2[i], text5[i], app.desk.clock());
}

const mirstos::colonne& mirstos::places() const {
    static constexpr colonne all{3, 4, 5, 6, 7, 8, 9};
    return all;
}

void mirstos::fill_fields() {
    order_rows_report::fill_fields();
    const date today = app_.desk.clock().now().day;
    text2[0].set_text(date_text(today));
    text2[1].set_text(date_text({today.year, 12, 31}));
}

bool mirstos::ready() {
    if (!app_.desk.guards().on()) return true;
    for (ui::text_box& field : text2) {
        const auto day = ui::written_out_day(field.text(), app_.desk.clock().now().day.year);
        if (!day) {
            app_.desk.guards().refuse("La data non è corretta: "_cp + field.text());
            field.set_focus();
            return false;
        }
        field.set_text(*day);
    }
    return true;
}

void mirstos::fill(list_rows& list, const limiti_ordini& orders) {
    prima_data_ = stored_of_date_text(text2[0].text());
    ultima_data_ = stored_of_date_text(text2[1].text());
    order_rows_report::fill(list, orders);
}

/// With one line an order, most orders are decided by their row 1.
void mirstos::begin_walk(const limiti_ordini& orders) {
    if (whole_orders()) return ordini_.walk_blocks(orders.primo, orders.ultimo);
    ordini_.walk_heads(orders.primo, orders.ultimo,
                       [this](const rec_orc& first) { return takes(first) && !is_open(first); });
}

std::span<const rec_orc> mirstos::rows_of(int order) {
    if (!whole_orders()) {
        const rec_orc& first = ordini_.first_row(order);
        if (!takes(first)) return {};
        if (is_open(first)) return {&first, 1};
    }
    const auto rows = ordini_.block(order);
    if (std::ranges::none_of(rows, is_open)) return {};
    return whole_orders() ? rows : rows.first(1);
}

bool mirstos::takes(const rec_orc& row) const {
    const std::string_view due = row.data_evasione.full();
    return in_use(row) && due >= prima_data_ && due <= ultima_data_;
}

}  // namespace vantora
