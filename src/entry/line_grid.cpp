#include "entry/line_grid.h"

#include <algorithm>

#include "errors/run_time_errors.h"
#include "store/vat_codes.h"
#include "text/int16.h"
#include "text/number_text.h"
#include "ui/enter_key.h"

namespace vantora {

namespace {

/// Enter alone scrolls no further than here.
constexpr int ultimo_scorrimento = 189;

std::string shown(double value) {
    return value == 0 ? std::string() : plain_text(value);
}

}  // namespace

line_grid::line_grid(program& app, const line_grid_kind& kind)
    : form(app.desk, kind.name, kind.title), app_(app), lookup_(app), kind_(kind) {
    register_controls();
    wire_controls();
    wire_lookup();
    for (int row = 0; row < rows; ++row) wire_cells(row);
    offer_prices();
}

void line_grid::register_controls() {
    // Tab walks a row from left to right, then the next row.
    for (int row = 0; row < rows; ++row) {
        add_element("artic", row, artic[row]);
        add_element("ds", row, ds[row]);
        add_element("um", row, um[row]);
        add_element("quantita", row, quantita[row]);
        if (kind_.has_evaso) add_element("evaso", row, evaso[row]);
        add_element("sc1", row, sc1[row]);
        add_element("sc2", row, sc2[row]);
        add_element("prezzo", row, prezzo[row]);
        add_element("civ", row, civ[row]);
    }
    add("VScroll1", VScroll1);
    add("Combo1", Combo1);
    add("List1", lookup_.List1);
    add("listx", lookup_.listx);
    add("scorta", lookup_.scorta);
    add("command3d3", command3d3);
    add("riordina", riordina);
    add("prezz", prezz);
    add("barcode", lookup_.barcode);
    add("postael", postael);
    if (!kind_.has_scarica) add("impegno", impegno);
    if (kind_.has_evaso) add("eva", eva);
    if (kind_.has_scarica) add("scarica", scarica);
    add("tota", tota);
    for (int i = 0; i < kind_.commands; ++i) add_element("comando", i, comando[i]);
    add("Picture1", Picture1);
    prezz_group_.join(prezz);
    prezz[0].design_on(true);
    prezz[0].set_text("Prezzo 1");
    prezz[1].set_text("prezzo 2");
    lookup_.barcode.set_text("Utilizza codici a barre");
    postael.set_text("Invia documento via e-mail");
    impegno.set_text("Impegna articoli ordinati");
    eva.set_text("Considera l'ordine completamente evaso");
    scarica.set_text("Scarica articoli da magazzino");
}

void line_grid::wire_controls() {
    VScroll1.set_limits(1, righe_ordine::massimo - rows + 1);
    VScroll1.on_change = [this] { paint(); };
    Combo1.set_visible(false);
    Combo1.on_click = [this] { take_vat_pick(); };
    riordina.on_click = [this] { sort_lines(); };
    for (int i = 0; i < kind_.commands; ++i) {
        comando[i].on_click = [this, i] { command_clicked(i); };
    }
}

void line_grid::load() {
    carica_documento(tabelle_, kind_.documento, app_.parameters, app_.files);
    Combo1.clear();
    Combo1.add_all(vat_entries(tabelle_.iva));
    carica_disegno(disegno_, kind_.documento, app_.parameters.numero_azienda, app_.files);
    valuta_ = valuta(app_.parameters);
}

void line_grid::close() {
    if (at_work()) return;
    unload();
    app_.mirorc.use().show();
}

void line_grid::open_lines(std::int16_t customer) {
    svuota_righe();
    combo_attivo_ = true;
    numero_cliente_ = customer;
    app_.archives.cli.read(customer, cliente_);
    lookup_.open();
}

void line_grid::propose_mail() {
    const auto& mail = app_.parameters.parametri_valuta[valuta_slot::invio_email];
    postael.set_on(cliente_.invio_email.full() == "1" && number_at_head(mail) != 0);
}

void line_grid::svuota_righe() {
    righe_.clear();
    for (int row = 0; row < rows; ++row) {
        for (ui::text_box* cell : {&artic[row], &ds[row], &um[row], &quantita[row], &sc1[row],
                                   &sc2[row], &prezzo[row], &civ[row]}) {
            cell->set_text("");
        }
    }
    compute_totals();
    VScroll1.set_value(1);
}

riga_ordine& line_grid::changed_line(int row) {
    prima_riga_ = VScroll1.value();
    return righe_[prima_riga_ + row];
}

// Painting ------------------------------------------------------------------------------------

void line_grid::paint() {
    app_.desk.let_events_run();
    prima_riga_ = VScroll1.value();
    paint_rows(0);
}

void line_grid::go_to_line(int number) {
    if (number < 1 || number > righe_ordine::massimo) return;
    const int top = VScroll1.value();
    if (number < top || number >= top + rows) {
        VScroll1.set_value(std::min(number, righe_ordine::massimo - rows + 1));
    }
    artic[number - VScroll1.value()].set_focus();
}

void line_grid::paint_rows(int first) {
    painting_ = true;
    for (int row = first; row < rows; ++row) paint_row(row);
    painting_ = false;
    compute_totals();
}

void line_grid::paint_row(int row) {
    riga_ordine& line = righe_[line_of(row)];
    line.codice = std::string(line.codice.trimmed());
    line.descrizione = std::string(line.descrizione.trimmed());
    line.um = std::string(line.um.trimmed());
    artic[row].set_text(line.codice.trimmed());
    ds[row].set_text(line.descrizione.trimmed());
    um[row].set_text(line.um.trimmed());
    quantita[row].set_text(shown(line.quantita));
    if (kind_.has_evaso) evaso[row].set_text(shown(line.evaso));
    prezzo[row].set_text(shown(line.prezzo));
    sc1[row].set_text(shown(line.sc1));
    sc2[row].set_text(shown(line.sc2));
    civ[row].set_text(line.iva == 0 ? std::string() : two_digits(line.iva));
}

// Changes of a cell ---------------------------------------------------------------------------

void line_grid::wire_cells(int row) {
    ds[row].on_change = [this, row] { changed_line(row).descrizione = ds[row].text(); };
    um[row].on_change = [this, row] { changed_line(row).um = um[row].text(); };
    quantita[row].on_change = [this, row] {
        changed_line(row).quantita = number_at_head(quantita[row].text());
        compute_totals();
    };
    evaso[row].on_change = [this, row] {
        changed_line(row).evaso = number_at_head(evaso[row].text());
        compute_totals();
    };
    const auto discount = [this, row](ui::text_box* cell, std::int16_t riga_ordine::*field) {
        cell->on_change = [this, row, cell, field] {
            const auto percent = to_int16(number_at_head(cell->text()));
            if (!percent) throw overflow_error();
            changed_line(row).*field = *percent;
            compute_totals();
        };
    };
    discount(&sc1[row], &riga_ordine::sc1);
    discount(&sc2[row], &riga_ordine::sc2);
    prezzo[row].on_change = [this, row] { price_changed(row); };
    wire_cell_focus(row);
    limit_hands(row);
}

void line_grid::limit_hands(int row) {
    using ui::input_rule;
    constexpr std::size_t description =
        decltype(rec_orc::descrizione)::width + decltype(rec_orc::descrizione2)::width;
    ds[row].accepts = input_rule::text(description);
    um[row].accepts = input_rule::text(decltype(rec_orc::um)::width);
    for (ui::text_box* cell : {&quantita[row], &evaso[row], &prezzo[row]}) {
        cell->accepts = input_rule::number();
        cell->accepts.plain = true;
    }
    for (ui::text_box* cell : {&sc1[row], &sc2[row]}) cell->accepts = input_rule::small_number();
}

void line_grid::price_changed(int row) {
    riga_ordine& line = changed_line(row);
    line.prezzo = number_at_head(prezzo[row].text());
    if (line.prezzo != 0 && line.iva == 0) {
        if (const auto own = own_vat_code(cliente_)) {
            line.iva = *own;
            civ[row].set_text(two_digits(*own));
        } else {
            const auto& base = app_.parameters.gnr.codice_iva_base;
            line.iva = to_int16(number_at_head(base.full())).value_or(0);
            civ[row].set_text(base.full());
        }
    }
    compute_totals();
}

void line_grid::compute_totals() {
    if (painting_) return;
    totali_ = calcola_totali(righe_, tabelle_.iva, valuta_);
    // In the order of totale_mostrato.
    const std::string texts[] = {formato_importo(totali_.imponibile, valuta_),
                                 formato_importo(totali_.totale, valuta_),
                                 plain_text(totali_.pezzi)};
    for (int i = 0; i < 3; ++i) tota[i].set_text(texts[static_cast<int>(kind_.tota[i])] + " ");
    totals_changed();
}

// Focus and Enter -----------------------------------------------------------------------------

void line_grid::take_focus(int row, bool show_stock) {
    Combo1.set_visible(false);
    riga_corrente_ = row;
    if (show_stock) lookup_.mostra_giacenza(righe_[line_of(row)].articolo);
}

void line_grid::wire_cell_focus(int row) {
    artic[row].on_focus = [this, row] {
        take_focus(row, true);
        lookup_.follow_cell(artic[row].text());
    };
    artic[row].on_edited = [this, row] { lookup_.follow_cell(artic[row].text()); };
    artic[row].on_key_press = [this, row](ui::key_event& key) { article_key(row, key); };
    artic[row].on_paste_lines = [this, row](const ui::pasted_text& pasted, const auto& goes_on) {
        paste_lines(row, pasted, goes_on);
    };

    ds[row].on_focus = [this, row] { description_gains_focus(row); };
    ds[row].on_key_down = [this, row](ui::key_event& key) {
        if (key.code == ui::key::f1 && lookup_.take_description(ds[row].text())) key.swallow();
        if (key.code == ui::key::enter) {
            key.swallow();
            um[row].set_focus();
        }
    };
    for (ui::text_box* cell : {&um[row], &quantita[row], &evaso[row], &sc2[row], &prezzo[row]}) {
        cell->on_focus = [this, row] { take_focus(row, true); };
    }
    for (ui::text_box* cell : {&quantita[row], &evaso[row], &sc1[row], &sc2[row], &prezzo[row]}) {
        cell->on_scan = [this, row](const std::string& code) { take_scan(row, code); };
    }
    sc1[row].on_focus = [this, row] { discount_gains_focus(row); };
    sc1[row].on_blur = [this, row] { clear_if_zero(sc1[row]); };
    sc2[row].on_blur = [this, row] { clear_if_zero(sc2[row]); };
    civ[row].on_focus = [this, row] { open_vat_pick(row); };
    civ[row].on_key_press = [](ui::key_event& key) { key.swallow(); };

    ui::enter_moves(um[row], quantita[row]);
    ui::enter_moves(quantita[row], kind_.has_evaso ? evaso[row] : sc1[row]);
    ui::enter_moves(evaso[row], sc1[row]);
    ui::enter_moves(sc1[row], sc2[row]);
    ui::enter_moves(sc2[row], prezzo[row]);
    ui::on_enter(prezzo[row], [this, row] { go_to_next_row(row); });
}

void line_grid::description_gains_focus(int row) {
    take_focus(row, false);
    riga_ordine& line = righe_[line_of(row)];
    line.articolo = 0;
    line.codice = "";
    line.peso = 0;
    artic[row].set_text("");
    compute_totals();
}

void line_grid::discount_gains_focus(int row) {
    if (number_at_head(sc1[row].text()) == 0) {
        sc1[row].set_text(shown(cliente_.sconto1));
        sc2[row].set_text(shown(cliente_.sconto2));
    }
    take_focus(row, true);
}

void line_grid::clear_if_zero(ui::text_box& cell) {
    if (number_at_head(cell.text()) == 0) cell.set_text("");
}

void line_grid::go_to_next_row(int row) {
    prima_riga_ = VScroll1.value();
    if (row < rows - 1) {
        artic[row + 1].set_focus();
        return;
    }
    if (row + prima_riga_ - 1 < ultimo_scorrimento) VScroll1.set_value(prima_riga_ + 1);
    artic[rows - 1].set_focus();
}

// Commands ------------------------------------------------------------------------------------

void line_grid::command_clicked(int command) {
    if (at_work()) return;
    leave_vat_pick();
    switch (command) {
        case inserisci_riga:
            return shift_lines(&righe_ordine::insert);
        case cancella_riga:
            return shift_lines(&righe_ordine::remove);
        case stampante:
            app_.desk.printer().choose_settings();
            return;
        default:
            return run_command(command);
    }
}

void line_grid::shift_lines(void (righe_ordine::*shift)(int)) {
    if (!current_row_shown()) return;
    prima_riga_ = VScroll1.value();
    (righe_.*shift)(prima_riga_ + riga_corrente_);
    paint_rows(riga_corrente_);
    return_to(artic);
}

void line_grid::sort_lines() {
    righe_.sort_by_code();
    paint();
    return_to(artic);
}

bool line_grid::current_row_shown() const {
    return riga_corrente_ >= 0 && riga_corrente_ < rows;
}

std::int16_t line_grid::current_article() const {
    const int line = Combo1.visible() ? riga_corrente_ : line_of(riga_corrente_);
    return line >= 1 && line <= righe_ordine::massimo ? righe_[line].articolo : std::int16_t{0};
}

void line_grid::return_to(ui::text_box (&column)[rows]) {
    if (current_row_shown()) column[riga_corrente_].set_focus();
}

}  // namespace vantora
