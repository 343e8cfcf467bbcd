#include "register/mirorc.h"

#include <QAbstractButton>

#include "desktop/look/words.h"
#include "windows/layout_pieces.h"
#include "windows/layouts.h"

namespace vantora::ui::desktop {

namespace {

struct register_command {
    mirorc::comando which;
    command_look look;
};

// Daily work first, leaving last.
constexpr register_command register_commands[] = {
    {mirorc::nuovo_ordine, {"nuovo", "&Nuovo ordine", "Registra un nuovo ordine", "Ctrl+N"}},
    {mirorc::fulfilment, {"evasione", "Evas&ione", "Evade gli ordini di un cliente", "Ctrl+E"}},
    {mirorc::aggiorna, {"aggiorna", "&Aggiorna", "Rilegge l'archivio degli ordini", "F5"}},
    {mirorc::elenco_ordini, {"elenco", "Elenco &ordini", "Elenco degli ordini", "Ctrl+L"}},
    {mirorc::scadenziario, {"scadenziario", "&Scadenziario", "Ordini in scadenza", "Ctrl+D"}},
    {mirorc::valorizzazione, {"valore", "&Valorizzazione", "Valore degli ordini", "Ctrl+Y"}},
    {mirorc::schede_clienti, {"clienti", "Schede &clienti", "Ordini di ogni cliente", "Ctrl+K"}},
    {mirorc::schede_articoli,
     {"articoli", "Schede a&rticoli", "Ordini di ogni articolo", "Ctrl+J"}},
    {mirorc::uscita, {"uscita", "&Esci", "Chiude il programma", "Ctrl+Q"}},
};

QWidget* register_bar(form_window& window, mirorc& screen) {
    QHBoxLayout* row = command_row(window, 6);
    for (const auto& [which, look] : register_commands) {
        if (which == mirorc::elenco_ordini) row->addSpacing(18);
        if (which == mirorc::uscita) row->addStretch(1);
        add_command(row, window.dress(screen.bottone[which], look), 28, true);
    }
    return row->parentWidget();
}

QGroupBox* options(form_window& window, const char* title, std::span<option_button> choices) {
    auto* box = new QGroupBox(title, &window);
    auto* column = arranged<QVBoxLayout>(box, {4, 0, 4, 0}, 3);
    for (const option_button& one : choices) column->addWidget(window.widget(one));
    column->addStretch(1);
    return box;
}

/// What the view of all orders leaves out stands beside it.
QGroupBox* views(form_window& window, mirorc& screen) {
    QGroupBox* box = options(window, "Registrazioni", screen.selvis);
    QWidget* left_out = window.widget(screen.avviso);
    set_look(left_out, "role", "warning");
    auto* beside = new QHBoxLayout;
    static_cast<QVBoxLayout*>(box->layout())->insertLayout(0, beside);
    beside->addWidget(window.widget(screen.selvis[0]));
    beside->addWidget(left_out);
    beside->addStretch(1);
    return box;
}

/// The list begins with the oldest order, whichever part of it is in sight.
void mark_newest(grid& orders) {
    if (orders.row() > 0) return;
    int row = orders.rows() - 1;
    while (row > 0 && orders.text(row, mirorc::registr).empty()) --row;
    orders.set_row(row);
}

QGroupBox* compaction(form_window& window, mirorc& screen) {
    auto* box = new QGroupBox("Archivio", &window);
    QLabel* text = window.widget(screen.srtt[0]);
    text->setWordWrap(true);
    text->setMinimumWidth(220);
    label& starts = screen.srtt[1];
    QLabel* link = window.widget(starts);
    set_look(link, "role", "link");
    link->setCursor(Qt::PointingHandCursor);
    const QString tip = QString("%1 (%2)").arg(
        words::compaction, QKeySequence("Ctrl+Shift+C").toString(QKeySequence::NativeText));
    link->setToolTip(tip);
    text->setToolTip(tip);

    // The two labels take no focus; the keyboard reaches them this way.
    add_key(window, "Ctrl+Shift+C", words::compaction,
            [&window, &starts] { window.act_on(starts, [&starts] { starts.click(); }); });

    auto* version = window.widget(screen.xx_versione);
    set_look(version, "role", "faint");
    auto* column = arranged<QVBoxLayout>(box, {4, 0, 4, 0}, 3);
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

void lay_out(form_window& window, mirorc& screen) {
    auto* body = body_under(register_bar(window, screen), window);
    body->addLayout(grid_with_sort_buttons(window, screen.elenco, screen.srx), 1);
    grid_view* orders = window.widget(screen.elenco);
    orders->search_in(mirorc::ordine);
    if (window.by_person()) {
        orders->keep_mark();
        window.begin_in(screen.elenco, [&screen] { mark_newest(screen.elenco); });
    }
    orders->show_notices_in(mirorc::evasione);

    QWidget* progress = window.widget(screen.srt);
    progress->setFixedHeight(progress->fontMetrics().height() + 8);
    body->addWidget(progress);

    auto* foot = arranged<QHBoxLayout>(10);
    foot->addWidget(views(window, screen));
    foot->addWidget(options(window, "Ordine di lettura", screen.visua));
    foot->addWidget(compaction(window, screen), 1);
    body->addLayout(foot);

    std::vector<QWidget*> stops;
    for (const auto& one : register_commands)
        stops.push_back(window.widget(screen.bottone[one.which]));
    for (const button& one : screen.srx) stops.push_back(window.widget(one));
    stops.push_back(orders);
    for (const option_button& one : screen.selvis) stops.push_back(window.widget(one));
    for (const option_button& one : screen.visua) stops.push_back(window.widget(one));
    window.set_tab_order(stops);

    window.set_sizes({960, 520}, {1280, 690});
}

}  // namespace vantora::ui::desktop
