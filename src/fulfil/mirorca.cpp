#include "fulfil/mirorca.h"

#include "entry/order_head.h"
#include "errors/run_time_errors.h"
#include "fulfil/document_number.h"
#include "fulfil/mirorcc.h"
#include "fulfil/unloading.h"
#include "orders/order_rows.h"
#include "program/change_messages.h"
#include "store/records/rec_mag.h"
#include "text/dates.h"
#include "text/int16.h"
#include "text/number_text.h"

namespace vantora {

namespace {

/// Of a fulfilment whose goods don't leave: its rows are booked already.
constexpr const char* che_resta = "\nLe righe restano evase, senza movimento e senza documento.";

constexpr line_grid_kind documento_trasporto{
    .name = "mirorca",
    .title = "Evasione ordine - generazione DDT e movimento di magazzino",
    .documento = tipo_documento::documento_trasporto,
    .commands = 5,
    .has_scarica = true,
    .tota = {totale_mostrato::pezzi, totale_mostrato::imponibile, totale_mostrato::complessivo}};

std::int16_t whole(std::string_view text) {
    return to_int16(number_at_head(text)).value_or(0);
}

}  // namespace

mirorca::mirorca(program& app) : line_grid(app, documento_trasporto) {
    add("elenco", elenco);
    add("text1", text1);
    add("Text", Text);
    add("testata", testata);
    text1[0].accepts = ui::input_rule::text(decltype(rec_mag::documento)::width);
    text1[1].accepts = ui::input_rule::text(decltype(rec_mag::movimento)::width);
    elenco.set_visible(false);
    elenco.set_columns(std::vector<ui::grid_column>(7));
    elenco.set_rows(righe_ordine::massimo);
}

void mirorca::load() {
    line_grid::load();
    scarica.set_on(true);
}

// Handing over ------------------------------------------------------------------------------------

void mirorca::empty_hand_over() {
    for (int line = 0; line < elenco.rows(); ++line) {
        for (int col = 0; col < elenco.cols(); ++col) elenco.set_text(line, col, "");
    }
}

void mirorca::hand_over(int line, const rec_orc& row, std::optional<double> quantity) {
    if (line >= elenco.rows()) throw subscript_error();
    if (quantity) {
        elenco.set_text(line, articolo, std::to_string(row.articolo));
        elenco.set_text(line, col_quantita, plain_text(*quantity));
    }
    elenco.set_text(line, descrizione, description_of(row));
    elenco.set_text(line, col_sc1, std::to_string(row.sc1));
    elenco.set_text(line, col_sc2, std::to_string(row.sc2));
    elenco.set_text(line, col_prezzo, plain_text(row.prezzo));
    elenco.set_text(line, col_iva, std::to_string(row.iva));
}

void mirorca::take_lines_over() {
    rec_art article;
    for (int number = 1; number <= righe_ordine::massimo; ++number) {
        const auto cell = [&](int col) { return elenco.text(number - 1, col); };
        riga_ordine& line = righe_[number];
        line.articolo = whole(cell(articolo));
        line.descrizione = cell(descrizione);
        line.quantita = number_at_head(cell(col_quantita));
        line.sc1 = whole(cell(col_sc1));
        line.sc2 = whole(cell(col_sc2));
        line.prezzo = number_at_head(cell(col_prezzo));
        line.iva = whole(cell(col_iva));
        if (line.articolo < 1) continue;
        app_.archives.art.read(line.articolo, article);
        line.codice = article.codice.full();
        line.um = article.um.full();
        line.peso = finite_or_zero(article.peso);
    }
}

// Opening -----------------------------------------------------------------------------------------

void mirorca::activate() {
    if (at_work()) return;
    Picture1.set_visible(false);
    Combo1.set_visible(false);
    unloaded_ = false;
    open_lines(app_.selezione_1);
    take_lines_over();
    // The other way round than on orders.
    prezz[number_at_head(cliente_.listino.full()) == 1 ? 0 : 1].set_on(true);
    propose_movement();
    propose_mail();
    show_head();
    paint();
    artic[0].set_focus();
}

void mirorca::show_head() {
    const mirorcc& head = *app_.mirorcc;
    testata.set_text(head.Text2[campo_cliente::intestazione1].text() + " - DDT " +
                     head.Text3[campo_ddt::numero].text() + " del " +
                     head.Text3[campo_ddt::data].text());
}

void mirorca::propose_movement() {
    text1[0].set_text("");
    Text.set_value(app_.desk.clock().now().day);
    text1[1].set_text(
        std::string("DDT n.").append(trimmed(app_.mirorcc->Text3[campo_ddt::numero].text())));
}

void mirorca::totals_changed() {
    if (app_.parameters.gnr.peso_automatico != 1) return;
    double weight = 0;
    for (int number = 1; number <= righe_ordine::massimo; ++number) {
        weight += righe_[number].peso * righe_[number].quantita;
    }
    app_.mirorcc->Text3[campo_ddt::peso].set_text(weight_text(checked(weight)));
}

// Commands ----------------------------------------------------------------------------------------

void mirorca::run_command(int command) {
    if (command == uscita && may_cancel()) leave();
    if (command == conferma) return confirm();
}

bool mirorca::may_cancel() {
    const char* question = "Confermi l'annullamento del movimento di magazzino?";
    if (!app_.desk.guards().on()) return app_.desk.ask(question, ui::attention);
    const char* stays =
        unloaded_ ? "\nIl movimento di magazzino resta fatto, senza documento." : che_resta;
    return app_.desk.ask(std::string(question).append(stays), ui::attention, ui::icon::question,
                         ui::answer::no);
}

void mirorca::close() {
    if (at_work() || (app_.desk.guards().on() && !may_cancel())) return;
    line_grid::close();
}

void mirorca::confirm() {
    {
        const work confirming(*this);
        if (scarica.on() && !unloaded_ && !unload_goods()) return;
        app_.desk.set_pointer(ui::pointer::normal);
        if (app_.desk.ask("Stampare il documento di trasporto?", "Evasione ordine") &&
            !make_document()) {
            return;
        }
    }
    leave();
}

bool mirorca::unload_goods() {
    const std::string day = movement_day(Text.text());
    if (day.empty()) {
        app_.desk.message("La data del movimento non è corretta"_cp, ui::attention, ui::icon::stop);
        Text.set_focus();
        return false;
    }
    app_.data_sistema = date_number(app_.desk.clock().now());
    app_.desk.set_pointer(ui::pointer::busy);
    const movimento_magazzino movement{day, text1[0].text(), text1[1].text(), app_.data_sistema,
                                       app_.selezione_1};
    const righe_ordine before = righe_;
    const change_outcome outcome = scarica_magazzino(
        app_.archives, movement, righe_, lookup_.articles(), valuta_,
        [this](const auto& line, const auto& article) { return ask_to_unload(line, article); },
        [this] { paint(); });
    app_.desk.set_pointer(ui::pointer::normal);
    // Lines that were refused stay until the rest of them leaves.
    if (!outcome.stored()) {
        righe_ = before;
        paint();
    }
    unloaded_ = was_stored(app_.desk, outcome);
    return unloaded_;
}

bool mirorca::ask_to_unload(const riga_ordine& line, const rec_art& article) {
    app_.desk.set_pointer(ui::pointer::normal);
    std::string question = std::string("La giacenza dell' articolo ")
                               .append(article.codice.trimmed())
                               .append(" ")
                               .append(article.descrizione.trimmed())
                               .append(" è insufficiente. Lo si deve scaricare ugualmente?"_cp);
    if (app_.desk.guards().on()) {
        question +=
            "\n" + stock_text(article) + "  \xB7  da scaricare " + quantity_or_zero(line.quantita);
        question += "\nSe no, la riga resta evasa, senza movimento e senza documento.";
    }
    const bool unload = app_.desk.ask(std::move(question), ui::attention);
    app_.desk.set_pointer(ui::pointer::busy);
    return unload;
}

bool mirorca::make_document() {
    const mirorcc& head = *app_.mirorcc;
    ddt_da_registrare document;
    const testata_documento fields = head_to_print(head);
    istantanea_ddt& kept = document.contenuto;
    kept.text2 = fields.text2;
    kept.text3 = fields.text3;
    kept.porto = head.Combo1[0].chosen();
    kept.causale = head.Combo1[1].chosen();
    kept.trasporto = head.Combo1[2].chosen();
    kept.aspetto = head.Combo2.chosen();
    kept.cliente = app_.selezione_1;
    kept.righe = righe_;
    document.data_reg = app_.data_sistema;
    document.scaricato = scarica.on();
    const change_outcome outcome = store_document(document);
    // The goods may be unloaded already.
    if (!was_stored(app_.desk, outcome, "il documento non è stato registrato")) {
        return false;
    }
    print(head);
    return true;
}

change_outcome mirorca::store_document(ddt_da_registrare& document) {
    document.solo_se_chiaro = app_.desk.guards().on();
    while (true) {
        const change_outcome outcome =
            salva_ddt(app_.archives, app_.files, app_.parameters.numero_azienda, document);
        if (outcome.how != change_outcome::to_be_asked || !settle_doubt(document)) return outcome;
    }
}

bool mirorca::settle_doubt(ddt_da_registrare& document) {
    std::string& number = document.contenuto.text3[campo_ddt::numero];
    std::string& date = document.contenuto.text3[campo_ddt::data];
    ui::guards& guards = app_.desk.guards();
    const auto doubt = doubt_about(app_.archives, number, date);
    if (!doubt.any()) return true;
    if (guards.confirm(doubt.racconto + "Registrarlo lo stesso?")) {
        document.solo_se_chiaro = false;
        return true;
    }
    const std::string day = doubt.data ? date_text(app_.desk.clock().now().day) : date;
    const std::string free =
        doubt.numero ? std::to_string(free_number(app_.archives, day)) : number;
    if (!guards.confirm("Registrarlo con il numero " + free + " del " + day + "?",
                        ui::answer::yes)) {
        return false;
    }
    number = free;
    date = day;
    app_.mirorcc->Text3[campo_ddt::numero].set_text(free);
    app_.mirorcc->Text3[campo_ddt::data].set_text(day);
    show_head();
    return true;
}

void mirorca::print(const mirorcc& head) {
    // Printing lets events run, and cleans the lines it prints: it gets those that were stored.
    righe_ordine lines = righe_;
    testata_documento printed = head_to_print(head);
    printed.combo2 = head.Combo2.text();
    app_.desk.printer().set_job_name("DDT " +
                                     std::string(trimmed(printed.text3[campo_ddt::numero])));
    offer_copies(app_,
                 {tipo_documento::documento_trasporto, printed, lines, totali_.iva, cliente_,
                  valuta_, tabelle_, disegno_, Picture1},
                 postael.on());
}

void mirorca::leave() {
    forget_changes();
    hide();
    app_.mirorc.use().show();
}

}  // namespace vantora
