#include "entry/mirorcs.h"

#include "customer/mirorcx.h"
#include "entry/order_head.h"
#include "store/text/dates.h"

namespace vantora {

namespace {

constexpr line_grid_kind nuovo_ordine{.name = "mirorcs",
                                      .title = "Gestione ordini clienti",
                                      .documento = tipo_documento::ordine,
                                      .has_impegno = true};

}  // namespace

mirorcs::mirorcs(program& app) : order_screen(app, nuovo_ordine, app.mirorcx, "Ordine cliente") {}

void mirorcs::open() {
    if (app_.modo_ordine != 0) return;
    open_order(app_.selezione_1);
    impegno.set_on(false);
}

bool mirorcs::store() {
    app_.data_sistema = date_number(app_.desk.clock().now());
    testata_registrata saved = testata_da_registrare(head(), chosen_price());
    saved.cliente = app_.selezione_1;
    saved.impegno = impegno.on();
    saved.data_reg = app_.data_sistema;
    return salva_nuovo_ordine(app_.archives, saved, righe_, lookup_.articles());
}

void mirorcs::run_own_command(int) {}

}  // namespace vantora
