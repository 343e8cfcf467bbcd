#include <QAction>
#include <algorithm>
#include <vector>

#include "reports/mirstoa.h"
#include "reports/mirston.h"
#include "windows/layout_pieces.h"
#include "windows/layouts.h"

namespace vantora::ui::desktop {

namespace {

struct report_command {
    report_screen::comando which;
    command_look look;
};

constexpr report_command report_commands[] = {
    {report_screen::stampa, {"stampante", "&Stampa", "Stampa la lista", "Ctrl+P"}},
    {report_screen::pdf, {"pdf", "P&DF", "Genera il PDF della lista", "Ctrl+G"}},
    {report_screen::stampante,
     {"imposta_stampante", "Stam&pante", "Imposta la stampante", "Ctrl+Shift+P"}},
    {report_screen::uscita, {"uscita", "&Esci", "Torna al registro degli ordini", "Esc"}},
};

/// A filter and how wide it is, in characters; `stretch`: takes its share of what is left.
struct filter_look {
    filtro which;
    const char* caption;
    int width;
    int stretch;
};

constexpr filter_look filters[] = {
    {filtro::categoria, "Categoria merceologica", 14, 3},
    {filtro::fornitore, "Codice fornitore", 6, 0},
    {filtro::descrizione, "Descrizione", 12, 3},
    {filtro::stato_ordini, "Ordini", 20, 0},
    {filtro::dettaglio, "Dettaglio", 12, 0},
    {filtro::primo_ordine, "Dall'ordine numero", 6, 0},
    {filtro::ultimo_ordine, "All'ordine numero", 6, 0},
    {filtro::prima_data, "Dalla data", 10, 0},
    {filtro::ultima_data, "Alla data", 10, 0},
};

/// The sheets that a report goes from and to.
using sheet_range = std::vector<filter_look>;

QWidget* report_bar(form_window& window, report_screen& screen) {
    QHBoxLayout* row = command_row(window, 6);
    for (const auto& [which, look] : report_commands) {
        if (which == report_screen::uscita) row->addStretch(1);
        QToolButton* command = window.dress(screen.bottone[which], look);
        if (which == report_screen::uscita) add_shortcut(*command, "Ctrl+Q");
        add_command(row, command, 28);
    }
    return row->parentWidget();
}

/// The command that builds the list, with the progress of the build at its side.
void add_building(form_window& window, report_screen& screen, QHBoxLayout* row) {
    QWidget* progress = window.widget(screen.srt);
    progress->setMinimumWidth(60);
    progress->setMaximumWidth(150);
    progress->setFixedHeight(progress->fontMetrics().height() + 8);
    QSizePolicy place(QSizePolicy::Expanding, QSizePolicy::Fixed);
    place.setRetainSizeWhenHidden(true);
    progress->setSizePolicy(place);
    row->addSpacing(6);
    row->addWidget(plain_command(window, screen.bottone[report_screen::aggiorna],
                                 {"aggiorna", "&Aggiorna lista",
                                  "Costruisce la lista con i filtri scelti", "F5"}),
                   0, Qt::AlignBottom);
    row->addWidget(progress, 0, Qt::AlignBottom);
}

/// From the filters to the list they make, then to what is done with it.
void order_tabs(form_window& window, report_screen& screen) {
    std::vector<QWidget*> stops;
    for (const filtro one : screen.filters()) {
        stops.push_back(window.widget(screen.filter(one)));
        if (const date_picker* picker = screen.calendar(one)) {
            stops.push_back(window.widget(*picker));
        }
    }
    stops.push_back(window.widget(screen.bottone[report_screen::aggiorna]));
    stops.push_back(window.widget(screen.elenco));
    for (const auto& one : report_commands) {
        stops.push_back(window.widget(screen.bottone[one.which]));
    }
    window.set_tab_order(stops);
}

void add_filter(form_window& window, report_screen& screen, const filter_look& look,
                QHBoxLayout* row) {
    QWidget* field = window.widget(screen.filter(look.which));
    sized(field, look.width);
    if (look.stretch > 0) {
        field->setMinimumWidth(field->width());
        field->setMaximumWidth(2 * field->width());
    }
    auto* above = caption_of(field, look.caption, &window);
    above->setAlignment(Qt::AlignLeft);
    set_look(above, "role", "faint");
    auto* column = arranged<QVBoxLayout>(2);
    column->addWidget(above);
    auto* line = arranged<QHBoxLayout>(3);
    line->addWidget(field);
    if (const date_picker* picker = screen.calendar(look.which)) {
        QWidget* calendar = dress_calendar(window.widget(*picker));
        calendar->setAccessibleName(spoken(look.caption));
        line->addWidget(calendar);
    }
    if (look.stretch == 0) line->addStretch(1);
    column->addLayout(line);
    row->addLayout(column, look.stretch);
}

QHBoxLayout* filter_row(form_window& window, report_screen& screen, const sheet_range& sheets) {
    auto* row = arranged<QHBoxLayout>(10);
    for (const filtro which : screen.filters()) {
        const auto is_it = [which](const filter_look& one) { return one.which == which; };
        const auto sheet = std::ranges::find_if(sheets, is_it);
        add_filter(window, screen,
                   sheet != sheets.end() ? *sheet : *std::ranges::find_if(filters, is_it), row);
    }
    add_building(window, screen, row);
    // Once the fields are as wide as they get.
    row->addStretch(0);
    return row;
}

/// How many rows the list has.
QLabel* row_count(form_window& window, report_screen& screen) {
    auto* text = new QLabel(&window);
    set_look(text, "role", "faint");
    grid_view* list = window.widget(screen.elenco);
    QObject::connect(list->model(), &QAbstractItemModel::modelReset, text, [text, &screen] {
        text->setText(screen.listed() > 0 ? QString("Righe: %1").arg(screen.listed()) : QString());
    });
    return text;
}

void lay_out_report(form_window& window, report_screen& screen, const sheet_range& sheets) {
    auto* body = body_under(report_bar(window, screen), window);
    body->addLayout(filter_row(window, screen, sheets));
    grid_view* list = window.widget(screen.elenco);
    QToolButton* pdf = window.widget(screen.bottone[report_screen::pdf]);
    auto* as_pdf = new QAction("Genera il PDF della lista", list);
    QObject::connect(as_pdf, &QAction::triggered, pdf, &QToolButton::click);
    list->addAction(as_pdf);
    body->addWidget(list, 1);
    body->addWidget(row_count(window, screen));
    if (window.by_person()) window.begin_in(screen.elenco);
    QWidget* cut = window.widget(screen.avviso);
    set_look(cut, "role", "warning");
    body->addWidget(cut);
    order_tabs(window, screen);
    window.set_sizes({960, 520}, {1280, 690});
}

}  // namespace

void lay_out(form_window& window, report_screen& screen) {
    lay_out_report(window, screen, {});
}

void lay_out(form_window& window, mirstoa& screen) {
    lay_out_report(
        window, screen,
        {{filtro::inizio, "Dall'articolo", 10, 2}, {filtro::fine, "All'articolo", 10, 2}});
}

void lay_out(form_window& window, mirston& screen) {
    lay_out_report(window, screen,
                   {{filtro::inizio, "Dal cliente", 20, 3}, {filtro::fine, "Al cliente", 20, 3}});
}

}  // namespace vantora::ui::desktop
