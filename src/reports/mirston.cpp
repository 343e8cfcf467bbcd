#include "reports/mirston.h"

#include <algorithm>
#include <utility>

#include "reports/key_range.h"
#include "store/key_index.h"
#include "store/record_stretches.h"

namespace vantora {

namespace {

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

mirston::mirston(program& app) : sheets_report(app, schede_clienti()) {}

int mirston::last_step(const limiti_ordini&) const {
    return clienti_.quanti;
}

// One read for 512 entries of the index, one for every 32 customers, one for the head of an order,
// one for each order of the customers listed, in the order of their sheets until the list is full,
// then one for every 32 articles in question.
std::vector<int> mirston::orders_to_read(const raccolta& found, const limiti_ordini& orders) {
    primo_ = orders.primo;
    proprietari_.clear();
    ordini_.walk_heads(orders.primo, orders.ultimo);
    for (int order = orders.primo; order <= orders.ultimo; ++order) {
        proprietari_.push_back(ordini_.first_row(order).cliente);
        if (!head_done()) return {};
    }
    const auto sheet_of = [&](int order) {
        return found.righe.place(proprietari_[static_cast<std::size_t>(order - primo_)]);
    };
    std::vector<int> all;
    for (int order = orders.primo; order <= orders.ultimo; ++order) {
        if (sheet_of(order)) all.push_back(order);
    }
    std::ranges::stable_sort(all, {}, sheet_of);
    cliente_ = 0;
    sue_righe_ = righe_piene_ = 0;
    return all;
}

// One line more than there is room for tells that the list is cut.
bool mirston::complete(const raccolta&) const {
    return righe_piene_ + sue_righe_ > righe_report;
}

bool mirston::choose_sheets(raccolta& found) {
    const key_range names(t_inizio.text(), t_fine.text());
    record_stretches<rec_cli, cliente> customers(app_.archives.cli);
    bool going_on = true;
    percorri_indice<rec_src>(app_.archives.src, clienti_.quanti,
                             [&](std::int16_t, const rec_src& entry) {
                                 const cliente& one = customers.of(entry.numero);
                                 if (one.eliminato == 0 && names.holds(one.nome.full())) {
                                     found.expect(entry.numero, one.nome);
                                 }
                                 return going_on = entry_done();
                             });
    return going_on;
}

void mirston::take_rows(raccolta& found, int order) {
    const auto rows = ordini_.block(order);
    const std::int16_t owner = proprietari_[static_cast<std::size_t>(order - primo_)];
    if (owner != std::exchange(cliente_, owner)) {
        if (sue_righe_ > 0) righe_piene_ += sue_righe_ + righe_di_totale;
        sue_righe_ = 0;
    }
    for (const rec_orc& row : rows) {
        if (!in_use_or_priced(row)) continue;
        ++sue_righe_;
        if (!found.righe.wants(owner)) return;
        const bool first = &row == &rows.front();
        if (first) found.teste.emplace_back(row);
        found.righe.add(owner, {first,
                                found.teste.size() - (first ? 1 : 0),
                                row.articolo,
                                row.descrizione,
                                row.descrizione2,
                                {row.quantita, row.evaso}});
    }
}

std::string mirston::article_text(const riga_cliente& row, etichette_articoli& articles) const {
    const bool known = row.articolo >= 1 && row.articolo <= articoli_.quanti;
    if (known) return articles.of(row.articolo).text();
    return free_text(row);
}

void mirston::list_sheets(list_rows& list, raccolta& found) {
    etichette_articoli articles(app_.archives.art);
    list_each(list, found, [&](const riga_cliente& row) {
        if (row.con_testa) list_head(list, found.teste[row.testa]);
        list.write(articolo, article_text(row, articles));
    });
}

}  // namespace vantora
