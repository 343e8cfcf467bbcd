#include <QShortcut>

#include "desktop/words.h"
#include "ui/text_controls.h"
#include "windows/layouts.h"
#include "windows/parts.h"

namespace vantora::ui::desktop {

namespace {

// Columns of the list.
constexpr int order_number = 1;
constexpr int fulfilment_day = 5;

// Daily work first, leaving last.
constexpr int commands_from_left[] = {2, 8, 1, 3, 4, 5, 6, 7, 0};

constexpr command_look commands[] = {
    {"uscita", "&Esci", "Chiude il programma", "Ctrl+Q"},
    {"aggiorna", "&Aggiorna", "Rilegge l'archivio degli ordini", "F5"},
    {"nuovo", "&Nuovo ordine", "Registra un nuovo ordine", "Ctrl+N"},
    {"elenco", "Elenco &ordini", "Elenco degli ordini", "Ctrl+L"},
    {"scadenziario", "&Scadenziario", "Ordini in scadenza", "Ctrl+D"},
    {"valore", "&Valorizzazione", "Valore degli ordini", "Ctrl+Y"},
    {"clienti", "Schede &clienti", "Ordini di ogni cliente", "Ctrl+K"},
    {"articoli", "Schede a&rticoli", "Ordini di ogni articolo", "Ctrl+J"},
    {"evasione", "Evas&ione", "Evade gli ordini di un cliente", "Ctrl+E"},
};

QWidget* register_bar(form_window& window) {
    QHBoxLayout* row = command_row(window, 6);
    for (const int i : commands_from_left) {
        if (i == 3) row->addSpacing(18);
        if (i == 0) row->addStretch(1);
        window.dress("bottone", i, commands[i]);
        add_command(row, window.as<QToolButton>("bottone", i), 28, true);
    }
    return row->parentWidget();
}

QGroupBox* options(form_window& window, const char* title, const char* name, int count) {
    auto* box = new QGroupBox(QString::fromUtf8(title), &window);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(4, 0, 4, 0);
    column->setSpacing(3);
    for (int i = 0; i < count; ++i) column->addWidget(window.widget(name, i));
    column->addStretch(1);
    return box;
}

QGroupBox* compaction(form_window& window) {
    auto* box = new QGroupBox("Archivio", &window);
    auto* text = window.as<QLabel>("srtt", 0);
    text->setWordWrap(true);
    text->setMinimumWidth(220);
    auto* link = window.as<QLabel>("srtt", 1);
    set_look(link, "role", "link");
    link->setCursor(Qt::PointingHandCursor);
    QShortcut* shortcut = add_key(window, "Ctrl+Shift+C", words::compaction);
    const QString tip = QString::fromUtf8(words::compaction) + " (Ctrl+Shift+C)";
    link->setToolTip(tip);
    text->setToolTip(tip);

    // The two labels take no focus; the keyboard reaches them this way.
    QObject::connect(shortcut, &QShortcut::activated, link, [&window] {
        window.act_on<label>("srtt", 1, [](label& here) { here.click(); });
    });

    auto* version = window.as<QLabel>("xx_versione");
    set_look(version, "role", "faint");
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(4, 0, 4, 0);
    column->setSpacing(3);
    column->addWidget(text);
    auto* line = new QHBoxLayout;
    line->addWidget(link);
    line->addStretch(1);
    line->addWidget(version);
    column->addLayout(line);
    column->addStretch(1);
    return box;
}

}  // namespace

void lay_out_mirorc(form_window& window) {
    auto* body = body_under(register_bar(window), window);
    body->addLayout(grid_with_sort_buttons(window, "elenco", "srx", 6), 1);
    auto* orders = window.as<grid_view>("elenco");
    orders->search_in(order_number);
    if (window.by_user()) orders->keep_mark();
    orders->show_notices_in(fulfilment_day);

    auto* progress = window.widget("srt");
    progress->setFixedHeight(progress->fontMetrics().height() + 8);
    body->addWidget(progress);

    auto* foot = new QHBoxLayout;
    foot->setSpacing(10);
    foot->addWidget(options(window, "Registrazioni", "selvis", 3));
    foot->addWidget(options(window, "Ordine di lettura", "visua", 2));
    foot->addWidget(compaction(window), 1);
    body->addLayout(foot);

    std::vector<QWidget*> stops;
    for (const int i : commands_from_left) stops.push_back(window.widget("bottone", i));
    for (int i = 0; i < 6; ++i) stops.push_back(window.widget("srx", i));
    stops.push_back(window.widget("elenco"));
    for (int i = 0; i < 3; ++i) stops.push_back(window.widget("selvis", i));
    for (int i = 0; i < 2; ++i) stops.push_back(window.widget("visua", i));
    window.set_tab_order(stops);

    window.setMinimumSize(960, 520);
    window.set_first_size(QSize(1280, 690));
}

}  // namespace vantora::ui::desktop
