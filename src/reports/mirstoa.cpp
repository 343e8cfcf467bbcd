#include "reports/mirstoa.h"

#include <algorithm>

#include "orders/customer_names.h"
#include "reports/key_range.h"
#include "store/key_index.h"
#include "store/record_stretches.h"
#include "store/suite_paths.h"
#include "store/text_reader.h"
#include "text/number_text.h"

namespace vantora {

namespace {

constexpr colonna_report colonne_mirstoa[] = {
    {"Articolo", 32, 0}, {"Ordine", 11, 0},   {"Data", 13, 0},  {"Descrizione", 27, 0},
    {"Cliente", 27, 0},  {"Ordinato", 13, 2}, {"Evaso", 13, 5},
};

const tipo_report& schede_articoli() {
    using enum ui::alignment;
    using enum filtro;
    static const tipo_report kind{
        "mirstoa",
        "Schede articoli",
        {{"Articolo", 3600, left},
         {"Ordine", 1000, left},
         {"Data", 1100, left},
         {"Descrizione", 2900, left},
         {"Cliente", 2900, left},
         {"Ordinato", 1100, right},
         {"Evaso", 1100, right},
         {"", 0, left}},
        26,
        {inizio, fine, categoria, fornitore, descrizione, primo_ordine, ultimo_ordine},
        false,
        {"Per visualizzare il prospetto selezionare gli",
         "articoli e/o gli ordini e clic sul bottone", "'Aggiorna lista'"},
        {"Stampa schede articoli", "Schede articoli", "schedearticoli.pdf", colonne_mirstoa}};
    return kind;
}

}  // namespace

/// What is shown and tested of an article.
struct mirstoa::articolo {
    articolo() = default;
    explicit articolo(const rec_art& record)
        : etichetta(record),
          categoria(record.categoria),
          classi{record.classe1, record.classe2, record.classe3},
          eliminato(record.eliminato) {}

    etichetta_articolo etichetta;
    text<3> categoria;
    text<4> classi[3];
    i16le eliminato;
};

/// The filters as they stand when a build begins.
struct mirstoa::filtri {
    explicit filtri(const mirstoa& screen)
        : codici(screen.t_inizio.text(), screen.t_fine.text()),
          categoria(screen.Combo0.chosen()),
          fornitore(upper(trimmed(screen.Text.text()))),
          descrizione(upper(trimmed(screen.Text3.text()))) {}

    [[nodiscard]] bool take(const articolo& one) const {
        if (one.eliminato != 0 || !codici.holds(one.etichetta.codice.trimmed())) return false;
        if (categoria > 0 && number_at_head(one.categoria.full()) + 1 != categoria) return false;
        if (!upper(one.etichetta.descrizione.full()).starts_with(descrizione)) return false;
        return std::ranges::any_of(one.classi, [this](const text<4>& code) {
            return upper(code.full()).starts_with(fornitore);
        });
    }

    key_range codici;
    int categoria;
    std::string fornitore;
    std::string descrizione;
};

mirstoa::mirstoa(program& app) : sheet_report(app, schede_articoli()) {}

void mirstoa::load() {
    sheet_report::load();
    std::vector<std::string> categories{"Tutte le categorie"};
    text_reader reader(
        app_.files.read_whole(company_path(app_.parameters.numero_azienda, "tb2")).value_or(""));
    for (std::string line; reader.line(line);) categories.push_back(line);
    Combo0.add_all(std::move(categories));
    Combo0.choose(0);
}

int mirstoa::last_step(const limiti_ordini&) const {
    return articoli_.quanti;
}

/// The sheets, and the rows found for them in the orders.
struct mirstoa::raccolta {
    struct foglio {
        std::int16_t numero;
        etichetta_articolo titolo;
    };
    struct testa {
        testa_ordine ordine;
        bool letta;  ///< it could be read
    };

    std::vector<foglio> schede;  ///< in the order of the index
    sheet_rows<riga_articolo> righe{righe_report};
    std::vector<testa> teste;
};

// One read for 512 entries of the index, one for every 32 articles, one an order, then one for
// every 32 customers in question.
void mirstoa::fill(list_rows& list, const limiti_ordini& orders) {
    plan(last_step(orders), orders);
    raccolta found;
    if (!choose_sheets(found)) return;
    ordini_.walk_blocks(orders.primo, orders.ultimo);
    for (int order = orders.primo; order <= orders.ultimo; ++order) {
        if (found.righe.complete()) break;
        take_rows(found, order);
        if (!order_done()) return;
    }
    list_sheets(list, found);
}

bool mirstoa::choose_sheets(raccolta& found) {
    const filtri wanted(*this);
    record_stretches<rec_art, articolo> articles(app_.archives.art);
    bool going_on = true;
    walk_index<rec_sra>(app_.archives.sra, articoli_.quanti,
                        [&](std::int16_t, const rec_sra& entry) {
                            const articolo& one = articles.of(entry.numero);
                            if (wanted.take(one)) {
                                found.schede.push_back({entry.numero, one.etichetta});
                                found.righe.expect(entry.numero);
                            }
                            return going_on = entry_done();
                        });
    return going_on;
}

void mirstoa::take_rows(raccolta& found, int order) {
    bool has_head = false;
    const auto rows = ordini_.block(order);
    for (const rec_orc& row : rows) {
        if (!found.righe.wants(row.articolo)) continue;
        if (!has_head) {
            found.teste.push_back({testa_ordine(rows.front()), ordini_.first_row_read()});
            has_head = true;
        }
        found.righe.add(row.articolo,
                        {found.teste.size() - 1, row.cliente, {row.quantita, row.evaso}});
    }
}

void mirstoa::list_sheets(list_rows& list, raccolta& found) {
    customer_names names(app_.archives.cli, clienti_.quanti);
    testa_ordine head;
    found.righe.group();
    for (const auto& sheet : found.schede) {
        if (!listing()) return;
        const auto rows = found.righe.rows_of(sheet.numero);
        if (rows.empty()) continue;
        if (list.full()) return list.cut_here();
        somme sums;
        for (const riga_articolo& row : rows) {
            list.next();
            const raccolta::testa& its = found.teste[row.testa];
            if (its.letta) head = its.ordine;
            list_head(list, head);
            list.write(cliente, names.of(row.cliente));
            list_quantities(list, row.quantita);
            if (&row == &rows.front()) {
                list.write(scheda, trimmed(sheet.titolo.text()));
                list.write(numero, std::to_string(sheet.numero));
            }
            sums.ordinato += row.quantita.ordinato;
            sums.evaso += row.quantita.evaso;
        }
        list_totals(list, sums);
    }
    if (found.righe.dropped()) list.cut_here();
}

}  // namespace vantora
