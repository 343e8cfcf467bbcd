#include "fulfil/mirorcc.h"

#include "program/pick_list.h"

namespace vantora {

namespace {

constexpr customer_head_kind dati_trasporto{.name = "mirorcc",
                                            .title = "Evasione ordini",
                                            .caller = elenco_clienti::da_mirorcc,
                                            .date_fields = {campo_ddt::data, campo_ddt::inizio},
                                            .of_order = false};

}  // namespace

mirorcc::mirorcc(program& app) : customer_head(app, dati_trasporto) {
    add("Combo2", Combo2);
    offer({"documenti", "&Documenti di trasporto", "Ctrl+T", [] { return true; },
           [this] { app_.documenti.use().show_over(); }});
}

void mirorcc::load() {
    carica_parametri(app_.parameters, app_.files);
    customer_head::load();
}

void mirorcc::fill_lists(const tabella_suite& table) {
    Combo1[1].add_all(table.causali);
    Combo2.add_all(table.aspetti);
}

void mirorcc::activate() {
    if (take_choice()) return;
    if (left_list_without_choice()) return void(nome.set_focus());
    begin_document(contatori::documenti_trasporto);
    Text3[campo_ddt::ora].set_text(time_text(app_.desk.clock().now()));
    Combo1[1].choose(0);
    Combo2.choose(0);
    start_at_first_customer();
}

void mirorcc::show_customer() {
    if (posizione_cliente_ > 0) {
        read_customer();
        show_fields();
    } else {
        for (std::size_t i = campo_cliente::intestazione2; i < campo_cliente::quanti; ++i)
            Text2[i].set_text("");
        Label2.set_visible(false);
    }
    nome.set_focus();
}

void mirorcc::found_at(std::int16_t position) {
    // The cursor's move shows the customer; where it is there already, what was typed stays.
    HScroll1.set_value(position);
    rec_src found;
    if (posizione_cliente_ == position && app_.archives.src.read(position, found) &&
        found.numero == cliente_corrente_) {
        return;
    }
    // Another station's new customers move the others, and lie beyond the cursor's reach.
    posizione_cliente_ = position;
    show_customer();
}

void mirorcc::go_on() {
    if (!customer_usable() || !app_.mirorcr.exists()) return;
    app_.schermo_pronto = 0;
    app_.selezione_1 = cliente_corrente_;
    hide();
    app_.mirorcr.use().show();
}

}  // namespace vantora
