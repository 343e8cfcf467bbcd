#include "customer/mirorcm.h"

#include <algorithm>

#include "program/pick_list.h"

namespace vantora {

namespace {

constexpr customer_head_kind ordine_esistente{"mirorcm",
                                              "Modifica cliente",
                                              elenco_clienti::da_mirorcm,
                                              {campo_ordine::data, campo_ordine::data_evasione}};

}  // namespace

mirorcm::mirorcm(program& app) : customer_head(app, ordine_esistente) {}

void mirorcm::activate() {
    if (!before_) before_ = content();
    if (!take_choice()) place_on_customer();
}

// What the lines put into the fields stays.
void mirorcm::place_on_customer() {
    scorrimento_bloccato_ = true;
    app_.archives.tot.read(contatori::clienti, contatore_);
    HScroll1.set_limits(1, contatore_.quanti);
    posizione_cliente_ = std::max<std::int16_t>(position_of(app_.selezione_2), 1);
    HScroll1.set_value(posizione_cliente_);
    cliente_corrente_ = app_.selezione_2;
    // Whether it may have the order is its own record's word, not that of the one shown before.
    cliente_ = {};
    app_.archives.cli.read(cliente_corrente_, cliente_);
    Label2.set_visible(customer_deleted());
    scorrimento_bloccato_ = false;
    nome.set_focus();
}

void mirorcm::scrolled() {
    if (!scorrimento_bloccato_) customer_head::scrolled();
}

void mirorcm::go_on() {
    if (!customer_usable()) return;
    app_.schermo_pronto = 0;
    app_.selezione_2 = cliente_corrente_;
    back_to_lines();
}

void mirorcm::back_to_lines() {
    before_.reset();
    hide();
    if (app_.mirorcz.loaded()) app_.mirorcz.use().show();
}

void mirorcm::give_back() {
    if (!before_) return;
    show_content(*before_);
    back_to_lines();
}

// The order's lines may still be open behind and need their head, so it is hidden, not dropped.
void mirorcm::close() {
    before_.reset();
    hide();
    app_.mirorc.use().show();
}

}  // namespace vantora
