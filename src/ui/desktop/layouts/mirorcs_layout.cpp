#include <QLineEdit>
#include <QScrollBar>

#include "ui/desktop/layouts.h"
#include "ui/desktop/layouts/parts.h"

namespace vantora::ui::desktop {

namespace {

constexpr int rows = 12;

struct column {
    const char* control;
    const char* head;
    int characters;  ///< width; 0 takes what is left
    bool number;
};

constexpr column columns[] = {
    {"artic", "Articolo", 15, false},  {"ds", "Descrizione", 0, false}, {"um", "", 2, false},
    {"quantita", "Quantità", 9, true}, {"sc1", "Sconti", 4, true},      {"sc2", "", 4, true},
    {"prezzo", "Prezzo", 11, true},    {"civ", "Iva", 3, false},
};

constexpr command_look commands[] = {
    {"uscita", "&Esci", "Lascia l'ordine senza salvarlo", "Ctrl+Q"},
    {"salva", "&Salva", "Salva l'ordine", "F12"},
    {"inserisci", "&Inserisci riga", "Inserisce una riga vuota sopra la corrente", "Ctrl+Ins"},
    {"cancella", "&Cancella riga", "Toglie la riga corrente", "Ctrl+Del"},
    {"stampante", "S&tampante", "Imposta la stampante", "Ctrl+P"},
    {"importa_ordine", "Ordine", "Importa le righe di un altro ordine", ""},
    {"importa_preventivo", "Preventivo", "Importa le righe di un preventivo", ""},
};

QFrame* command_bar(form_window& window) {
    auto* bar = new QFrame(&window);
    set_look(bar, "role", "bar");
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(8, 6, 8, 6);
    row->setSpacing(2);
    for (const int i : {1, 2, 3, 4, 5, 6, 0}) {
        if (i == 5) {
            row->addSpacing(16);
            row->addWidget(caption("Importa:", bar));
        }
        if (i == 0) row->addStretch(1);
        window.dress("comando", i, commands[i]);
        auto* button = window.as<QToolButton>("comando", i);
        button->setIconSize(QSize(26, 26));
        button->setMinimumWidth(84);
        row->addWidget(button);
    }
    return bar;
}

QGroupBox* line_frame(form_window& window) {
    auto* box = new QGroupBox("Dettaglio documento", &window);
    auto* cells = new QGridLayout;
    cells->setSpacing(1);
    int col = 0;
    for (const column& one : columns) {
        auto* head = new QLabel(QString::fromUtf8(one.head), box);
        set_look(head, "role", "faint");
        head->setContentsMargins(4, 0, 5, 0);
        if (one.number) head->setAlignment(Qt::AlignRight);
        cells->addWidget(head, 0, col);
        for (int row = 0; row < rows; ++row) {
            auto* cell = window.as<QLineEdit>(one.control, row);
            set_look(cell, "cell", "true");
            if (one.number) cell->setAlignment(Qt::AlignRight);
            if (one.characters > 0) sized(cell, one.characters);
            cells->addWidget(cell, row + 1, col);
        }
        if (one.characters == 0) cells->setColumnStretch(col, 1);
        ++col;
    }
    auto* bar = window.as<QScrollBar>("VScroll1");
    bar->setOrientation(Qt::Vertical);
    bar->setFixedWidth(18);
    cells->addWidget(bar, 1, col, rows, 1);

    auto* hint =
        new QLabel(QString::fromUtf8(
                       "Per cercare un articolo tramite la descrizione, inserirla e premere F1)"),
                   box);
    set_look(hint, "role", "faint");
    auto* pick = window.widget("Combo1");
    QSizePolicy place(QSizePolicy::Preferred, QSizePolicy::Fixed);
    place.setRetainSizeWhenHidden(true);
    pick->setSizePolicy(place);
    pick->setMinimumWidth(260);
    auto* foot = new QHBoxLayout;
    foot->addWidget(hint, 1);
    foot->addWidget(pick);

    auto* all = new QVBoxLayout(box);
    all->addLayout(cells);
    all->addLayout(foot);
    all->addStretch(1);
    return box;
}

QGroupBox* list_frame(form_window& window) {
    auto* box = new QGroupBox("Lista articoli memorizzati in magazzino", &window);
    auto* column = new QVBoxLayout(box);
    auto* list = window.widget("List1");
    list->setFont(QFont("Liberation Mono", 9));
    list->setFixedWidth(300);
    column->addWidget(list, 1);
    auto* line = new QHBoxLayout;
    window.dress("command3d3", -1,
                 {"aggiorna", "Ricarica", "Rilegge la lista degli articoli", "F5"},
                 Qt::ToolButtonTextBesideIcon);
    window.dress("riordina", -1, {"riordina", "Riordina righe", "Ordina le righe per codice", ""},
                 Qt::ToolButtonTextBesideIcon);
    for (const char* name : {"command3d3", "riordina"}) {
        set_look(window.widget(name), "look", "plain");
        line->addWidget(window.widget(name));
    }
    line->addStretch(1);
    column->addLayout(line);
    return box;
}

QHBoxLayout* foot_line(form_window& window) {
    auto* foot = new QHBoxLayout;
    foot->setSpacing(14);
    auto* choices = new QGridLayout;
    choices->setVerticalSpacing(4);
    choices->addWidget(window.widget("prezz", 0), 0, 0);
    choices->addWidget(window.widget("prezz", 1), 1, 0);
    choices->addWidget(window.widget("barcode"), 0, 1);
    choices->addWidget(window.widget("impegno"), 1, 1);
    choices->addWidget(window.widget("postael"), 0, 2);
    choices->setHorizontalSpacing(18);
    foot->addLayout(choices);
    foot->setAlignment(choices, Qt::AlignBottom);
    foot->addStretch(1);
    constexpr const char* captions[] = {"Totale imponibile", "Totale complessivo", "Numero pezzi"};
    for (int i = 0; i < 3; ++i) {
        auto* total = window.as<QLabel>("tota", i);
        set_look(total, "role", "total");
        total->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        total->setMinimumWidth(130);
        auto* column = new QVBoxLayout;
        column->setSpacing(2);
        auto* text = caption(captions[i], &window);
        set_look(text, "role", "faint");
        column->addWidget(text);
        column->addWidget(total);
        foot->addLayout(column);
    }
    return foot;
}

}  // namespace

void lay_out_mirorcs(form_window& window) {
    auto* all = new QVBoxLayout(&window);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addWidget(command_bar(window));

    auto* body = new QVBoxLayout;
    body->setContentsMargins(10, 8, 10, 10);
    body->setSpacing(8);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(10);
    middle->addWidget(line_frame(window), 1);
    middle->addWidget(list_frame(window));
    body->addLayout(middle, 1);
    auto* stock = window.as<QLabel>("listx");
    stock->setFont(QFont("Liberation Mono", 9));
    stock->setFixedHeight(stock->fontMetrics().height() + 4);
    stock->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    // The record number at the end of the line is not for the eye.
    stock->setMaximumWidth(stock->fontMetrics().horizontalAdvance(QString(140, '0')));
    body->addWidget(stock);
    body->addLayout(foot_line(window));
    all->addLayout(body, 1);

    window.setMinimumSize(1040, 600);
    window.set_first_size(QSize(1330, 700));
}

}  // namespace vantora::ui::desktop
