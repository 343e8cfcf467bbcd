#include <QAction>
#include <span>
#include <vector>

#include "desktop/words.h"
#include "windows/layouts.h"
#include "windows/parts.h"

namespace vantora::ui::desktop {

namespace {

constexpr command_look commands[] = {
    {"uscita", "&Esci", "Torna al registro degli ordini", "Esc"},
    {"pdf", "P&DF", "Genera il PDF della lista", "Ctrl+G"},
    {"stampante", "&Stampa", "Stampa la lista", "Ctrl+P"},
    {"imposta_stampante", "Stam&pante", "Imposta la stampante", "Ctrl+Shift+P"},
    {"aggiorna", "&Aggiorna lista", "Costruisce la lista con i filtri scelti", "F5"},
};

constexpr int commands_from_left[] = {2, 1, 3, 0};

/// A filter and how wide it is, in characters; `stretch`: takes its share of what is left.
struct filter_look {
    const char* caption;
    const char* name;
    int index;
    int width;
    int stretch;
};

constexpr filter_look article_filters[] = {
    {"Dall'articolo", "t_inizio", -1, 10, 2},
    {"All'articolo", "t_fine", -1, 10, 2},
    {"Categoria merceologica", "Combo0", -1, 14, 3},
    {"Codice fornitore", "Text", 1, 6, 0},
    {"Descrizione", "Text3", -1, 12, 3},
    {"Dall'ordine numero", "text1", 0, 6, 0},
    {"All'ordine numero", "text1", 1, 6, 0},
};
constexpr filter_look customer_filters[] = {
    {"Dal cliente", "t_inizio", -1, 20, 3},
    {"Al cliente", "t_fine", -1, 20, 3},
    {"Dall'ordine numero", "text1", 0, 6, 0},
    {"All'ordine numero", "text1", 1, 6, 0},
};
constexpr filter_look order_filters[] = {
    {"Ordini", "Combo1", -1, 20, 0},
    {"Dettaglio", "Combo2", -1, 12, 0},
    {"Dall'ordine numero", "text1", 0, 6, 0},
    {"All'ordine numero", "text1", 1, 6, 0},
};
constexpr filter_look schedule_filters[] = {
    {"Dettaglio", "Combo2", -1, 12, 0},      {"Dall'ordine numero", "text1", 0, 6, 0},
    {"All'ordine numero", "text1", 1, 6, 0}, {"Dalla data", "text2", 0, 10, 0},
    {"Alla data", "text2", 1, 10, 0},
};
constexpr filter_look value_filters[] = {
    {"Ordini", "Combo1", -1, 20, 0},
    {"Dall'ordine numero", "text1", 0, 6, 0},
    {"All'ordine numero", "text1", 1, 6, 0},
};

QWidget* report_bar(form_window& window) {
    QHBoxLayout* row = command_row(window, 6);
    for (const int i : commands_from_left) {
        if (i == 0) row->addStretch(1);
        window.dress("bottone", i, commands[i]);
        add_command(row, window.as<QToolButton>("bottone", i), 28);
    }
    return row->parentWidget();
}

/// The command that builds the list, with the progress of the build at its side.
void add_building(form_window& window, QHBoxLayout* row) {
    window.dress("bottone", 4, commands[4], Qt::ToolButtonTextBesideIcon);
    set_look(window.widget("bottone", 4), "look", "plain");
    auto* progress = window.widget("srt");
    progress->setMinimumWidth(60);
    progress->setMaximumWidth(150);
    progress->setFixedHeight(progress->fontMetrics().height() + 8);
    QSizePolicy place(QSizePolicy::Expanding, QSizePolicy::Fixed);
    place.setRetainSizeWhenHidden(true);
    progress->setSizePolicy(place);
    row->addSpacing(6);
    row->addWidget(window.widget("bottone", 4), 0, Qt::AlignBottom);
    row->addWidget(progress, 0, Qt::AlignBottom);
}

/// From the filters to the list they make, then to what is done with it.
void order_tabs(form_window& window, std::span<const filter_look> filters) {
    std::vector<QWidget*> stops;
    for (const filter_look& one : filters) stops.push_back(window.widget(one.name, one.index));
    stops.push_back(window.widget("bottone", 4));
    stops.push_back(window.widget("elenco"));
    for (const int i : commands_from_left) stops.push_back(window.widget("bottone", i));
    window.set_tab_order(stops);
}

QHBoxLayout* filter_row(form_window& window, std::span<const filter_look> filters) {
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    for (const filter_look& one : filters) {
        QWidget* field = window.widget(one.name, one.index);
        sized(field, one.width);
        if (one.stretch > 0) {
            field->setMinimumWidth(field->width());
            field->setMaximumWidth(2 * field->width());
        }
        auto* above = caption_of(field, one.caption, &window);
        above->setAlignment(Qt::AlignLeft);
        set_look(above, "role", "faint");
        auto* column = new QVBoxLayout;
        column->setSpacing(2);
        column->addWidget(above);
        column->addWidget(field);
        row->addLayout(column, one.stretch);
    }
    add_building(window, row);
    // Once the fields are as wide as they get.
    row->addStretch(0);
    return row;
}

void lay_out_report(form_window& window, std::span<const filter_look> filters, int total_column,
                    const char* total) {
    auto* body = body_under(report_bar(window), window);
    body->addLayout(filter_row(window, filters));
    auto* list = window.as<grid_view>("elenco");
    if (total) list->set_off(total_column, total);
    auto* pdf = window.as<QToolButton>("bottone", 1);
    auto* as_pdf = new QAction(QString::fromUtf8(words::list_as_pdf), list);
    QObject::connect(as_pdf, &QAction::triggered, pdf, &QToolButton::click);
    list->addAction(as_pdf);
    body->addWidget(list, 1);
    order_tabs(window, filters);
    window.setMinimumSize(960, 520);
    window.set_first_size(QSize(1280, 690));
}

}  // namespace

void lay_out_mirstoa(form_window& window) {
    lay_out_report(window, article_filters, 3, "Totale");
}
void lay_out_mirston(form_window& window) {
    lay_out_report(window, customer_filters, 3, "Totale");
}
void lay_out_mirstoe(form_window& window) {
    lay_out_report(window, order_filters, 0, nullptr);
}
void lay_out_mirstos(form_window& window) {
    lay_out_report(window, schedule_filters, 0, nullptr);
}
void lay_out_mirstov(form_window& window) {
    lay_out_report(window, value_filters, 2, "Importo complessivo");
}

}  // namespace vantora::ui::desktop
