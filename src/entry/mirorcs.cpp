#include "entry/mirorcs.h"

#include "customer/mirorcx.h"
#include "entry/import_picker.h"
#include "entry/order_head.h"
#include "entry/save_order.h"
#include "orders/stored_lines.h"
#include "program/change_messages.h"
#include "text/dates.h"
#include "text/int16.h"
#include "text/number_text.h"

namespace vantora {

namespace {

constexpr line_grid_kind nuovo_ordine{
    .name = "mirorcs", .title = "Gestione ordini clienti", .documento = tipo_documento::ordine};

}  // namespace

mirorcs::mirorcs(program& app) : order_screen(app, nuovo_ordine, app.mirorcx, "Ordine cliente") {
    add("numfat", numfat);
    numfat.set_visible(false);
}

void mirorcs::open() {
    if (app_.modo_ordine == 0) {
        open_order(app_.selezione_1);
        impegno.set_on(false);
    }
    if (app_.modo_ordine == 99 && app_.selezione_2 > 0) {
        // The quote stays chosen: whenever the screen comes to the front, it is added once more.
        imported(import_rows(righe_, last_used_line(righe_) + 1, app_.archives.prv,
                             app_.archives.art, app_.selezione_2),
                 "Il preventivo");
    }
}

void mirorcs::imported(const std::vector<int>& unread, const std::string& source) {
    if (unread.empty()) return paint();
    app_.desk.warn(source + " non si può leggere per intero ("_cp + named_rows(unread) +
                   "): non viene importato nulla.");
}

bool mirorcs::may_save() {
    if (!order_screen::may_save()) return false;
    return head().customer_chosen() ||
           app_.desk.guards().confirm("Nessuno ha scelto il cliente: l'ordine va a "_cp +
                                      head().Text2[campo_cliente::intestazione1].text() +
                                      ". Salvarlo lo stesso?");
}

change_outcome mirorcs::store() {
    app_.data_sistema = date_number(app_.desk.clock().now());
    testata_registrata saved = head_to_store(head(), chosen_price());
    saved.cliente = app_.selezione_1;
    saved.impegno = impegno.on();
    return salva_nuovo_ordine(app_.archives, saved, app_.data_sistema, righe_, lookup_.articles());
}

void mirorcs::describe(bozza& draft) const {
    draft.cliente = app_.selezione_1;
}

void mirorcs::run_own_command(int command) {
    if (command == importa_ordine) return import_order();
    if (command == importa_preventivo) choose_quote();
}

void mirorcs::choose_quote() {
    hide();
    app_.mirorcb.use().show();
}

// The picker lies in front of this screen, in which the user can go on working meanwhile, choose
// another import, save or leave.
void mirorcs::import_order() {
    numfat.set_text("0");
    app_.mirpref.use().show();
    app_.desk.wait_until([this] { return numfat.text() != "0" || gone(); });
    if (gone()) return;
    const std::string& chosen = app_.scelta_ordine;
    if (const auto block = to_int16(number_at_head(chosen)); !chosen.empty() && block) {
        imported(import_rows(righe_, 1, app_.archives.orc, app_.archives.art, *block), "L'ordine");
    }
    artic[0].set_focus();
}

bool mirorcs::gone() const {
    return !app_.mirorcs.loaded() || &*app_.mirorcs != this;
}

}  // namespace vantora
