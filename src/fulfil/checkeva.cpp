#include <algorithm>

#include "customer/shipping_data.h"
#include "fulfil/booking.h"
#include "fulfil/faults.h"
#include "fulfil/mirorca.h"
#include "fulfil/mirorcc.h"
#include "fulfil/mirorcr.h"
#include "program/write_messages.h"
#include "store/records/order_block.h"

namespace vantora {

// The confirmation has no protection: what can't be read or written ends the program, and the rows
// done so far stay booked.

void mirorcr::checkeva() {
    app_.desk.set_pointer(ui::pointer::busy);
    const write_outcome outcome = book();
    app_.desk.set_pointer(ui::pointer::normal);
    if (!was_written(app_.desk, outcome)) return;
    app_.ricarica_registro = 1;
    hide();
    app_.mirorca.use().show();
}

write_outcome mirorcr::book() {
    const instance_lock alone(app_.archives, instance_lock::kind::records);
    rec_tot now;
    write_outcome outcome(alone, booking_plan(now));
    if (outcome.begun() && orders_moved(now)) outcome.give_up_moved_order();
    if (!outcome.begun()) return outcome;
    app_.mirorca->empty_hand_over();
    book_marked_rows();
    close_fulfilled_orders();
    // The goods are booked before anything is made of them.
    outcome.faults.note(app_.archives.art.flush(), app_.archives.art);
    outcome.faults.note(app_.archives.orc.flush(), app_.archives.orc);
    return outcome;
}

bool mirorcr::orders_moved(const rec_tot& now) const {
    const orders_since meanwhile(now, ordini_);
    return std::ranges::any_of(visti_, [&](const ordine_visto& seen) {
        rec_orc row;
        return !app_.archives.orc.read(block_record(seen.registrazione, 1), row) ||
               meanwhile.took_away(seen, row);
    });
}

write_plan mirorcr::booking_plan(rec_tot& now) const {
    write_plan plan;
    plan.reads(app_.archives.tot, contatori::ordini, now);
    for (int row = 1; row < righe_; ++row) {
        if (number_in(row, numero_riga) <= 0) continue;
        plan.changes(app_.archives.orc);
        if (number_in(row, evaso) != 0) plan.changes(app_.archives.art);
    }
    return plan;
}

void mirorcr::book_marked_rows() {
    int line = -1;
    bool transport_data_taken = false;
    for (int row = 1; row < righe_; ++row) {
        const auto record = static_cast<std::int64_t>(number_in(row, numero_riga));
        if (record <= 0) continue;
        const double leaving = number_in(row, evaso);
        if (elenco.text(row, evaso) == "*") {
            rec_orc text;
            require(app_.archives.orc.read(record, text));
            app_.mirorca->hand_over(++line, text, {});
        } else if (leaving != 0) {
            const rec_orc booked = prenota_riga(app_.archives, record, leaving, articoli_.quanti);
            app_.mirorca->hand_over(++line, booked, leaving);
            if (aggiorna.on() && !transport_data_taken) {
                transport_data_taken = true;
                take_transport_data(static_cast<int>(number_in(row, numero_ordine)));
            }
        }
    }
}

void mirorcr::take_transport_data(int order) {
    rec_orc row;
    for (const int number : {2, 3, 4}) {
        require(app_.archives.orc.read(block_record(order, number), row));
        if (!mostra_spedizione(*app_.mirorcc, number, row)) throw subscript_error();
    }
}

void mirorcr::close_fulfilled_orders() {
    int last = 0;
    for (int row = 1; row < righe_; ++row) {
        const int order = static_cast<int>(number_in(row, numero_ordine));
        if (order <= 0 || order == last) continue;
        last = order;
        chiudi_se_evaso(app_.archives, order);
    }
}

}  // namespace vantora
