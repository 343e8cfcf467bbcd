#include "windows/customer_layout.h"

#include "windows/parts.h"

namespace vantora::ui::desktop {

namespace {

constexpr int widest = 1320;  ///< dots; wider screens leave room at both sides

constexpr const char* hint =
    "Per cercare un cliente utilizzare il cursore a lato oppure inserire nel campo sottostante il "
    "nominativo o la ragione sociale (o parte di essa) e clic sul bottone 'cerca'";

const std::vector<frame_row>& registered_office_rows() {
    static const std::vector<frame_row> rows = {
        {"Intestazione ", {{"Text2", 0}}},
        {"", {{"Text2", 1}}},
        {"Indirizzo", {{"Text2", 2}}},
        {"CAP Città", {{"Text2", 3, 6}, {"Text2", 4}}},
        {"Codice fiscale", {{"Text2", 5}, {"Text2", 6, 2, "Partita iva"}, {"Text2", 7, 12}}},
    };
    return rows;
}

const std::vector<frame_row>& administrative_office_rows() {
    static const std::vector<frame_row> rows = {
        {"Intestazione ", {{"Text2", 8}}},
        {"", {{"Text2", 9}}},
        {"Indirizzo", {{"Text2", 10}}},
        {"CAP Città", {{"Text2", 11, 6}, {"Text2", 12}}},
        {"Recapiti telefonici", {{"Text2", 13}, {"Text2", 14}, {"Text2", 15}}},
        {"E Mail", {{"Text2", 16}}},
        {"Vettori", {{"Combo3"}}},
        {"Vettore usuale", {{"Text2", 17}}},
        {"", {{"Text2", 18}}},
        {"", {{"Text2", 19}}},
        {"Note da stampare\nsui documenti", {{"Text2", 20}}},
        {"", {{"Text2", 21}}},
    };
    return rows;
}

/// A date picker beside its date shows its calendar alone.
QWidget* field_of(form_window& window, const frame_field& field) {
    QWidget* one = window.widget(field.name, field.index);
    if (field.characters > 0) return sized(one, field.characters);
    if (std::string_view(field.name) != "text5") return one;
    one->setToolTip("Sceglie la data dal calendario (frecce: giorno per giorno)");
    set_look(one, "look", "calendar");
    one->setFixedSize(32, window.widget("nome")->sizeHint().height());
    return one;
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
    for (const frame_row& row : rows) {
        const int at = fields->rowCount();
        auto* line = new QHBoxLayout;
        line->setSpacing(5);
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
        const frame_field& first = row.fields.front();
        fields->addWidget(caption_of(window.widget(first.name, first.index), row.caption, box), at,
                          0);
        fields->addLayout(line, at, 1);
    }
    return fields;
}

QGroupBox* frame(form_window& window, const char* title, std::span<const frame_row> rows) {
    auto* box = new QGroupBox(QString::fromUtf8(title), &window);
    QGridLayout* fields = add_frame(window, box, rows);
    fields->setRowStretch(fields->rowCount(), 1);
    return box;
}

QGroupBox* registered_office(form_window& window) {
    auto* box = new QGroupBox("Sede legale e dati fiscali", &window);
    QGridLayout* fields = add_frame(window, box, registered_office_rows());
    auto* deleted = window.as<QLabel>("Label2");
    set_look(deleted, "role", "warning");
    deleted->setWordWrap(true);
    fields->addWidget(deleted, fields->rowCount(), 0, 1, 2);
    fields->setRowStretch(fields->rowCount(), 1);
    return box;
}

QFrame* search_bar(form_window& window) {
    auto* bar = new QFrame(&window);
    set_look(bar, "role", "bar");
    auto* around = new QHBoxLayout(bar);
    around->setContentsMargins(0, 0, 0, 0);
    auto* middle = new QWidget(bar);
    middle->setMaximumWidth(widest);
    around->addWidget(middle);
    auto* rows = new QVBoxLayout(middle);
    rows->setContentsMargins(12, 6, 12, 8);
    auto* explained = new QLabel(QString::fromUtf8(hint), bar);
    explained->setWordWrap(true);
    set_look(explained, "role", "faint");
    rows->addWidget(explained);

    auto* line = new QHBoxLayout;
    line->setSpacing(8);
    line->addWidget(
        caption_of(window.widget("nome"), "Nome/Ragione sociale cliente da cercare:", bar));
    line->addWidget(window.widget("nome"), 2);
    window.dress("b_cerca", -1, {"cerca", "&Cerca", "Cerca il cliente per nome", "F3"},
                 Qt::ToolButtonTextBesideIcon);
    window.dress("b_lista", -1,
                 {"rubrica", "&Lista clienti", "Sceglie il cliente da una lista", "F4"},
                 Qt::ToolButtonTextBesideIcon);
    for (const char* name : {"b_cerca", "b_lista"}) {
        set_look(window.widget(name), "look", "plain");
        line->addWidget(window.widget(name));
    }
    auto* cursor = window.widget("HScroll1");
    cursor->setMinimumWidth(240);
    cursor->setFixedHeight(22);
    cursor->setToolTip("Scorre i clienti in ordine alfabetico");
    line->addSpacing(8);
    line->addWidget(cursor, 3);
    rows->addLayout(line);
    return bar;
}

}  // namespace

std::vector<frame_row> order_head_rows() {
    return {
        {"Numero attribuito all'ordine", {{"Text3", 0, 12}}},
        {"Data di emissione",
         {{"Text3", 1, 10}, {"text5", 0}, {"Text3", 2, 10, "Data evasione"}, {"text5", 1}}},
        {"Riferimenti ordine", {{"Text3", 3}}},
        {"", {{"Text3", 4}}},
        {"", {{"Text3", 5}}},
        {"Porto", {{"Combo1", 0}}},
        {"Pagamento", {{"Combo1", 1}}},
        {"Trasporto", {{"Combo1", 2}}},
    };
}

void lay_out_customer(form_window& window, const customer_window& look) {
    auto* all = new QVBoxLayout(&window);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addWidget(search_bar(window));

    auto* middle = new QWidget(&window);
    middle->setMaximumWidth(widest);
    auto* column = new QVBoxLayout(middle);
    column->setContentsMargins(12, 8, 12, 8);
    auto* frames = new QGridLayout;
    frames->setSpacing(8);
    frames->addWidget(registered_office(window), 0, 0);
    frames->addWidget(frame(window, look.frame, look.own), 1, 0);
    frames->addWidget(
        frame(window, "Sede amministrativa e dati commerciali", administrative_office_rows()), 0, 1,
        2, 1);
    frames->setColumnStretch(0, 1);
    frames->setColumnStretch(1, 1);
    frames->setRowStretch(1, 1);
    column->addLayout(frames);

    auto* foot = new QHBoxLayout;
    foot->addWidget(help_button(window));
    foot->addStretch(1);
    window.dress("bottone", -1, look.go_on, Qt::ToolButtonTextOnly);
    set_look(window.widget("bottone"), "look", "main");
    foot->addWidget(window.widget("bottone"));
    column->addLayout(foot);
    column->addStretch(1);
    auto* around = new QHBoxLayout;
    around->addWidget(middle);
    all->addLayout(around, 1);

    window.setMinimumSize(980, 0);
    window.set_first_size(QSize(1180, 560));
}

}  // namespace vantora::ui::desktop
