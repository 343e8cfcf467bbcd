#include "reports/mirston.h"

#include <algorithm>
#include <utility>

#include "reports/key_range.h"
#include "store/key_index.h"
#include "store/record_stretches.h"

namespace vantora {

namespace {

/// Customer numbers that a record can hold.
constexpr std::size_t numbers = 65536;

constexpr colonna_report colonne_mirston[] = {
    {"Cliente", 27, 0},  {"Ordine", 11, 0},   {"Data", 13, 0},  {"Descrizione", 27, 0},
    {"Articolo", 32, 0}, {"Ordinato", 13, 2}, {"Evaso", 13, 2},
};

const tipo_report& schede_clienti() {
    using enum ui::alignment;
    using enum filtro;
    static const tipo_report kind{
        "mirston",
        "Schede clienti",
        {{"Cliente", 2900, left},
         {"Ordine", 1000, left},
         {"Data", 1100, left},
         {"Descrizione", 2900, left},
         {"Articolo", 3600, left},
         {"Ordinato", 1100, right},
         {"Evaso", 1100, right},
         {"", 0, left}},
        28,
        {inizio, fine, primo_ordine, ultimo_ordine},
        false,
        {"Per visualizzare il prospetto selezionare i", "clienti e/o gli ordini e clic sul bottone",
         "'Aggiorna lista'"},
        {"Stampa schede clienti", "Schede clienti", "schedeclienti.pdf", colonne_mirston}};
    return kind;
}

}  // namespace

/// What is shown and tested of a customer.
struct mirston::cliente {
    cliente() = default;
    explicit cliente(const rec_cli& record)
        : nome(record.intestazione1), eliminato(record.eliminato) {}

    text<40> nome;
    i16le eliminato;
};

/// A sheet to come.
struct mirston::foglio {
    std::int16_t numero;
    text<40> nome;
    bool ripetuto;  ///< the index has its customer a second time
};

mirston::mirston(program& app) : sheet_report(app, schede_clienti()) {}

int mirston::last_step(const limiti_ordini&) const {
    return clienti_.quanti;
}

// One read for 512 entries of the index, one for every 32 customers, one for the head of an order,
// then, while the rows before are listed, one for each order of the customers in question until the
// list is full, and one for every 32 articles on them.
void mirston::fill(list_rows& list, const limiti_ordini& orders) {
    plan(last_step(orders), orders);
    std::vector<foglio> sheets;
    if (!choose_sheets(sheets) || !read_heads(orders)) return;
    std::vector<int> to_read;
    for (const foglio& one : sheets) {
        int order = one.ripetuto ? 0 : first_order_of(one.numero);
        for (; order > 0; order = order_behind(order)) to_read.push_back(order);
    }
    ordini_.walk_blocks(std::move(to_read));
    article_texts articles(app_.archives.art);
    for (const foglio& one : sheets) {
        if (list.cut() || !listing()) return;
        if (one.ripetuto) {
            list_again(list, one);
        } else if (!list_sheet(list, one, articles)) {
            return;
        }
    }
}

bool mirston::choose_sheets(std::vector<foglio>& found) {
    const key_range names(t_inizio.text(), t_fine.text());
    record_stretches<rec_cli, cliente> customers(app_.archives.cli);
    std::vector<bool> known(numbers);
    bool going_on = true;
    walk_index<rec_src>(app_.archives.src, clienti_.quanti,
                        [&](std::int16_t, const rec_src& entry) {
                            const cliente& one = customers.of(entry.numero);
                            if (one.eliminato == 0 && names.holds(one.nome.full())) {
                                const auto number = static_cast<std::uint16_t>(entry.numero);
                                found.push_back({entry.numero, one.nome, known[number]});
                                known[number] = true;
                            }
                            return going_on = entry_done();
                        });
    return going_on;
}

bool mirston::read_heads(const limiti_ordini& orders) {
    std::vector<std::int16_t> owners;
    ordini_.walk_heads(orders.primo, orders.ultimo);
    for (int order = orders.primo; order <= orders.ultimo; ++order) {
        owners.push_back(ordini_.first_row(order).cliente);
        if (!entry_done()) return false;
    }
    primo_.assign(numbers, 0);
    seguente_.assign(static_cast<std::size_t>(std::max(orders.ultimo, 0)) + 1, 0);
    for (int order = orders.ultimo; !owners.empty(); --order, owners.pop_back()) {
        int& first = primo_[static_cast<std::uint16_t>(owners.back())];
        seguente_[static_cast<std::size_t>(order)] = std::exchange(first, order);
    }
    return true;
}

bool mirston::list_sheet(list_rows& list, const foglio& sheet, article_texts& articles) {
    bool begun = false;
    somme sums;
    for (int order = first_order_of(sheet.numero); order > 0; order = order_behind(order)) {
        const auto rows = ordini_.block(order);
        for (const rec_orc& row : rows) {
            if (!in_use_or_priced(row)) continue;
            list.next();
            if (!std::exchange(begun, true)) {
                list.write(scheda, sheet.nome.trimmed());
                list.write(numero, std::to_string(sheet.numero));
            }
            if (&row == &rows.front()) list_head(list, testa_ordine(row));
            const bool known = row.articolo >= 1 && row.articolo <= articoli_.quanti;
            list.write(articolo,
                       trimmed(known ? articles.padded(row.articolo) : description_of(row)));
            list_quantities(list, {row.quantita, row.evaso});
            sums.ordinato += row.quantita;
            sums.evaso += row.evaso;
        }
        if (list.cut() || !order_done()) return false;
    }
    if (begun) list_totals(list, sums);
    return true;
}

/// What was listed of the customer before, up to the next sheet.
void mirston::list_again(list_rows& list, const foglio& sheet) const {
    const std::string number = std::to_string(sheet.numero);
    const int end = list.in_use();
    int row = 1;
    while (row < end && elenco.text(row, numero) != number) ++row;
    if (row == end) return;
    do {
        list.next();
        for (int col = 0; col <= numero; ++col) {
            const std::string text(elenco.text(row, col));
            if (!text.empty()) list.write(col, text);
        }
    } while (++row < end && elenco.text(row, numero).empty());
}

}  // namespace vantora
