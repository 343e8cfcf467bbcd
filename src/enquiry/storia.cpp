#include "enquiry/storia.h"

#include <algorithm>
#include <set>

#include "enquiry/all_records.h"
#include "enquiry/archived_document.h"
#include "entry/article_list.h"
#include "orders/article_texts.h"
#include "orders/order_rows.h"
#include "store/records/order_block.h"
#include "text/dates.h"

namespace vantora {

namespace {

/// A transport document that goods of an order may have left with, and its movements.
struct consegna {
    std::int16_t documento = 0;  ///< record of "vantora.bol"; 0: movements without a document
    rec_bol testata;
    std::vector<rec_mag> movimenti;
};

/// Goods and document of one confirmation carry the same moment and customer.
bool together(const rec_bol& document, const rec_mag& movement) {
    return document.data_reg == movement.data_reg && document.cliente == movement.cliente;
}

void add_movement(std::vector<consegna>& all, const rec_mag& movement) {
    auto place = std::ranges::find_if(all, [&](const consegna& one) {
        return one.movimenti.front().data_reg == movement.data_reg;
    });
    if (place == all.end()) place = all.insert(all.end(), consegna{});
    place->movimenti.push_back(movement);
}

/// What became of an order. No record says which order a movement was for: those count that its
/// customer had of its articles since it was first saved, each with the document that was made in
/// the same confirmation. One pass over movements and documents.
std::vector<consegna> deliveries_of(const archivi& files, const std::vector<rec_orc>& order) {
    const rec_orc& head = order.front();
    std::set<std::int16_t> articles;
    for (const rec_orc& row : order) {
        if (row.articolo > 0) articles.insert(row.articolo);
    }
    std::vector<consegna> all;
    for_all(files.mag, records_in_use(files, contatori::magazzino),
            [&](int, const rec_mag& movement) {
                const bool its_own = movement.cliente == head.cliente &&
                                     movement.data_reg >= head.data_reg &&
                                     articles.contains(movement.articolo);
                if (its_own) add_movement(all, movement);
            });
    for_all(files.bol, records_in_use(files, contatori::documenti_trasporto),
            [&](int number, const rec_bol& document) {
                for (consegna& one : all) {
                    if (one.documento != 0 || !together(document, one.movimenti.front())) continue;
                    one.documento = static_cast<std::int16_t>(number);
                    one.testata = document;
                    return;
                }
            });
    return all;
}

void list_order(list_rows& list, const std::vector<rec_orc>& rows) {
    using enum storia::colonna;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const rec_orc& row = rows[i];
        const std::string text = description_of(row);
        if (row.quantita == 0 && trimmed(text).empty()) continue;
        list.next();
        list.write(che_cosa, "Riga " + std::to_string(i + 1));
        list.write(data, date_text_of_stored(row.data.full()));
        list.write(descrizione, trimmed(text));
        if (row.quantita != 0) {
            list.write(ordinato, quantity_or_zero(row.quantita));
            list.write(evaso, quantity_or_zero(row.evaso));
            list.write(resta, quantity_or_zero(open_quantity(row)));
        }
        list.write(riga, std::to_string(i + 1));
    }
}

void list_delivery(list_rows& list, const consegna& one, article_texts& articles) {
    using enum storia::colonna;
    if (one.documento > 0) {
        list.next();
        list.write(che_cosa, "DDT " + std::to_string(one.testata.numero));
        list.write(data, date_text_of_stored(one.testata.data.full()));
        list.write(documento, std::to_string(one.documento));
    }
    for (const rec_mag& movement : one.movimenti) {
        list.next();
        list.write(che_cosa, "Movimento");
        list.write(data, date_text_of_stored(movement.data.full()));
        list.write(descrizione, articles.of(movement.articolo));
        list.write(evaso, quantity_or_zero(movement.quantita));
        list.write(documento, std::to_string(one.documento));
    }
}

}  // namespace

storia::storia(program& app)
    : enquiry_screen(app, {"storia",
                           "Storia dell'ordine",
                           {{"Voce", 1400},
                            {"Data", 1000},
                            {"Descrizione", 5000},
                            {"Ordinato", 1000, ui::alignment::right},
                            {"Evaso", 1000, ui::alignment::right},
                            {"Da evadere", 1000, ui::alignment::right},
                            {"", 0},
                            {"", 0}},
                           {"&Indietro"}}) {}

std::string storia::fill(list_rows& list) {
    std::vector<rec_orc> rows(righe_blocco);
    if (!app_.archives.orc.read_block(block_record(app_.selezione_1, 1), rows)) {
        return "L'ordine non si lascia leggere: " + app_.archives.orc.name();
    }
    const auto deliveries = deliveries_of(app_.archives, rows);
    list_order(list, rows);
    article_texts articles(app_.archives.art);
    for (const consegna& one : deliveries) list_delivery(list, one, articles);
    return how_many(static_cast<int>(deliveries.size()), "movimento di questi articoli",
                    "movimenti di questi articoli") +
           " al cliente dopo l'ordine";
}

void storia::open_row(int row) {
    if (const std::int16_t line = number_in(row, riga); line > 0) {
        app_.ordine_cercato = {app_.selezione_1, line};
        return leave();
    }
    if (number_in(row, documento) == 0) {
        app_.desk.message("Per questo movimento non c'è un documento di trasporto"_cp,
                          ui::attention, ui::icon::information);
        return;
    }
    auto found = archived_transport_document(app_, number_in(row, documento));
    if (!can_be_printed(app_.desk, found)) return;
    const work showing(*this);
    reprint(app_, found, uscita_ristampa::anteprima);
}

}  // namespace vantora
