#include "entry/order_screen.h"

#include "customer/customer_head.h"
#include "entry/order_head.h"
#include "program/change_messages.h"
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

}  // namespace vantora
