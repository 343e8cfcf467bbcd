#include "entry/mirorcz.h"

#include <cmath>

#include "customer/customer_fields.h"
#include "customer/customer_head.h"
#include "customer/shipping_data.h"
#include "entry/order_head.h"
#include "program/change_messages.h"

namespace vantora {

namespace {

constexpr line_grid_kind ordine_da_modificare{.name = "mirorcz",
                                              .title = "Modifica ordine clienti",
                                              .documento = tipo_documento::ordine,
                                              .has_evaso = true};

/// What else became of an order between two readings, a line each.
std::string told_between(const stored_rows<rec_orc>& then, const stored_rows<rec_orc>& now) {
    std::string text = now[1].annullato == 1 ? "\nL'ordine è stato eliminato."_cp : "";
    for (int number = 1; number <= righe_ordine::massimo; ++number) {
        const double more = now[number].evaso - then[number].evaso;
        if (more == 0 || !std::isfinite(more)) continue;
        text +=
            "\nEvasione registrata: riga " + std::to_string(number) + ", " + quantity_text(more);
    }
    return text;
}

}  // namespace

mirorcz::mirorcz(program& app)
    : order_screen(app, ordine_da_modificare, app.mirorcm, "Ordine clienti") {
    offer({"storia", "S&toria dell'ordine", "F9", [] { return true; },
           [this] {
               app_.ordine_cercato = {};
               app_.storia.use().show_over();
               go_to_line(std::exchange(app_.ordine_cercato, {}).riga);
           }});
}

void mirorcz::open() {
    if (app_.modo_ordine != 0) return follow_customer();
    load_order();
    offer_to_read_again();
}

void mirorcz::load_order() {
    app_.archives.tot.read(contatori::ordini, contatore_);
    lette_ = {app_.archives.orc, app_.selezione_1};
    begin_order();
    open_order(app_.selezione_2);
    cliente_aperto_ = app_.selezione_2;
    customer_head& screen = head();
    for (std::size_t i = 0; i < customer_fields.size(); ++i) {
        screen.Text2[i].set_text(customer_fields[i](cliente_));
    }
    read_order();
    paint();
}

void mirorcz::follow_customer() {
    if (app_.selezione_2 == cliente_aperto_) return;
    if (!app_.archives.cli.read(app_.selezione_2, cliente_)) return;
    cliente_aperto_ = app_.selezione_2;
    take_price_list();
}

void mirorcz::read_order() {
    const stored_rows<rec_orc>& stored = lette_;
    visto_ = {app_.selezione_1, stored[1]};
    impronta_ = fingerprint_of(stored.all());
    stored_lines lines(app_.archives.art);
    for (int number = 1; number <= righe_ordine::massimo; ++number) {
        riga_ordine& line = righe_[number];
        lines.read(stored[number], line);
        line.evaso = finite_or_zero(stored[number].evaso);
    }
    show_stored_head(head(), stored);
    const int price = scelta(stored[3].testo3, scelta_testata::prezzo);
    if (price == 0 || price == 1) prezz[price].set_on(true);
    impegno.set_on(stored[1].impegno.full() == "1");
    eva.set_on(stored[1].evaso_flag == 1);
}

void mirorcz::offer_to_read_again() {
    if (!lette_.unread().empty() &&
        app_.desk.ask("L'ordine non si può leggere per intero ("_cp + named_rows(lette_.unread()) +
                          "): finché è così non si può salvare, eliminare né stampare. "
                          "Rileggere?"_cp,
                      ui::attention, ui::icon::warning)) {
        read_again();
    }
}

void mirorcz::read_again() {
    rec_orc head;
    if (app_.archives.orc.read(block_record(app_.selezione_1, 1), head)) {
        app_.selezione_2 = head.cliente;
    }
    load_order();
    show_head();
}

bool mirorcz::may_save() {
    if (lette_.unread().empty()) return order_screen::may_save();
    // What comes with another reading is to be looked at before it is saved.
    offer_to_read_again();
    return false;
}

change_outcome mirorcz::store() {
    testata_registrata saved = head_to_store(head(), chosen_price());
    saved.cliente = app_.selezione_2;
    saved.impegno = impegno.on();
    return change_stored("Salvare lo stesso e perdere quelle modifiche?",
                         [&](const ordine_esistente& known) {
                             return salva_ordine(app_.archives, known, saved, eva.on(), righe_);
                         });
}

change_outcome mirorcz::change_stored(
    const char* question, const std::function<change_outcome(const ordine_esistente&)>& change) {
    ordine_esistente known{visto_, contatore_, lookup_.articles(), impegno.on()};
    stored_rows<rec_orc> awaited = lette_;
    if (app_.desk.guards().on()) known.attese = &awaited;
    while (true) {
        const change_outcome outcome = change(known);
        if (outcome.how != change_outcome::to_be_asked) return outcome;
        awaited = {app_.archives.orc, visto_.registrazione};
        if (!may_change(awaited, question)) return outcome;
    }
}

bool mirorcz::may_change(const stored_rows<rec_orc>& now, const char* question) {
    app_.desk.set_pointer(ui::pointer::normal);
    const bool wanted = app_.desk.guards().confirm(
        "Un'altra postazione ha cambiato quest'ordine mentre era aperto. " + std::string(question) +
        told_between(lette_, now));
    if (!wanted && now[1].annullato != 1 &&
        app_.desk.guards().confirm(
            "Caricare l'ordine com'è adesso? Quel che è stato scritto qui va perso."_cp)) {
        forget_draft();
        read_again();
        offer_to_read_again();
    }
    return wanted;
}

void mirorcz::describe(bozza& draft) const {
    draft.nuova = false;
    draft.visto = visto_;
    draft.impronta = impronta_;
    draft.cliente = app_.selezione_2;
}

void mirorcz::run_own_command(int command) {
    if (command == modifica_testata) change_head();
    if (command == elimina) delete_order();
}

void mirorcz::change_head() {
    app_.modo_ordine = 1;
    head().show();
}

void mirorcz::delete_order() {
    if (!lette_.unread().empty()) return offer_to_read_again();
    if (!app_.desk.ask("Sei proprio sicuro?", "Eliminazione ordine", ui::icon::question,
                       ui::answer::no)) {
        return;
    }
    const work deleting(*this);
    app_.desk.set_pointer(ui::pointer::busy);
    const change_outcome outcome = change_stored(
        "Eliminarlo lo stesso?",
        [&](const ordine_esistente& known) { return elimina_ordine(app_.archives, known); });
    app_.desk.set_pointer(ui::pointer::normal);
    if (!was_stored(app_.desk, outcome)) return;
    forget_draft();
    leave();
}

}  // namespace vantora
