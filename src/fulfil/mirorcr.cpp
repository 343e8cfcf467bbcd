#include "fulfil/mirorcr.h"

#include <algorithm>

#include "entry/article_list.h"
#include "orders/article_texts.h"
#include "orders/order_rows.h"
#include "orders/stock.h"
#include "store/block_reader.h"
#include "store/money.h"
#include "text/dates.h"
#include "text/number_text.h"
#include "ui/enter_key.h"

namespace vantora {

namespace {

constexpr int righe_minime = 28;

}  // namespace

mirorcr::mirorcr(program& app)
    : form(app.desk, "mirorcr", "Evasione ordini"),
      app_(app),
      lista_(elenco, app, righe_minime, numero_ordine) {
    add("elenco", elenco);
    add("quantita", quantita);
    add("aggiorna", aggiorna);
    add("bottone", bottone);
    add("Label1", Label1);
    add("segnate", segnate);
    add("scorta", scorta);
    elenco.empty_note = "Nessun ordine da evadere";
    quantita.set_visible(false);
    quantita.accepts = ui::input_rule::number();
    quantita.accepts.alone = '*';
    aggiorna.set_text("Aggiorna dati spedizione cliente");
    Label1[0].set_text(
        "Per evadere integralmente un ordine clic sul numero dell'ordine riportato nella colonna "
        "'ordine' (prima da sinistra)");
    Label1[1].set_text(
        "Per evadere completamente un articolo clic sulla quantità ancora da evadere nella colonna 'da evadere' (seconda da destra) "_cp);
    Label1[2].set_text(
        "Per evadere parzialmente un articolo clic sulla quantità evasa nella colonna 'evaso' (prima da destra) "_cp);
    wire_events();
}

std::string mirorcr::subject() const {
    return app_.mirorcc.loaded() ? app_.mirorcc->Text2[campo_cliente::intestazione1].text()
                                 : std::string();
}

void mirorcr::wire_events() {
    elenco.on_click = [this] { cell_clicked(); };
    ui::on_enter(quantita, [this] { take_edited(); });
    quantita.on_blur = [this] {
        if (editing_ && app_.desk.guards().on()) take_edited();
    };
    elenco.on_key_down = [this](ui::key_event& key) {
        if (key.code != ui::key::del || !app_.desk.guards().on()) return;
        key.swallow();
        if (number_in(elenco.row(), numero_riga) != 0) elenco.set_text(elenco.row(), evaso, "");
        show_marked();
    };
    bottone[uscita].on_click = [this] { close(); };
    bottone[conferma].on_click = [this] { checkeva(); };
}

void mirorcr::load() {
    carica_parametri(app_.parameters, app_.files);
    elenco.set_columns({{"Ordine", 900},
                        {"Data", 1050},
                        {"Descrizione ordine", 3000},
                        {"Articolo", 4900},
                        {"Ordinato", 1100, ui::alignment::right},
                        {"Da evadere", 1100, ui::alignment::right},
                        {"Evaso", 1100, ui::alignment::right},
                        {"", 0},
                        {"", 0}});
}

void mirorcr::activate() {
    app_.archives.tot.read(contatori::articoli, articoli_);
    build_list();
}

void mirorcr::settled() {
    const auto article_in = [this](int row) -> int {
        if (row < 1 || row >= righe_) return 0;
        return viste_[static_cast<std::size_t>(row - 1)].articolo;
    };
    const int article = article_in(elenco.row());
    rec_art record;
    if (!is_article(article, articoli_.quanti) || !app_.archives.art.read(article, record)) {
        return scorta.set_text("");
    }
    double leaving = 0;
    for (int row = 1; row < righe_; ++row) {
        if (article_in(row) == article) leaving += number_in(row, evaso);
    }
    scorta.set_text(stock_text(record) + "  \xB7  dopo le righe segnate " +
                    quantity_or_zero(stock_of(record).in_magazzino - leaving));
}

bool mirorcr::may_end() {
    const int rows = visible() ? marked_rows() : 0;
    return rows == 0 ||
           app_.desk.guards().confirm("Righe segnate da evadere: " + std::to_string(rows) +
                                      ". Uscire senza evaderle?");
}

void mirorcr::close() {
    if (!may_end()) return;
    unload();
    app_.mirorc.use().show();
}

// What leaves -------------------------------------------------------------------------------------

double mirorcr::number_in(int row, int col) const {
    return testo_a_numero(elenco.text(row, col));
}

void mirorcr::cell_clicked() {
    const int row = elenco.row();
    if (number_in(row, numero_riga) == 0) return;
    switch (elenco.mouse_column()) {
        case ordine:
            return mark_order(static_cast<int>(number_in(row, numero_ordine)));
        case da_evadere:
            return mark_rows({row});
        case evaso:
            return open_editor();
        default:
            return;
    }
}

void mirorcr::mark_order(int order) {
    if (order <= 0) return;
    std::vector<int> its;
    for (int row = 1; row < righe_; ++row) {
        if (number_in(row, numero_ordine) == order) its.push_back(row);
    }
    mark_rows(its);
}

void mirorcr::mark_rows(const std::vector<int>& rows) {
    const bool off = app_.desk.guards().on() && std::ranges::all_of(rows, [this](int row) {
                         return elenco.text(row, evaso) == whole_mark(row);
                     });
    for (const int row : rows) elenco.set_text(row, evaso, off ? std::string() : whole_mark(row));
    show_marked();
}

std::string mirorcr::whole_mark(int row) const {
    const double open = number_in(row, da_evadere);
    return open == 0 ? std::string("*") : quantity_text(open);
}

void mirorcr::open_editor() {
    const int row = elenco.row();
    // Under a hand the commands stay in sight: leaving the editor for one takes what it holds.
    for (auto& command : bottone) command.set_visible(app_.desk.guards().on());
    editing_ = true;
    quantita.set_text(number_in(row, evaso) == 0 ? std::string_view() : elenco.text(row, evaso));
    quantita.set_visible(true);
    quantita.set_focus();
}

void mirorcr::take_edited() {
    editing_ = false;
    elenco.set_enabled(true);
    for (auto& command : bottone) command.set_visible(true);
    elenco.set_col(evaso);
    const std::string& typed = quantita.text();
    const bool text_line = typed.starts_with('*');
    elenco.set_text(elenco.row(), evaso,
                    text_line ? std::string("*") : quantity_text(number_at_head(typed)));
    if (quantita.has_focus()) elenco.set_focus();
    quantita.set_visible(false);
    show_marked();
}

void mirorcr::leave_editor() {
    if (!editing_) return;
    editing_ = false;
    elenco.set_focus();
    quantita.set_visible(false);
}

int mirorcr::marked_rows() const {
    int rows = 0;
    for (int row = 1; row < righe_; ++row) {
        if (number_in(row, evaso) != 0 || elenco.text(row, evaso) == "*") ++rows;
    }
    return rows;
}

void mirorcr::show_marked() {
    double pieces = 0;
    for (int row = 1; row < righe_; ++row) pieces += number_in(row, evaso);
    segnate.set_text("Righe da evadere: " + std::to_string(marked_rows()) +
                     "   Pezzi: " + quantity_or_zero(pieces));
}

// The list ----------------------------------------------------------------------------------------

// One read for the head of each order, one for each open order of the customer, and one for each
// stretch of the articles on them.

void mirorcr::build_list() {
    app_.desk.set_pointer(ui::pointer::busy);
    elenco.set_visible(false);
    elenco.set_rows(1);
    righe_ = 1;
    visti_.clear();
    viste_.clear();
    app_.archives.tot.read(contatori::ordini, ordini_);
    list_orders(ordini_.quanti);
    lista_.finish(righe_);
    elenco.set_visible(true);
    app_.desk.set_pointer(ui::pointer::normal);
    show_marked();
}

void mirorcr::list_orders(std::int16_t orders) {
    article_texts articles(app_.archives.art);
    list_progress progress(app_.desk, elenco);
    block_reader<rec_orc> reader(app_.archives.orc, riga_);
    reader.walk_heads(1, orders, [this](const rec_orc& head) { return is_listed(head); });
    for (int order = 1; order <= orders; ++order) {
        progress.come_to(order, orders);
        riga_ = reader.first_row(order);
        if (!is_listed(riga_)) continue;
        const auto rows = reader.block(order);
        visti_.emplace_back(order, rows.front()).letto = reader.first_row_read();
        list_rows_of(order, rows, articles);
    }
    if (righe_ > 1) elenco.set_row(righe_ - 1);
}

bool mirorcr::is_listed(const rec_orc& head) const {
    return head.cliente == app_.selezione_1 && is_open_order(head);
}

void mirorcr::list_rows_of(int order, std::span<const rec_orc> rows, article_texts& articles) {
    const int listed_before = righe_;
    std::int64_t record = block_record(order, 1);
    for (const rec_orc& row : rows) {
        riga_ = row;
        if (can_leave(riga_)) list_row(order, record, righe_ == listed_before, articles);
        ++record;
    }
}

void mirorcr::list_row(int order, std::int64_t record, bool first_of_order,
                       article_texts& articles) {
    if (righe_ >= elenco.rows()) elenco.set_rows(2 * righe_);
    const int row = righe_++;
    viste_.emplace_back(riga_);
    if (first_of_order) {
        elenco.set_text(row, ordine, riga_.numero.trimmed());
        elenco.set_text(row, data, date_text_of_stored(riga_.data.full()));
        elenco.set_text(row, descrizione, riga_.testo1.trimmed());
    }
    elenco.set_text(row, articolo,
                    riga_.articolo < 1 ? description_of(riga_) : articles.padded(riga_.articolo));
    elenco.set_text(row, ordinato, quantity_text(riga_.quantita));
    elenco.set_text(row, da_evadere, quantity_text(open_quantity(riga_)));
    elenco.set_text(row, numero_riga, std::to_string(record));
    elenco.set_text(row, numero_ordine, std::to_string(order));
}

}  // namespace vantora
