#include "fulfil/mirorca.h"

#include <QCheckBox>
#include <QLineEdit>

#include "windows/layouts.h"
#include "windows/line_window.h"

namespace vantora::ui::desktop {

namespace {

QFrame* movement_bar(form_window& window, mirorca& screen) {
    auto* bar = new QFrame(&window);
    auto* line = new QHBoxLayout(bar);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(8);
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
