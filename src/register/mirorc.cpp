#include "register/mirorc.h"

#include "enquiry/archived_document.h"
#include "enquiry/bozze.h"
#include "program/change_messages.h"
#include "register/compattazione.h"
#include "register/copy_first.h"
#include "text/int16.h"
#include "text/number_text.h"

namespace vantora {

mirorc::mirorc(program& app)
    : form(app.desk, "mirorc", "Gestione ordini clienti"),
      app_(app),
      lista_(elenco, app, righe_minime, evasione) {
    add("elenco", elenco);
    elenco.empty_note = "Nessun ordine";
    add("srx", srx);
    add("selvis", selvis);
    add("visua", visua);
    add("bottone", bottone);
    add("srt", srt);
    add("srtt", srtt);
    add("xx_versione", xx_versione);
    add("xsfondo", xsfondo);
    add("avviso", avviso);
    avviso.set_visible(false);

    selvis_group_.join(selvis);
    visua_group_.join(visua);
    selvis[0].design_on(true);
    visua[0].design_on(true);
    selvis[0].set_text("Visualizza tutte le registrazioni");
    selvis[1].set_text("Visualizza solo le ultime 1000 registrazioni");
    selvis[2].set_text("Visualizza solo le ultime 5000 registrazioni");
    visua[0].set_text("Visualizza a partire dalla prima registrazione");
    visua[1].set_text("Visualizza a partire dall'ultima registrazione");
    for (int i = 0; i < 5; ++i) srx[i].set_text("Riordina");
    srtt[0].set_text("Per compattare l'archivio cancellando definitivamente gli ordini eliminati");
    srtt[1].set_text("clic qui ");
    xx_versione.set_text("Ver. N." VANTORA_VERSION);

    elenco.on_click = [this] { open_order(); };
    elenco.hint_of = [this](int row) { return hint(row); };
    elenco.notice_of = [this](int row) { return notice(row); };
    for (int i = 0; i < 6; ++i) srx[i].on_click = [this, i] { sort_by(i); };
    for (auto& option : selvis) option.on_click = [this] { change_view(); };
    for (auto& option : visua) option.on_click = [this] { change_view(); };
    for (int i = 0; i < 9; ++i) bottone[i].on_click = [this, i] { run_command(i); };
    for (auto& label : srtt) label.on_click = [this] { compact(); };
    offer_enquiries();
}

void mirorc::load() {
    carica_parametri(app_.parameters, app_.files);
    restore_view();
    apri_archivi(app_.archives, app_.files, app_.parameters.numero_azienda);
    srt.set_visible(false);
    elenco.set_columns({{"Registr.", 1000, ui::alignment::right},
                        {"Ordine", 1000},
                        {"Data", 1000},
                        {"Cliente", 5050},
                        {"Descrizione ordine", 5050},
                        {"Evasione", 1250},
                        {"", 0},
                        {"", 0},
                        {"", 0}});
    build_list();
    for (int button = nuovo_ordine; button <= schede_articoli; ++button) {
        bottone[button].set_enabled(way(button).exists());
    }
}

void mirorc::activate() {
    see_again(app_.selezione_1);
    const auto& rebuild = app_.parameters.gnr.aggiorna_elenco;
    if (number_at_head(rebuild.full()) == 1 && app_.ricarica_registro == 1) {
        build_list();
        app_.ricarica_registro = 0;
    }
}

void mirorc::close() {
    if (app_.desk.may_end()) app_.desk.end_program();
}

void mirorc::restore_view() {
    const std::int16_t view = app_.parameters.gnr.vista_registro;
    const bool known = (view >= 0 && view <= 2) || (view >= 10 && view <= 12);
    if (!known) return;
    app_.ripristino_vista = 1;
    visua[view / 10].set_on(true);
    selvis[view % 10].set_on(true);
    app_.ripristino_vista = 0;
}

void mirorc::change_view() {
    if (app_.ripristino_vista != 0) return;
    int view = visua[1].on() ? 10 : 0;
    if (selvis[1].on()) view += 1;
    if (selvis[2].on()) view += 2;
    app_.parameters.gnr.vista_registro = static_cast<std::int16_t>(view);
    salva_parametri(app_.parameters, app_.files);
    build_list();
}

void mirorc::sort_by(int button) {
    using enum ui::sort_order;
    if (button == 5) {
        elenco.set_focus();
        return;
    }
    ordinata_per_ = button;
    if (button == data) return lista_.sort(data_stored, numeric_ascending);
    lista_.sort(button, generic_ascending);
}

void mirorc::run_command(int button) {
    app_.schermo_pronto = 0;
    if (button == uscita) return close();
    if (button == aggiorna) return build_list();
    const bool begins_with_customer = button == nuovo_ordine || button == fulfilment;
    if (!begins_with_customer || has_customers()) lead_to(way(button));
}

ui::screen_place& mirorc::way(int button) {
    ui::screen_place* const ways[] = {&app_.mirorcx, &app_.mirstoe, &app_.mirstos, &app_.mirstov,
                                      &app_.mirston, &app_.mirstoa, &app_.mirorcc};
    return *ways[button - nuovo_ordine];
}

void mirorc::lead_to(ui::screen_place& next) {
    app_.modo_ordine = 0;
    if (!next.exists()) return;
    hide();
    next.use().show();
}

bool mirorc::has_customers() {
    app_.archives.tot.read(contatori::clienti, contatore_);
    if (contatore_.quanti >= 1) return true;
    app_.desk.message("Nessun cliente memorizzato", ui::attention, ui::icon::stop);
    return false;
}

std::int16_t mirorc::order_in(int row) const {
    return to_int16(number_at_head(elenco.text(row, registr))).value_or(0);
}

void mirorc::open_order() {
    if (compacting_) return;
    elenco.set_col(registr);
    const std::int16_t registrazione = order_in(elenco.row());
    if (registrazione < 1) return;
    rec_orc row;
    if (app_.archives.orc.read(block_record(registrazione, 1), row) &&
        moved_elsewhere(registrazione, row)) {
        return tell_moved();
    }
    open_order(registrazione);
}

void mirorc::open_order(std::int16_t registrazione) {
    app_.modo_ordine = 1;
    app_.selezione_1 = registrazione;
    if (!app_.archives.orc.read(block_record(registrazione, 1), riga_)) {
        app_.desk.message(
            "L'ordine non si può leggere: errore su "_cp + app_.archives.orc.name() + ".",
            ui::attention, ui::icon::stop);
        return;
    }
    if (riga_.annullato == 1) {
        app_.desk.message("Ordine annullato", ui::attention, ui::icon::stop);
        return;
    }
    app_.schermo_pronto = 0;
    app_.selezione_2 = riga_.cliente;
    lead_to(app_.mirorcz);
}

// What can be looked up and printed from here -----------------------------------------------------

void mirorc::offer_enquiries() {
    const auto at_rest = [this] { return !compacting_; };
    const auto lead = [this](ui::screen_place& where) {
        return [this, &where] { look_up(where); };
    };
    offer({"ricerca", "Cerca negli o&rdini", "Ctrl+Shift+F", at_rest, lead(app_.ricerca)});
    offer({"documenti", "&Documenti di trasporto", "Ctrl+T", at_rest, lead(app_.documenti)});
    offer({"quadro", "&Quadro degli ordini", "Ctrl+B", at_rest, lead(app_.quadro)});
    offer({"bozze", "&Bozze", "Ctrl+Shift+B",
           [this] { return !compacting_ && app_.person != nullptr; }, lead(app_.bozze),
           [this] { return app_.person ? count_drafts(app_) : 0; }});
    offer({"ristampa", "Ristam&pa l'ordine", "Ctrl+P",
           [this] { return !compacting_ && elenco.row() > 0; }, [this] { print_again(); }});
}

void mirorc::look_up(ui::screen_place& where) {
    app_.ordine_cercato = {};
    where.use().show_over();
    if (app_.ordine_cercato.registrazione > 0) open_order(app_.ordine_cercato.registrazione);
}

void mirorc::print_again() {
    const std::int16_t registrazione = order_in(elenco.row());
    if (registrazione < 1) return;
    auto order = archived_order(app_, registrazione);
    if (!can_be_printed(app_.desk, order)) return;
    const work printing(*this);
    const auto wanted = app_.desk.show_box(
        {"Ristampare l'ordine " + order.testata.text3[campo_ordine::numero] + "?",
         "Ristampa",
         ui::icon::question,
         ui::buttons::choice,
         ui::answer::choice_1,
         {"Anteprima", "Stampa", "PDF", "Annulla"}});
    if (wanted == ui::answer::choice_1) return reprint(app_, order, uscita_ristampa::anteprima);
    if (wanted == ui::answer::choice_2) return reprint(app_, order, uscita_ristampa::stampa);
    if (wanted == ui::answer::choice_3) reprint(app_, order, uscita_ristampa::pdf);
}

// Compaction --------------------------------------------------------------------------------------

void mirorc::compact() {
    if (compacting_) return;
    constexpr const char* titolo = "Compattazione archivio";
    app_.archives.tot.read(contatori::ordini, contatore_);
    const bool elimina_evasi = app_.desk.ask("Eliminare anche gli ordini evasi?", titolo,
                                             ui::icon::question, ui::answer::no);
    if (!app_.desk.ask("Confermi?", titolo, ui::icon::question, ui::answer::no)) return;

    const copy_first first = copy_wanted(app_);
    if (first == copy_first::give_up) return;

    compacting_ = true;
    app_.desk.set_pointer(ui::pointer::busy);
    for (auto& command : bottone) command.set_visible(false);
    const bool passed =
        (first == copy_first::skip || copy_made(app_, srt)) && run_compaction(elimina_evasi);
    srt.set_visible(false);
    for (auto& command : bottone) command.set_visible(true);
    compacting_ = false;
    if (passed) return build_list();
    app_.desk.set_pointer(ui::pointer::normal);
}

bool mirorc::run_compaction(bool elimina_evasi) {
    std::vector<std::string> unread;
    const auto outcome = compatta_archivio(
        app_.archives, elimina_evasi,
        [this](int registrazione, int of) {
            if (registrazione == 0) {
                srt.set_visible(true);
                srt.set_range(1, of);
            } else {
                srt.set_value(registrazione);
                app_.desk.let_events_run();
            }
        },
        &unread);
    if (!outcome.begun()) {
        was_stored(app_.desk, outcome, "l'archivio non è stato compattato");
    } else if (outcome.how != change_outcome::done) {
        tell_not_compacted(app_.desk, outcome);
    } else if (!unread.empty()) {
        tell_kept(app_.desk, unread);
    }
    return outcome.begun();
}

}  // namespace vantora
