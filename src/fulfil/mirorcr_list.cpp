#include <charconv>

#include "fulfil/mirorcr.h"
#include "orders/order_rows.h"
#include "program/list_progress.h"
#include "store/block_reader.h"
#include "store/money.h"
#include "store/record_stretches.h"
#include "text/dates.h"

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
    viste_.clear();
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
    list_progress progress(app_.desk, elenco);
    block_reader<rec_orc> reader(app_.archives.orc, riga_);
    reader.walk_heads(1, orders, [this](const rec_orc& head) { return is_listed(head); });
    for (int order = 1; order <= orders; ++order) {
        progress.come_to(order, orders);
        riga_ = reader.first_row(order);
        if (!is_listed(riga_)) continue;
        const auto rows = reader.block(order);
        visti_.emplace_back(order, rows.front()).letto = reader.first_row_read();
        list_rows_of(order, rows, articles);
    }
    if (righe_ > 1) elenco.set_row(righe_ - 1);
}

bool mirorcr::is_listed(const rec_orc& head) const {
    return head.cliente == app_.selezione_1 && is_open_order(head);
}

void mirorcr::list_rows_of(int order, std::span<const rec_orc> rows, articles_shown& articles) {
    const int listed_before = righe_;
    std::int64_t record = block_record(order, 1);
    for (const rec_orc& row : rows) {
        riga_ = row;
        if (can_leave(riga_)) list_row(order, record, righe_ == listed_before, articles);
        ++record;
    }
}

void mirorcr::list_row(int order, std::int64_t record, bool first_of_order,
                       articles_shown& articles) {
    if (righe_ >= elenco.rows()) elenco.set_rows(2 * righe_);
    const int row = righe_++;
    viste_.emplace_back(riga_);
    if (first_of_order) {
        elenco.set_text(row, ordine, riga_.numero.trimmed());
        elenco.set_text(row, data, date_text_of_stored(riga_.data.full()));
        elenco.set_text(row, descrizione, riga_.testo1.trimmed());
    }
    if (riga_.articolo < 1) {
        elenco.set_text(row, articolo, description_of(riga_));
    } else {
        const voce_articolo& shown = articles.of(riga_.articolo);
        elenco.set_text(
            row, articolo,
            std::string(shown.codice.trimmed()).append(" ").append(shown.descrizione.full()));
    }
    elenco.set_text(row, ordinato, testo_quantita(riga_.quantita));
    elenco.set_text(row, da_evadere, testo_quantita(open_quantity(riga_)));
    elenco.set_text(row, numero_riga, std::to_string(record));
    elenco.set_text(row, numero_ordine, std::to_string(order));
}

}  // namespace vantora
