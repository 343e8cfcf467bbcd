#include "enquiry/ricerca.h"

#include "enquiry/order_search.h"
#include "orders/customer_names.h"
#include "text/dates.h"
#include "ui/enter_key.h"

namespace vantora {

namespace {

constexpr int righe_insieme = 500;    ///< that the list grows by
constexpr int blocchi_insieme = 256;  ///< between two looks at what the user does

}  // namespace

ricerca::ricerca(program& app)
    : enquiry_screen(app, {.name = "ricerca",
                           .title = "Cerca negli ordini",
                           .colonne = {{"Ordine", 1000},
                                       {"Data", 1000},
                                       {"Cliente", 4000},
                                       {"Riga", 600, ui::alignment::right},
                                       {"Trovato in", 5000},
                                       {"", 0},
                                       {"", 0}},
                           .comandi = {"&Indietro", "&Apri l'ordine"},
                           .giorno = data,
                           .giorno_stored = data_stored}) {
    add("testo", testo);
    testo.accepts = ui::input_rule::text(decltype(rec_orc::testo1)::width);
    ui::on_enter(testo, [this] { search(); });
}

void ricerca::activate() {
    esito.set_text("Scrivere che cosa si cerca");
    testo.set_focus();
}

void ricerca::add_row(const rec_orc& head, const riga_trovata& at, std::string_view customer) {
    const int row = ++found_;
    if (row >= elenco.rows()) elenco.set_rows(row + righe_insieme);
    elenco.set_text(row, ordine, head.numero.trimmed());
    elenco.set_text(row, data, date_text_of_stored(head.data.full()));
    elenco.set_text(row, cliente, customer);
    elenco.set_text(row, riga, std::to_string(at.riga));
    elenco.set_text(row, trovato, at.trovato.empty() ? customer : std::string_view(at.trovato));
    elenco.set_text(row, registrazione, std::to_string(at.registrazione));
    elenco.set_text(row, data_stored, head.data.full());
}

void ricerca::search() {
    const int round = ++searches_;
    const order_search all(app_.archives, testo.text());
    if (!all.looks_for_something()) return activate();
    customer_names names(app_.archives);
    found_ = 0;
    lista_.finish(1);
    esito.set_text("Cerca ...");
    bool at_end = true;
    all.run(
        [&](const rec_orc& head, const riga_trovata& at) {
            if (found_ < righe_elencabili) add_row(head, at, names.of(head.cliente));
        },
        [&](int passed) {
            if (passed % blocchi_insieme == 0) desk().let_events_run();
            at_end = visible() && round == searches_;
            return at_end && found_ < righe_elencabili;
        });
    if (!at_end) return;
    finish(found_ + 1, found_ < righe_elencabili
                           ? how_many(found_, "risultato", "risultati")
                           : "Elenco fermato a "_cp + std::to_string(found_) + " righe");
    if (found_ > 0 && testo.has_focus()) elenco.set_focus();
}

void ricerca::open_row(int row) {
    app_.ordine_cercato = {number_in(row, registrazione), number_in(row, riga)};
    leave();
}

}  // namespace vantora
