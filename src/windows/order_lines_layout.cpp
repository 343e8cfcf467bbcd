#include <QCheckBox>

#include "entry/mirorcs.h"
#include "entry/mirorcz.h"
#include "fulfil/mirorca.h"
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

QFrame* movement_bar(form_window& window, mirorca& screen) {
    auto* bar = new QFrame(&window);
    auto* line = arranged<QHBoxLayout>(bar, {0, 0, 0, 0}, 8);
    QAbstractButton* unload = window.widget(screen.scarica);
    unload->setToolTip("I beni escono dalla giacenza con un movimento di magazzino");
    add_shortcut(*unload, "Alt+G");
    line->addWidget(unload);
    line->addSpacing(18);
    QWidget* document = window.widget(screen.text1[0]);
    QWidget* movement = window.widget(screen.text1[1]);
    QWidget* day = window.widget(screen.Text);
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

void lay_out(form_window& window, mirorca& screen) {
    lay_out_lines(
        window, screen,
        {
            {conferma,
             {"salva", "&Conferma", "Scarica il magazzino ed emette il documento", "F12"}},
            {inserisci_riga,
             {"inserisci", "&Inserisci riga", "Inserisce una riga vuota sopra la corrente", "F7"}},
            {cancella_riga, {"cancella", "Cance&lla riga", "Toglie la riga corrente", "Shift+F7"}},
            {stampante, {"stampante", "S&tampante", "Imposta la stampante", "Ctrl+P"}},
            {uscita, {"uscita", "&Annulla", "Lascia senza movimento e senza documento", "Ctrl+Q"}},
        },
        {.head = &screen.testata, .above = movement_bar(window, screen)});
    add_shortcut(*window.widget(screen.comando[uscita]), "Esc");
}

}  // namespace vantora::ui::desktop
