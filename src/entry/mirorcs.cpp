#include "entry/mirorcs.h"

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
    switch (command) {
        case uscita:
            return leave();
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
