#include "reports/report_screen.h"

#include <algorithm>
#include <cmath>

#include "documents/document_tables.h"
#include "text/int16.h"
#include "text/number_text.h"
#include "ui/enter_key.h"

namespace vantora {

namespace {

/// The columns that are shown come first.
int last_shown(const tipo_report& kind) {
    const auto hidden = [](const ui::grid_column& one) { return one.width == 0; };
    const auto shown = std::ranges::find_if(kind.colonne, hidden) - kind.colonne.begin();
    return static_cast<int>(shown) - 1;
}

/// The whole number nearest to what stands at the head of a text. No order lies beyond 32767, so a
/// bound beyond it, or below -32768, stops there.
int order_number(std::string_view text) {
    const double clamped = std::clamp<double>(number_at_head(text), INT16_MIN, INT16_MAX);
    return to_int16(clamped).value_or(0);
}

}  // namespace

report_screen::report_screen(program& app, const tipo_report& kind)
    : form(app.desk, kind.name, kind.title),
      app_(app),
      ordini_(app.archives.orc),
      kind_(kind),
      lista_(elenco, app, kind.righe_minime, last_shown(kind)) {
    for (std::size_t i = 0; i < kind.filtri.size(); ++i) {
        const campo one = field(kind.filtri[i]);
        if (one.index) {
            add_element(one.name, *one.index, one.control);
        } else {
            add(one.name, one.control);
        }
        ui::on_enter(one.control, [this, i] { go_on_from(i); });
    }
    add("bottone", bottone);
    add("srt", srt);
    add("elenco", elenco);
    elenco.empty_note = "Nessun risultato";
    add("avviso", avviso);
    avviso.set_text("Elenco fermato a 32.000 righe: restringere gli ordini");
    avviso.set_visible(false);
    bottone[aggiorna].set_text("Aggiorna lista");
    for (int i = 0; i < 5; ++i) bottone[i].on_click = [this, i] { run_command(i); };
    Combo1.add_all({"Tutti gli ordini", "Solo ordini da evadere", "Solo ordini evasi"});
    Combo2.add_all({"Sintetico", "Analitico"});
}

report_screen::campo report_screen::field(filtro which) {
    const campo in_order[] = {
        {"t_inizio", {}, t_inizio}, {"t_fine", {}, t_fine}, {"Combo0", {}, Combo0},
        {"Text", 1, Text},          {"Text3", {}, Text3},   {"Combo1", {}, Combo1},
        {"Combo2", {}, Combo2},     {"text1", 0, text1[0]}, {"text1", 1, text1[1]},
        {"text2", 0, text2[0]},     {"text2", 1, text2[1]}};
    return in_order[static_cast<std::size_t>(which)];
}

// Opening and leaving -----------------------------------------------------------------------------

void report_screen::load() {
    if (kind_.rilegge_parametri) carica_parametri(app_.parameters, app_.files);
    tabella_pdf settings;
    load_pdf_settings(settings, tipo_documento::ordine, app_.parameters, app_.files);
    srt.set_visible(false);
    elenco.set_columns(kind_.colonne);
    elenco.set_rows(kind_.righe_minime);
}

void report_screen::activate() {
    if (opened_) return;
    opened_ = true;
    read_counters();
    fill_fields();
    Combo1.on_click = [this] { select(filtro::stato_ordini); };
    Combo2.on_click = [this] { select(filtro::dettaglio); };
    if (kind_.suggerimento.empty()) return build_list();
    show_suggestion();
}

void report_screen::fill_fields() {
    text1[0].set_text("1");
    text1[1].set_text(std::to_string(contatore_.quanti));
    Combo1.choose(0);
    Combo2.choose(0);
}

void report_screen::show_suggestion() {
    for (const char* line : kind_.suggerimento) elenco.set_text(righe_elenco_++, 0, line);
    lista_.paint_stripes();
}

void report_screen::close() {
    leave();
}

void report_screen::leave() {
    left_ = true;
    unload();
    app_.mirorc.use().show();
}

// Commands and fields -----------------------------------------------------------------------------

void report_screen::run_command(int button) {
    if (button == uscita) return leave();
    if (building_) return;
    switch (button) {
        case pdf:
            return put_out(uscita_report::pdf);
        case stampa:
            return put_out(uscita_report::stampante);
        case stampante:
            app_.desk.printer().choose_settings();
            return;
        default:
            return build_list();
    }
}

void report_screen::put_out(uscita_report to) {
    app_.desk.printer().set_note(avviso.visible() ? avviso.text() : "");
    stampa_report(app_, kind_.stampa, elenco, righe_elenco_, to);
    app_.desk.printer().set_note("");
}

void report_screen::go_on_from(std::size_t place) {
    if (kind_.filtri[place] == filtro::ultimo_ordine) correct_limits();
    if (place + 1 < kind_.filtri.size()) {
        field(kind_.filtri[place + 1]).control.set_focus();
    } else {
        bottone[aggiorna].set_focus();
    }
}

void report_screen::select(filtro which) {
    if (building_) wanted_anew_ = true;
    selector_changed(which);
}

limiti_ordini report_screen::limits() {
    return {order_number(text1[0].text()), order_number(text1[1].text())};
}

limiti_ordini report_screen::correct_limits() {
    read_counters();
    limiti_ordini right = report_screen::limits();
    right.ultimo = std::min<int>(right.ultimo, contatore_.quanti);
    right.primo = std::min(std::max(right.primo, 1), right.ultimo);
    text1[0].set_text(std::to_string(right.primo));
    text1[1].set_text(std::to_string(right.ultimo));
    return right;
}

void report_screen::read_counters() {
    app_.archives.tot.read(contatori::articoli, articoli_);
    app_.archives.tot.read(contatori::ordini, contatore_);
    app_.archives.tot.read(contatori::clienti, clienti_);
}

// Building ----------------------------------------------------------------------------------------

void report_screen::build_list() {
    if (building_ || !ready()) return;
    const bool had_focus = elenco.has_focus();
    building_ = true;
    app_.desk.set_pointer(ui::pointer::busy);
    elenco.set_visible(false);
    do {
        wanted_anew_ = false;
        build_once();
    } while (wanted_anew_ && !left_);
    building_ = false;
    app_.desk.set_pointer(ui::pointer::normal);
    if (left_) return;
    srt.set_visible(false);
    elenco.set_visible(true);
    if (had_focus) elenco.set_focus();
}

void report_screen::build_once() {
    lista_.empty();
    read_counters();
    const limiti_ordini orders = held(limits());
    srt.set_range(1, last_step(orders));
    srt.set_visible(true);
    list_rows list(app_.desk, elenco, righe_report);
    fill(list, orders);
    ordini_.end_walk();
    if (left_ || wanted_anew_) return;
    righe_elenco_ = list.in_use();
    built_ = true;
    avviso.set_visible(list.cut());
    lista_.finish(righe_elenco_);
}

/// Numbers below 1, and blocks wholly behind the end of the file, hold no rows.
limiti_ordini report_screen::held(limiti_ordini orders) const {
    orders.primo = std::max(orders.primo, 1);
    if (const auto records = app_.archives.orc.records_held()) {
        const std::int64_t blocks = (*records + righe_blocco - 1) / righe_blocco;
        orders.ultimo = static_cast<int>(std::min<std::int64_t>(orders.ultimo, blocks));
    }
    return orders;
}

int report_screen::last_step(const limiti_ordini& orders) const {
    return orders.ultimo - orders.primo + 1;
}

double report_screen::share_done(int order, const limiti_ordini& orders) {
    return double(order - orders.primo + 1) / (orders.ultimo - orders.primo + 1);
}

bool report_screen::carry_on(double done) {
    constexpr double shown_steps = 200;
    const double steps = srt.maximum() - srt.minimum();
    const double shown = std::floor(done * shown_steps) / shown_steps;
    srt.set_value(srt.minimum() + static_cast<int>(steps * shown));
    app_.desk.show_progress(elenco, done);
    app_.desk.let_events_run();
    return !left_ && !wanted_anew_;
}

}  // namespace vantora
