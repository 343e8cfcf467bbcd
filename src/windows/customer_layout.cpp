#include <QApplication>
#include <QLineEdit>
#include <QScrollBar>
#include <functional>
#include <span>

#include "customer/mirorcm.h"
#include "customer/mirorcx.h"
#include "fulfil/mirorcc.h"
#include "windows/growing_part.h"
#include "windows/layout_pieces.h"
#include "windows/layouts.h"

namespace vantora::ui::desktop {

// The window of a screen that shows a customer and holds the head of a document: what differs from
// screen to screen is the frame with the document's own fields, and the way on.

namespace {

/// A field of a frame.
struct frame_field {
    const control& shown;
    int characters = 0;        ///< how many shall fit; 0: it takes what is left
    const char* caption = "";  ///< of a field that isn't the first of its row
};

/// A row of a frame: a caption and the fields behind it.
struct frame_row {
    const char* caption;
    std::vector<frame_field> fields;
};

struct customer_window {
    const char* frame;           ///< title of the frame with the document's own fields
    std::vector<frame_row> own;  ///< its rows
    command_look go_on;          ///< the button that goes on
    const char* leaving;         ///< what the button that leaves does
    /// Leaves; without it, the window is closed as by its title bar.
    std::function<void()> leave = {};
};

constexpr QSize head_as_designed(1340, 640);
constexpr int widest = 1320;      ///< dots, as designed; wider screens leave room at both sides
constexpr int tallest_step = 26;  ///< of the fields, in tenths of a text's height

constexpr const char* hint =
    "Per cercare un cliente utilizzare il cursore a lato oppure inserire nel campo sottostante il "
    "nominativo o la ragione sociale (o parte di essa) e clic sul bottone 'cerca'";

std::vector<frame_row> registered_office_rows(const customer_head& head) {
    const auto& fields = head.Text2;
    using namespace campo_cliente;
    return {
        {"Intestazione ", {{fields[intestazione1]}}},
        {"", {{fields[intestazione2]}}},
        {"Indirizzo", {{fields[indirizzo]}}},
        {"CAP Città", {{fields[cap], 6}, {fields[citta]}}},
        {"Codice fiscale",
         {{fields[codice_fiscale]},
          {fields[prefisso_iva], 2, "Partita iva"},
          {fields[partita_iva], 12}}},
    };
}

std::vector<frame_row> administrative_office_rows(const customer_head& head) {
    const auto& fields = head.Text2;
    using namespace campo_cliente;
    return {
        {"Intestazione ", {{fields[amm_intestazione1]}}},
        {"", {{fields[amm_intestazione2]}}},
        {"Indirizzo", {{fields[amm_indirizzo]}}},
        {"CAP Città", {{fields[amm_cap], 6}, {fields[amm_citta]}}},
        {"Recapiti telefonici", {{fields[telefono1]}, {fields[telefono2]}, {fields[telefono3]}}},
        {"E Mail", {{fields[email]}}},
        {"Vettori", {{head.Combo3}}},
        {"Vettore usuale", {{fields[vettore1]}}},
        {"", {{fields[vettore2]}}},
        {"", {{fields[vettore3]}}},
        {"Note da stampare\nsui documenti", {{fields[note1]}}},
        {"", {{fields[note2]}}},
    };
}

/// A date picker beside its date shows its calendar alone.
QWidget* field_of(form_window& window, const frame_field& field) {
    QWidget* one = &window.widget_of(field.shown);
    if (field.characters > 0) return sized(one, field.characters);
    if (field.shown.kind() != control_kind::date_picker) return one;
    return dress_calendar(one);
}

QGridLayout* add_frame(form_window& window, QGroupBox* box, std::span<const frame_row> rows) {
    auto* fields = new QGridLayout(box);
    fields->setHorizontalSpacing(8);
    fields->setVerticalSpacing(3);
    fields->setContentsMargins(0, 0, 0, 0);
    fields->setColumnStretch(1, 1);
    // Fields that have no caption of their own are called by the one before, and their number.
    QString called;
    int since_caption = 0;
    // All at one step, be they lists or texts.
    const int height = window.widget_of(rows.front().fields.front().shown).sizeHint().height();
    int at = 0;
    for (const frame_row& row : rows) {
        ++at;
        fields->setRowMinimumHeight(at, height);
        fields->setRowStretch(at, 1);
        auto* line = arranged<QHBoxLayout>(5);
        bool stretches = false;
        for (const frame_field& field : row.fields) {
            QWidget* one = field_of(window, field);
            const char* own = &field == &row.fields.front() ? row.caption : field.caption;
            if (*own != '\0') called = spoken(own);
            since_caption = *own != '\0' ? 1 : since_caption + 1;
            one->setAccessibleName(
                since_caption == 1 ? called : QString("%1, %2").arg(called).arg(since_caption));
            if (*field.caption != '\0') {
                line->addSpacing(8);
                line->addWidget(caption_of(one, field.caption, box));
            }
            line->addWidget(one);
            stretches = stretches || one->minimumWidth() != one->maximumWidth();
        }
        if (!stretches) line->addStretch(1);
        QWidget& first = window.widget_of(row.fields.front().shown);
        const int lines = QString(row.caption).contains('\n') ? 2 : 1;  // it stands beside two rows
        if (*row.caption != '\0') {
            fields->addWidget(caption_of(&first, row.caption, box), at, 0, lines, 1);
        }
        fields->addLayout(line, at, 1);
    }
    return fields;
}

QGroupBox* frame(form_window& window, const char* title, std::span<const frame_row> rows) {
    auto* box = new QGroupBox(title, &window);
    add_frame(window, box, rows);
    return box;
}

QGroupBox* registered_office(form_window& window, customer_head& head) {
    auto* box = new QGroupBox("Sede legale e dati fiscali", &window);
    QGridLayout* fields = add_frame(window, box, registered_office_rows(head));
    QLabel* deleted = window.widget(head.Label2);
    set_look(deleted, "role", "warning");
    deleted->setWordWrap(true);
    fields->addWidget(deleted, fields->rowCount(), 0, 1, 2);
    return box;
}

QFrame* search_bar(form_window& window, customer_head& head) {
    auto* bar = new QFrame(&window);
    set_look(bar, "role", "bar");
    auto* around = arranged<QHBoxLayout>(bar, {0, 0, 0, 0});
    auto* middle = new QWidget(bar);
    middle->setMaximumWidth(widest);
    around->addWidget(middle);
    auto* rows = arranged<QVBoxLayout>(middle, {12, 6, 12, 8});
    auto* explained = new QLabel(hint, bar);
    explained->setWordWrap(true);
    set_look(explained, "role", "faint");
    rows->addWidget(explained);

    auto* line = arranged<QHBoxLayout>(8);
    QLineEdit* name = window.widget(head.nome);
    line->addWidget(caption_of(name, "Nome/Ragione sociale cliente da cercare:", bar));
    line->addWidget(name, 2);
    line->addWidget(plain_command(window, head.b_cerca,
                                  {"cerca", "&Cerca", "Cerca il cliente per nome", "F3"}));
    line->addWidget(
        plain_command(window, head.b_lista,
                      {"rubrica", "&Lista clienti", "Sceglie il cliente da una lista", "F4"}));
    QWidget* cursor = window.widget(head.HScroll1);
    cursor->setMinimumWidth(240);
    cursor->setFixedHeight(22);
    cursor->setToolTip("Scorre i clienti in ordine alfabetico");
    line->addSpacing(8);
    line->addWidget(cursor, 3);
    rows->addLayout(line);
    return bar;
}

QToolButton* leaving_button(form_window& window, const customer_window& look) {
    auto* button = new QToolButton(&window);
    button->setObjectName("annulla");
    button->setText("&Annulla");
    button->setToolTip(look.leaving);
    set_look(button, "look", "leave");
    QObject::connect(button, &QToolButton::clicked, &window, [&window, leave = look.leave] {
        leave ? leave() : static_cast<void>(window.close());
    });
    add_shortcut(*button, "Esc");
    return button;
}

void lay_out_customer(form_window& window, customer_head& head, const customer_window& look) {
    auto* all = arranged<QVBoxLayout>(&window, {0, 0, 0, 0}, 0);
    all->addWidget(search_bar(window, head));

    auto* middle = new QWidget(&window);
    auto* column = arranged<QVBoxLayout>(middle, {12, 8, 12, 8});
    auto* offices = new QWidget(middle);
    auto* frames = arranged<QGridLayout>(offices, {0, 0, 0, 0}, 8);
    frames->addWidget(registered_office(window, head), 0, 0);
    frames->addWidget(frame(window, look.frame, look.own), 1, 0);
    frames->addWidget(
        frame(window, "Sede amministrativa e dati commerciali", administrative_office_rows(head)),
        0, 1, 2, 1);
    frames->setColumnStretch(0, 1);
    frames->setColumnStretch(1, 1);
    frames->setRowStretch(0, static_cast<int>(registered_office_rows(head).size()));
    frames->setRowStretch(1, static_cast<int>(look.own.size()));
    column->addWidget(offices, 1);

    auto* foot = new QHBoxLayout;
    foot->addWidget(help_button(window));
    foot->addStretch(1);
    foot->addWidget(leaving_button(window, look));
    QToolButton* go_on = window.dress(head.bottone, look.go_on, Qt::ToolButtonTextOnly);
    set_look(go_on, "look", "main");
    foot->addWidget(go_on);
    column->addLayout(foot);
    column->addStretch(0);
    auto* around = new QHBoxLayout;
    around->addWidget(middle);
    all->addLayout(around, 1);
    const std::size_t steps = registered_office_rows(head).size() + look.own.size() + 2;
    new growing_part(window, *middle, head_as_designed, [middle, offices, steps] {
        const int text = middle->fontMetrics().height();
        const int as_laid_out = QFontMetrics(QApplication::font()).height();
        middle->setMaximumWidth(widest * text / as_laid_out);
        offices->setMaximumHeight(static_cast<int>(steps) * text * tallest_step / 10);
    });

    window.set_sizes({980, 0}, {1180, 560});
}

std::vector<frame_row> order_head_rows(const customer_head& head) {
    return {
        {"Numero attribuito all'ordine", {{head.Text3[campo_ordine::numero], 12}}},
        {"Data di emissione",
         {{head.Text3[campo_ordine::data], 10},
          {head.text5[0]},
          {head.Text3[campo_ordine::data_evasione], 10, "Data evasione"},
          {head.text5[1]}}},
        {"Riferimenti ordine", {{head.Text3[campo_ordine::riferimento1]}}},
        {"", {{head.Text3[campo_ordine::riferimento2]}}},
        {"", {{head.Text3[campo_ordine::riferimento3]}}},
        {"Porto", {{head.Combo1[customer_head::porto]}}},
        {"Pagamento", {{head.Combo1[customer_head::pagamento]}}},
        {"Trasporto", {{head.Combo1[customer_head::trasporto]}}},
    };
}

}  // namespace

void lay_out(form_window& window, mirorcx& screen) {
    lay_out_customer(window, screen,
                     {"Riferimenti dell'ordine",
                      order_head_rows(screen),
                      {"avanti", "&Prosegui", "Passa alle righe dell'ordine", "F12"},
                      "Torna al registro senza ordine"});
}

void lay_out(form_window& window, mirorcm& screen) {
    lay_out_customer(
        window, screen,
        {"Riferimenti dell'ordine",
         order_head_rows(screen),
         {"avanti", "C&onferma", "Torna alle righe dell'ordine", "F12"},
         "Torna alle righe senza cambiare nulla",
         [&window, &screen] { window.act_on(screen.bottone, [&screen] { screen.give_back(); }); }});
}

void lay_out(form_window& window, mirorcc& head) {
    lay_out_customer(
        window, head,
        {"Dati del trasporto",
         {{"Numero DDT",
           {{head.Text3[campo_ddt::numero], 10},
            {head.Text3[campo_ddt::data], 10, "Data"},
            {head.text5[0]}}},
          {"Causale trasporto", {{head.Combo1[mirorcc::causale]}}},
          {"Aspetto dei beni", {{head.Combo2}}},
          {"Numero colli",
           {{head.Text3[campo_ddt::colli], 10}, {head.Text3[campo_ddt::peso], 12, "Peso"}}},
          {"Porto",
           {{head.Combo1[customer_head::porto]},
            {head.Combo1[customer_head::trasporto], 0, "Trasporto"}}},
          {"Inizio trasporto",
           {{head.Text3[campo_ddt::inizio], 10},
            {head.text5[1]},
            {head.Text3[campo_ddt::ora], 6, "Ora"}}}},
         {"avanti", "&Prosegui", "Passa alle righe da evadere", "F12"},
         "Torna al registro senza evadere"});
    if (!window.by_person() || !head.weighs_by_itself()) return;
    QLineEdit* weight = window.widget(head.Text3[campo_ddt::peso]);
    weight->setReadOnly(true);
    weight->setPlaceholderText("automatico");
    weight->setToolTip("Il peso si calcola dagli articoli");
}

}  // namespace vantora::ui::desktop
