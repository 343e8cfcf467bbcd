#include "entry/mirorcs.h"

#include "customer/mirorcx.h"
#include "entry/order_head.h"
#include "entry/order_printing.h"
#include "store/text/dates.h"

namespace vantora {

namespace {

constexpr line_grid_kind nuovo_ordine{"mirorcs", "Gestione ordini clienti", tipo_documento::ordine,
                                      false};

/// Commands of `comando`.
enum { uscita, salva, inserisci, cancella, stampante, importa_ordine, importa_preventivo };

}  // namespace

mirorcs::mirorcs(program& app) : line_grid(app, nuovo_ordine) {}

void mirorcs::activate() {
    Picture1.set_visible(false);
    Combo1.set_visible(false);
    if (app_.modo_ordine == 0) open_fresh(app_.selezione_1);
    artic[0].set_focus();
}

void mirorcs::run_command(int command) {
    // A picture on paper lets the user's clicks through while it prints.
    if (saving_) return;
    switch (command) {
        case uscita:
            return leave();
        case salva:
            return save();
        case inserisci:
            return insert_line();
        case cancella:
            return delete_line();
        case stampante:
            return printer_setup();
        default:
            return;
    }
}

void mirorcs::save() {
    saving_ = true;
    app_.data_sistema = date_number(app_.desk.clock().now());
    testata_registrata head = testata_da_registrare(*app_.mirorcx, prezz[0].on()   ? 0
                                                                   : prezz[1].on() ? 1
                                                                                   : 2);
    head.cliente = app_.selezione_1;
    head.impegno = impegno.on();
    head.data_reg = app_.data_sistema;
    app_.desk.set_pointer(ui::pointer::busy);
    const bool saved = salva_nuovo_ordine(app_.archives, head, righe_, articoli_.quanti);
    app_.desk.set_pointer(ui::pointer::normal);
    if (saved) offer_to_print();
    saving_ = false;
    if (!saved) {
        app_.desk.message("Archivio degli ordini non leggibile: l'ordine non è stato salvato"_cp,
                          "Attenzione", ui::icon::stop);
        return;
    }
    app_.ricarica_registro = 1;
    leave();
}

void mirorcs::offer_to_print() {
    const testata_ordine head = testata_da_stampare(*app_.mirorcx);
    offri_stampa(
        app_, "Ordine cliente",
        {head, righe_, totali_.iva, cliente_, valuta_, tabelle_, disegno_, Picture1},
        {tipo_documento::ordine, head.text3[0], postael.on(), cliente_.email.full(), tabelle_});
}

void mirorcs::leave() {
    unload();
    if (app_.mirorcx.loaded()) app_.mirorcx.use().unload();
    app_.mirorc.use().show();
}

void mirorcs::close() {
    unload();
    app_.mirorc.use().show();
}

}  // namespace vantora
