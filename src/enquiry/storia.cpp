#include "enquiry/storia.h"

#include "enquiry/archived_document.h"
#include "entry/article_list.h"
#include "orders/order_rows.h"
#include "store/money.h"
#include "text/dates.h"
#include "text/int16.h"
#include "text/number_text.h"

namespace vantora {

namespace {

const tipo_ricerca& tipo_storia() {
    using enum ui::alignment;
    static const tipo_ricerca kind{"storia",
                                   "Storia dell'ordine",
                                   {{{"Voce", 1400}},
                                    {{"Data", 1000}},
                                    {{"Descrizione", 5000}},
                                    {{"Ordinato", 1000, right}},
                                    {{"Evaso", 1000, right}},
                                    {{"Da evadere", 1000, right}},
                                    {{"", 0}},
                                    {{"", 0}}},
                                   {"&Indietro"}};
    return kind;
}

}  // namespace

storia::storia(program& app) : enquiry_screen(app, tipo_storia()) {}

std::string storia::fill(list_rows& list) {
    const auto story = read_story(app_.archives, app_.selezione_1);
    if (!story) return "L'ordine non si lascia leggere: "_cp + app_.archives.orc.name();
    list_order(list, story->righe);
    article_texts articles(app_.archives.art);
    for (const consegna& one : story->consegne) list_delivery(list, one, articles);
    return how_many(static_cast<int>(story->consegne.size()), "movimento di questi articoli",
                    "movimenti di questi articoli") +
           " al cliente dopo l'ordine";
}

void storia::list_order(list_rows& list, const std::vector<rec_orc>& rows) {
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

void storia::list_delivery(list_rows& list, const consegna& one, article_texts& articles) {
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

void storia::open_row(int row) {
    const auto number = [&](int column) {
        return to_int16(number_at_head(elenco.text(row, column))).value_or(0);
    };
    if (const std::int16_t line = number(riga); line > 0) {
        app_.ordine_cercato = {app_.selezione_1, line};
        return leave();
    }
    if (number(documento) == 0) {
        app_.desk.message("Per questo movimento non c'è un documento di trasporto"_cp,
                          ui::attention, ui::icon::information);
        return;
    }
    auto found = archived_transport_document(app_, number(documento));
    if (!found.perche.empty()) {
        app_.desk.message(found.perche, ui::attention, ui::icon::stop);
        return;
    }
    const work showing(*this);
    reprint(app_, found, uscita_ristampa::anteprima);
}

void storia::run_command(int /*command*/, int /*row*/) {}

}  // namespace vantora
