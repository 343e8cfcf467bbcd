#include "windows/layouts.h"
#include "windows/line_window.h"

namespace vantora::ui::desktop {

namespace {

QFrame* movement_bar(form_window& window) {
    auto* bar = new QFrame(&window);
    auto* line = new QHBoxLayout(bar);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(8);
    auto* unload = window.as<QAbstractButton>("scarica");
    unload->setToolTip("I beni escono dalla giacenza con un movimento di magazzino");
    add_shortcut(*unload, "Alt+G");
    line->addWidget(unload);
    line->addSpacing(18);
    QWidget* document = window.widget("text1", 0);
    QWidget* movement = window.widget("text1", 1);
    QWidget* day = window.widget("Text");
    line->addWidget(caption_of(movement, "Movimento", bar));
    line->addWidget(sized(movement, 14));
    line->addWidget(caption_of(day, "Data", bar));
    line->addWidget(day);
    line->addWidget(caption_of(document, "Documento", bar));
    sized(document, 60)->setMinimumWidth(0);
    line->addWidget(document, 1);
    line->addStretch(0);
    return bar;
}

}  // namespace

void lay_out_mirorca(form_window& window) {
    lay_out_line_window(
        window,
        {
            {1, {"salva", "&Conferma", "Scarica il magazzino ed emette il documento", "F12"}},
            {2,
             {"inserisci", "&Inserisci riga", "Inserisce una riga vuota sopra la corrente", "F7"}},
            {3, {"cancella", "Cance&lla riga", "Toglie la riga corrente", "Shift+F7"}},
            {4, {"stampante", "S&tampante", "Imposta la stampante", "Ctrl+P"}},
            {0, {"uscita", "&Annulla", "Lascia senza movimento e senza documento", "Ctrl+Q"}},
        },
        {.above = movement_bar(window),
         .totals = {"Numero pezzi", "Totale imponibile", "Totale complessivo"}});
}

}  // namespace vantora::ui::desktop
