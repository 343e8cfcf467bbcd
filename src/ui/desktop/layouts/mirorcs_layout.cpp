#include "ui/desktop/layouts.h"
#include "ui/desktop/layouts/line_window.h"

namespace vantora::ui::desktop {

void lay_out_mirorcs(form_window& window) {
    lay_out_line_window(
        window,
        {
            {1, {"salva", "&Salva", "Salva l'ordine", "F12"}},
            {2,
             {"inserisci", "&Inserisci riga", "Inserisce una riga vuota sopra la corrente", "F7"}},
            {3, {"cancella", "&Cancella riga", "Toglie la riga corrente", "Shift+F7"}},
            {5,
             {"importa_ordine", "Importa or&dine", "Importa le righe di un altro ordine",
              "Ctrl+O"}},
            {6,
             {"importa_preventivo", "Importa pre&ventivo", "Importa le righe di un preventivo",
              "Ctrl+I"}},
            {4, {"stampante", "S&tampante", "Imposta la stampante", "Ctrl+P"}},
            {0, {"uscita", "&Esci", "Lascia l'ordine senza salvarlo", "Ctrl+Q"}},
        });
}

}  // namespace vantora::ui::desktop
