#include <algorithm>

#include "customer/shipping_data.h"
#include "errors/run_time_errors.h"
#include "fulfil/booking.h"
#include "fulfil/mirorca.h"
#include "fulfil/mirorcc.h"
#include "fulfil/mirorcr.h"
#include "program/change_messages.h"
#include "store/records/order_block.h"

namespace vantora {

// The confirmation has no protection: what can't be read or written ends the program, and the rows
// done so far stay booked.

void mirorcr::checkeva() {
    app_.desk.set_pointer(ui::pointer::busy);
    const change_outcome outcome = book();
    app_.desk.set_pointer(ui::pointer::normal);
    if (!was_stored(app_.desk, outcome)) return;
    app_.ricarica_registro = 1;
    hide();
    app_.mirorca.use().show();
}

change_outcome mirorcr::book() {
    archive_change change(app_.archives, archive_change::faults::end_the_program);
    rec_tot now;
    look_before_booking(change, now);
    if (change.may_write() && orders_moved(now)) change.give_up(change_outcome::order_moved);
    if (!change.may_write()) return change.finish();
    app_.mirorca->empty_hand_over();
    book_marked_rows(change);
    close_fulfilled_orders(change);
    // The goods are booked before anything is made of them.
    change.flush(app_.archives.art);
    change.flush(app_.archives.orc);
    return change.finish();
}

bool mirorcr::orders_moved(const rec_tot& now) const {
    const orders_since meanwhile(now, ordini_);
    return std::ranges::any_of(visti_, [&](const ordine_visto& seen) {
        rec_orc row;
        return !app_.archives.orc.read(block_record(seen.registrazione, 1), row) ||
               meanwhile.took_away(seen, row);
    });
}

void mirorcr::look_before_booking(archive_change& change, rec_tot& now) const {
    change.reads(app_.archives.tot, contatori::ordini, now);
    bool any = false;
    bool any_leaves = false;
    for (int row = 1; row < righe_; ++row) {
        if (number_in(row, numero_riga) <= 0) continue;
        any = true;
        any_leaves |= number_in(row, evaso) != 0;
    }
    if (any) change.changes(app_.archives.orc);
    if (any_leaves) change.changes(app_.archives.art);
}

void mirorcr::book_marked_rows(archive_change& change) {
    int line = -1;
    bool transport_data_taken = false;
    for (int row = 1; row < righe_; ++row) {
        const auto record = static_cast<std::int64_t>(number_in(row, numero_riga));
        if (record <= 0) continue;
        const double leaving = number_in(row, evaso);
        if (elenco.text(row, evaso) == "*") {
            rec_orc text;
            change.read(app_.archives.orc, record, text);
            app_.mirorca->hand_over(++line, text, {});
        } else if (leaving != 0) {
            const rec_orc booked =
                prenota_riga(change, app_.archives, record, leaving, articoli_.quanti);
            app_.mirorca->hand_over(++line, booked, leaving);
            if (aggiorna.on() && !transport_data_taken) {
                transport_data_taken = true;
                take_transport_data(change, static_cast<int>(number_in(row, numero_ordine)));
            }
        }
    }
}

void mirorcr::take_transport_data(archive_change& change, int order) {
    rec_orc row;
    for (const int number : {2, 3, 4}) {
        change.read(app_.archives.orc, block_record(order, number), row);
        if (!mostra_spedizione(*app_.mirorcc, number, row)) throw subscript_error();
    }
}

void mirorcr::close_fulfilled_orders(archive_change& change) {
    int last = 0;
    for (int row = 1; row < righe_; ++row) {
        const int order = static_cast<int>(number_in(row, numero_ordine));
        if (order <= 0 || order == last) continue;
        last = order;
        chiudi_se_evaso(change, app_.archives, order);
    }
}

}  // namespace vantora
