#include "entry/order_screen.h"

#include <cstdio>

#include "customer/customer_head.h"
#include "entry/order_head.h"
#include "program/change_messages.h"
#include "text/dates.h"
#include "text/number_text.h"

namespace vantora {

order_screen::order_screen(program& app, const line_grid_kind& kind, ui::screen_place& head,
                           const char* print_title)
    : line_grid(app, kind), head_(head), print_title_(print_title) {
    add("testata", testata);
}

customer_head& order_screen::head() const {
    return static_cast<customer_head&>(head_.use());
}

void order_screen::activate() {
    if (at_work()) return;
    Picture1.set_visible(false);
    Combo1.set_visible(false);
    open();
    if (taken_up_) show_draft();
    show_head();
    artic[0].set_focus();
    go_to_line(std::exchange(app_.ordine_cercato, {}).riga);
}

void order_screen::show_head() {
    const customer_head& shown = head();
    testata.set_text(shown.Text2[campo_cliente::intestazione1].text() + " - Ordine " +
                     shown.Text3[campo_ordine::numero].text() + " del " +
                     shown.Text3[campo_ordine::data].text());
}

void order_screen::open_order(std::int16_t customer) {
    open_lines(customer);
    take_price_list();
    propose_mail();
}

void order_screen::take_price_list() {
    prezz[number_at_head(cliente_.listino.full()) == 1 ? 1 : 0].set_on(true);
}

int order_screen::chosen_price() const {
    if (prezz[0].on()) return 0;
    return prezz[1].on() ? 1 : 2;
}

void order_screen::run_command(int command) {
    if (command == uscita) {
        if (may_leave()) leave();
        return;
    }
    if (command == conferma) return save();
    run_own_command(command);
}

bool order_screen::may_save() {
    return last_used_line(righe_) > 0 ||
           app_.desk.guards().confirm("L'ordine non ha righe. Salvarlo lo stesso?");
}

void order_screen::save() {
    if (!may_save()) return;
    const work saving(*this);
    app_.desk.set_pointer(ui::pointer::busy);
    const change_outcome outcome = store();
    app_.desk.set_pointer(ui::pointer::normal);
    if (!was_stored(app_.desk, outcome)) return;
    if (outcome.how == change_outcome::done) forget_draft();
    offer_to_print();
    app_.ricarica_registro = 1;
    leave();
}

void order_screen::offer_to_print() {
    // Printing lets events run, and cleans the lines it prints: it gets those that were saved.
    righe_ordine lines = righe_;
    const totali_ordine totals = totali_;
    const testata_documento printed = head_to_print(head());
    const std::string number(trimmed(printed.text3[campo_ordine::numero]));
    if (!app_.desk.ask("Stampare l'ordine?", print_title_)) return;
    app_.desk.printer().set_job_name("Ordine " + number);
    offer_copies(app_,
                 {tipo_documento::ordine, printed, lines, totals.iva, cliente_, valuta_, tabelle_,
                  disegno_, Picture1},
                 postael.on());
}

void order_screen::leave() {
    unload();
    if (head_.loaded()) head_.use().unload();
    app_.mirorc.use().show();
}

// Drafts ------------------------------------------------------------------------------------------

// What stands in an order's window is kept aside as it grows, so that nothing but a few seconds of
// work gets lost. A draft is a file of the person; it touches no stock and no number.

namespace {

std::string moment_text(const date_time& moment) {
    char text[80];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", moment.day.year,
                  moment.day.month, moment.day.day, moment.hour, moment.minute, moment.second);
    return text;
}

}  // namespace

void order_screen::settled() {
    line_grid::settled();
    if (!as_opened_ && !at_work()) as_opened_ = write_draft(draft_now());
}

void order_screen::begin_order() {
    forget_changes();
    as_opened_.reset();
    kept_.clear();
    // A draft that is being taken up has its file with it.
    if (!taken_up_) draft_file_.release();
}

bozza order_screen::draft_now() const {
    bozza draft;
    draft.archivio = archive_name(app_);
    describe(draft);
    draft.testata = head().content();
    draft.contenuto = content();
    return draft;
}

bool order_screen::changed() const {
    return as_opened_ && write_draft(draft_now()) != *as_opened_;
}

bool order_screen::keep_draft(bool wanted) {
    bozza draft = draft_now();
    std::string plain = write_draft(draft);
    draft.tenuta = wanted;
    draft.salvata = moment_text(app_.desk.clock().now());
    if (!draft_file_.keep(*app_.person, write_draft(draft))) return false;
    kept_ = std::move(plain);
    return true;
}

void order_screen::rest() {
    if (!app_.desk.guards().on() || !app_.person || at_work() || !as_opened_) return;
    const std::string now = write_draft(draft_now());
    if (now == kept_) return;
    if (now == *as_opened_) {
        kept_ = now;
        return draft_file_.drop();
    }
    const bool failed = !keep_draft(false);
    if (failed && !keeping_failed_) app_.desk.note(not_kept());
    keeping_failed_ = failed;
}

std::string order_screen::not_kept() const {
    return "L'ordine non si può tenere da parte come bozza: in "_cp +
           from_utf8(app_.person->locate("\\bozze").string()) + " non si può scrivere."_cp;
}

bool order_screen::may_leave() {
    if (at_work()) return false;
    if (!app_.desk.guards().on()) return true;
    if (!changed()) {
        forget_draft();
        return true;
    }
    const std::string question =
        "L'ordine di " + head().Text2[campo_cliente::intestazione1].text() + " non è salvato."_cp;
    if (!app_.person) return app_.desk.guards().confirm(question + " Abbandonarlo?");
    constexpr auto keep = ui::answer::choice_1;
    constexpr auto give_up = ui::answer::choice_2;
    const ui::answer wanted = app_.desk.guards().choose(
        question, {"Tenere come bozza", "Abbandonare", "Continuare"}, give_up);
    if (wanted == give_up) {
        forget_draft();
        as_opened_.reset();  // the program may end with the window still there
        return true;
    }
    if (wanted != keep) return false;
    if (keep_draft(true)) {
        draft_file_.release();
        return true;
    }
    app_.desk.message(not_kept(), ui::attention, ui::icon::stop);
    return false;
}

void order_screen::close() {
    if (!at_work() && may_leave()) line_grid::close();
}

// Taking up ---------------------------------------------------------------------------------------

void order_screen::take_up(bozza draft, file_bozza file) {
    taken_up_ = std::move(draft);
    draft_file_ = std::move(file);
}

void order_screen::show_draft() {
    const bozza draft = *std::exchange(taken_up_, {});
    head().show_content(draft.testata);
    show_content(draft.contenuto);
    as_opened_ = "";  // nothing of it is saved
}

}  // namespace vantora
