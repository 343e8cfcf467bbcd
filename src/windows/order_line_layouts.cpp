#include "windows/layouts.h"
#include "windows/line_window.h"

namespace vantora::ui::desktop {

namespace {

/// The lines of a new and of an existing order differ in two commands, and in what leaving loses.
void lay_out_order_lines(form_window& window, const line_command& first, const line_command& second,
                         const char* leaving) {
    lay_out_line_window(
        window,
        {
            {1, {"salva", "&Salva", "Salva l'ordine", "F12"}},
            {2,
             {"inserisci", "&Inserisci riga", "Inserisce una riga vuota sopra la corrente", "F7"}},
            {3, {"cancella", "&Cancella riga", "Toglie la riga corrente", "Shift+F7"}},
            first,
            second,
            {4, {"stampante", "S&tampante", "Imposta la stampante", "Ctrl+P"}},
            {0, {"uscita", "&Esci", leaving, "Ctrl+Q"}},
        });
}

}  // namespace

void lay_out_mirorcs(form_window& window) {
    lay_out_order_lines(
        window,
        {5, {"importa_ordine", "Importa or&dine", "Importa le righe di un altro ordine", "Ctrl+O"}},
        {6,
         {"importa_preventivo", "Importa pre&ventivo", "Importa le righe di un preventivo",
          "Ctrl+I"}},
        "Lascia l'ordine senza salvarlo");
}

void lay_out_mirorcz(form_window& window) {
    lay_out_order_lines(window,
                        {5, {"clienti", "C&liente", "Cliente e riferimenti dell'ordine", "F6"}},
                        {6, {"elimina", "Elimi&na ordine", "Elimina l'ordine", "Ctrl+Del"}},
                        "Lascia l'ordine senza salvare le modifiche");
}

}  // namespace vantora::ui::desktop
