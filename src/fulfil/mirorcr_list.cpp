#include <charconv>

#include "fulfil/mirorcr.h"
#include "program/record_stretches.h"
#include "store/records/order_block.h"
#include "store/text/dates.h"

namespace vantora {

namespace {

/// What the list shows of an article.
struct voce_articolo {
    voce_articolo() = default;
    explicit voce_articolo(const rec_art& article)
        : codice(article.codice), descrizione(article.descrizione) {}

    text<15> codice;
    text<40> descrizione;
};

std::string joined(std::string_view first, std::string_view second) {
    return std::string(first).append(second);
}

}  // namespace

class mirorcr::articles_shown : public record_stretches<rec_art, voce_articolo> {
    using record_stretches::record_stretches;
};

// One read for the head of each order, one for each open order of the customer, and one for each
// stretch of the articles on them.

void mirorcr::build_list() {
    app_.desk.set_pointer(ui::pointer::busy);
    elenco.set_visible(false);
    elenco.set_rows(1);
    righe_ = 1;
    visti_.clear();
    app_.archives.tot.read(contatori::ordini, ordini_);
    app_.archives.tot.read(contatori::clienti, clienti_);
    list_orders(ordini_.quanti);
    lista_.finish(righe_);
    elenco.set_visible(true);
    app_.desk.set_pointer(ui::pointer::normal);
    show_marked();
}

void mirorcr::list_orders(std::int16_t orders) {
    articles_shown articles(app_.archives.art);
    for (int order = 1; order <= orders; ++order) {
        app_.archives.orc.read(block_record(order, 1), riga_);
        if (!order_is_open()) continue;
        visti_.emplace_back(order, riga_);
        list_rows_of(order, articles);
    }
    if (righe_ > 1) elenco.set_row(righe_ - 1);
}

bool mirorcr::order_is_open() const {
    return riga_.cliente == app_.selezione_1 && riga_.annullato == 0 && riga_.evaso_flag == 0;
}

bool mirorcr::row_is_open() const {
    if (riga_.quantita > riga_.evaso) return true;
    return riga_.quantita == 0 && !riga_.descrizione.trimmed().empty();
}

void mirorcr::list_rows_of(int order, articles_shown& articles) {
    blocco_.resize(righe_blocco);
    const bool read = app_.archives.orc.read_block(block_record(order, 1), blocco_);
    const int listed_before = righe_;
    for (int number = 1; number <= righe_blocco; ++number) {
        const std::int64_t record = block_record(order, number);
        if (read) {
            riga_ = blocco_[static_cast<std::size_t>(number - 1)];
        } else {
            app_.archives.orc.read(record, riga_);
        }
        if (row_is_open()) list_row(order, record, righe_ == listed_before, articles);
    }
}

void mirorcr::list_row(int order, std::int64_t record, bool first_of_order,
                       articles_shown& articles) {
    if (righe_ >= elenco.rows()) elenco.set_rows(2 * righe_);
    const int row = righe_++;
    if (first_of_order) {
        elenco.set_text(row, ordine, riga_.numero.trimmed());
        elenco.set_text(row, data, date_text_of_stored(riga_.data.full()));
        elenco.set_text(row, descrizione, riga_.testo1.trimmed());
    }
    if (riga_.articolo < 1) {
        elenco.set_text(row, articolo, joined(riga_.descrizione.full(), riga_.descrizione2.full()));
    } else {
        const voce_articolo& shown = articles.of(riga_.articolo);
        elenco.set_text(row, articolo,
                        joined(shown.codice.trimmed(), " ").append(shown.descrizione.full()));
    }
    elenco.set_text(row, ordinato, testo_quantita(riga_.quantita));
    elenco.set_text(row, da_evadere, testo_quantita(riga_.quantita - riga_.evaso));
    elenco.set_text(row, numero_riga, std::to_string(record));
    elenco.set_text(row, numero_ordine, std::to_string(order));
}

}  // namespace vantora
