#include "ui/desktop/layouts.h"
#include "ui/desktop/layouts/line_window.h"

namespace vantora::ui::desktop {

void lay_out_mirorcz(form_window& window) {
    lay_out_line_window(
        window,
        {
            {1, {"salva", "&Salva", "Salva l'ordine", "F12"}},
            {2,
             {"inserisci", "&Inserisci riga", "Inserisce una riga vuota sopra la corrente", "F7"}},
            {3, {"cancella", "&Cancella riga", "Toglie la riga corrente", "Shift+F7"}},
            {5, {"clienti", "C&liente", "Cliente e riferimenti dell'ordine", "F6"}},
            {6, {"elimina", "Elimi&na ordine", "Elimina l'ordine", "Ctrl+Del"}},
            {4, {"stampante", "S&tampante", "Imposta la stampante", "Ctrl+P"}},
            {0, {"uscita", "&Esci", "Lascia l'ordine senza salvare le modifiche", "Ctrl+Q"}},
        });
}

}  // namespace vantora::ui::desktop
