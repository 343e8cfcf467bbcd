#include "ui/desktop/layouts.h"
#include "ui/desktop/layouts/parts.h"

namespace vantora::ui::desktop {

namespace {

constexpr const char* hint =
    "Per cercare un cliente utilizzare il cursore a lato oppure inserire nel campo sottostante il "
    "nominativo o la ragione sociale (o parte di essa) e clic sul bottone 'cerca'";

QGridLayout* fields_of(QGroupBox* box) {
    auto* fields = new QGridLayout(box);
    fields->setHorizontalSpacing(8);
    fields->setVerticalSpacing(5);
    fields->setColumnStretch(1, 1);
    return fields;
}

/// Fields side by side behind one caption; the last one takes what is left.
void add_row(QGridLayout* fields, const char* text, std::initializer_list<QWidget*> row) {
    const int at = fields->rowCount();
    QWidget* box = (*row.begin())->parentWidget();
    fields->addWidget(caption(text, box), at, 0);
    auto* line = new QHBoxLayout;
    line->setSpacing(5);
    for (QWidget* one : row) line->addWidget(one);
    fields->addLayout(line, at, 1);
}

QFrame* search_bar(form_window& window) {
    auto* bar = new QFrame(&window);
    set_look(bar, "role", "bar");
    auto* rows = new QVBoxLayout(bar);
    rows->setContentsMargins(12, 8, 12, 10);
    auto* explained = new QLabel(QString::fromUtf8(hint), bar);
    explained->setWordWrap(true);
    set_look(explained, "role", "faint");
    rows->addWidget(explained);

    auto* line = new QHBoxLayout;
    line->setSpacing(8);
    line->addWidget(caption("Nome/Ragione sociale cliente da cercare:", bar));
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

QGroupBox* registered_office(form_window& window) {
    auto* box = new QGroupBox("Sede legale e dati fiscali", &window);
    auto* fields = fields_of(box);
    const auto text = [&](int i) { return window.widget("Text2", i); };
    add_row(fields, "Intestazione ", {text(0)});
    add_row(fields, "", {text(1)});
    add_row(fields, "Indirizzo", {text(2)});
    add_row(fields, "CAP Città", {sized(text(3), 6), text(4)});
    add_row(fields, "Codice fiscale", {text(5)});
    add_row(fields, "Partita iva", {sized(text(6), 3), text(7)});
    auto* deleted = window.as<QLabel>("Label2");
    set_look(deleted, "role", "warning");
    deleted->setWordWrap(true);
    fields->addWidget(deleted, fields->rowCount(), 0, 1, 2);
    fields->setRowStretch(fields->rowCount(), 1);
    return box;
}

QGroupBox* administrative_office(form_window& window) {
    auto* box = new QGroupBox("Sede amministrativa e dati commerciali", &window);
    auto* fields = fields_of(box);
    const auto text = [&](int i) { return window.widget("Text2", i); };
    add_row(fields, "Intestazione ", {text(8)});
    add_row(fields, "", {text(9)});
    add_row(fields, "Indirizzo", {text(10)});
    add_row(fields, "CAP Città", {sized(text(11), 6), text(12)});
    add_row(fields, "Recapiti telefonici", {text(13), text(14), text(15)});
    add_row(fields, "E Mail", {text(16)});
    add_row(fields, "Vettori", {window.widget("Combo3")});
    add_row(fields, "Vettore usuale", {text(17)});
    add_row(fields, "", {text(18)});
    add_row(fields, "", {text(19)});
    add_row(fields, "Note da stampare\nsui documenti", {text(20)});
    add_row(fields, "", {text(21)});
    fields->setRowStretch(fields->rowCount(), 1);
    return box;
}

QGroupBox* order_head(form_window& window) {
    auto* box = new QGroupBox("Riferimenti dell'ordine", &window);
    auto* fields = fields_of(box);
    const auto text = [&](int i) { return window.widget("Text3", i); };
    const auto picker = [&](int i) {
        QWidget* one = window.widget("text5", i);
        one->setToolTip("Sceglie la data dal calendario (frecce: giorno per giorno)");
        set_look(one, "look", "calendar");
        one->setFixedWidth(32);
        return one;
    };
    add_row(fields, "Numero attribuito all'ordine", {text(0)});
    add_row(fields, "Data di emissione", {text(1), picker(0)});
    add_row(fields, "Data evasione", {text(2), picker(1)});
    add_row(fields, "Riferimenti ordine", {text(3)});
    add_row(fields, "", {text(4)});
    add_row(fields, "", {text(5)});
    add_row(fields, "Porto", {window.widget("Combo1", 0)});
    add_row(fields, "Pagamento", {window.widget("Combo1", 1)});
    add_row(fields, "Trasporto", {window.widget("Combo1", 2)});
    fields->setRowStretch(fields->rowCount(), 1);
    return box;
}

}  // namespace

void lay_out_mirorcx(form_window& window) {
    auto* all = new QVBoxLayout(&window);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addWidget(search_bar(window));

    auto* frames = new QGridLayout;
    frames->setContentsMargins(12, 10, 12, 6);
    frames->setSpacing(12);
    frames->addWidget(registered_office(window), 0, 0);
    frames->addWidget(order_head(window), 1, 0);
    frames->addWidget(administrative_office(window), 0, 1, 2, 1);
    frames->setColumnStretch(0, 1);
    frames->setColumnStretch(1, 1);
    all->addLayout(frames, 1);

    auto* foot = new QHBoxLayout;
    foot->setContentsMargins(12, 4, 12, 12);
    foot->addStretch(1);
    window.dress("bottone", -1, {"avanti", "&Prosegui", "Passa alle righe dell'ordine", "F12"},
                 Qt::ToolButtonTextOnly);
    set_look(window.widget("bottone"), "look", "main");
    foot->addWidget(window.widget("bottone"));
    all->addLayout(foot);

    window.setMinimumSize(980, 664);
    window.set_first_size(QSize(1180, 690));
}

}  // namespace vantora::ui::desktop
