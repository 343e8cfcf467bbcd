#include "entry/mirorcs.h"
#include "entry/mirorcz.h"
#include "windows/layouts.h"
#include "windows/line_window.h"

namespace vantora::ui::desktop {

namespace {

/// The lines of a new and of an existing order differ in two commands, and in what leaving loses.
void lay_out_order(form_window& window, order_screen& screen, const line_command& first,
                   const line_command& second, const char* leaving) {
    lay_out_lines(
        window, screen,
        {
            {conferma, {"salva", "&Salva", "Salva l'ordine", "F12"}},
            {inserisci_riga,
             {"inserisci", "&Inserisci riga", "Inserisce una riga vuota sopra la corrente", "F7"}},
            {cancella_riga, {"cancella", "&Cancella riga", "Toglie la riga corrente", "Shift+F7"}},
            first,
            second,
            {stampante, {"stampante", "S&tampante", "Imposta la stampante", "Ctrl+P"}},
            {uscita, {"uscita", "&Esci", leaving, "Ctrl+Q"}},
        },
        {.head = &screen.testata});
}

}  // namespace

void lay_out(form_window& window, mirorcs& screen) {
    lay_out_order(
        window, screen,
        {mirorcs::importa_ordine,
         {"importa_ordine", "Or&dine", "Importa le righe di un altro ordine", "Ctrl+O"},
         "Importa:"},
        {mirorcs::importa_preventivo,
         {"importa_preventivo", "Pre&ventivo", "Importa le righe di un preventivo", "Ctrl+I"}},
        "Lascia l'ordine senza salvarlo");
}

void lay_out(form_window& window, mirorcz& screen) {
    lay_out_order(
        window, screen,
        {mirorcz::modifica_testata,
         {"clienti", "C&liente", "Cliente e riferimenti dell'ordine", "F6"}},
        {mirorcz::elimina, {"elimina", "Elimi&na ordine", "Elimina l'ordine", "Ctrl+Del"}},
        "Lascia l'ordine senza salvare le modifiche");
}

}  // namespace vantora::ui::desktop
