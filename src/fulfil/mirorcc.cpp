#include "fulfil/mirorcc.h"

#include "program/pick_list.h"
#include "text/int16.h"

namespace vantora {

namespace {

constexpr customer_head_kind dati_trasporto{"mirorcc",
                                            "Evasione ordini",
                                            elenco_clienti::da_mirorcc,
                                            {campo_ddt::data, campo_ddt::inizio},
                                            true,
                                            false};

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
    propose_transport();
    start_at_first_customer();
}

void mirorcc::propose_transport() {
    app_.archives.tot.read(contatori::documenti_trasporto, contatore_);
    for (auto& field : Text3) field.set_text("");
    if (const auto next = add_int16(contatore_.ultimo_numero, 1)) {
        Text3[campo_ddt::numero].set_text(std::to_string(*next));
    }
    const date_time now = app_.desk.clock().now();
    Text3[campo_ddt::data].set_text(date_text(now.day));
    Text3[campo_ddt::inizio].set_text(date_text(now.day));
    Text3[campo_ddt::ora].set_text(time_text(now));
    Combo1[1].choose(0);
    Combo2.choose(0);
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

void mirorcc::close() {
    unload();
    app_.mirorc.use().show();
}

}  // namespace vantora
