#include <algorithm>
#include <set>

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
    if (!outcome.stored()) return stay(outcome);
    app_.ricarica_registro = 1;
    hide();
    app_.mirorca.use().show();
}

change_outcome mirorcr::book() {
    archive_change change(app_.archives, archive_change::faults::end_the_program);
    change.recorded_as("evasione di ordini", marked_orders());
    look_before_booking(change);
    if (change.may_write() && app_.desk.guards().on() && !changed_rows().empty()) {
        change.give_up(change_outcome::to_be_asked);
    }
    if (!change.may_write()) return change.finish();
    app_.mirorca->empty_hand_over();
    book_marked_rows(change);
    close_fulfilled_orders(change);
    // The goods are booked before anything is made of them.
    change.flush(app_.archives.art);
    change.flush(app_.archives.orc);
    return change.finish();
}

std::string mirorcr::marked_orders() const {
    std::set<int> leaving;
    for (int row = 1; row < righe_; ++row) {
        if (number_in(row, evaso) == 0) continue;
        leaving.insert(static_cast<int>(number_in(row, numero_ordine)));
    }
    std::string numbers;
    for (const ordine_visto& seen : visti_) {
        if (!leaving.contains(seen.registrazione)) continue;
        numbers += (numbers.empty() ? "" : ", ") + std::string(seen.numero.trimmed());
    }
    return numbers;
}

void mirorcr::look_before_booking(archive_change& change) const {
    archivi& files = app_.archives;
    rec_tot now;
    change.reads(files.tot, contatori::ordini, now);
    const orders_since meanwhile(now, ordini_, files.orc);
    // Another station's compaction has moved none of the orders listed.
    for (const ordine_visto& seen : visti_) {
        if (!change.may_write()) break;
        rec_orc row;
        const bool read = files.orc.read(block_record(seen.registrazione, 1), row);
        change.require(seen.letto && read, files.orc.name());
        if (meanwhile.took_away(seen, row)) change.give_up(change_outcome::order_moved);
    }
    bool any = false;
    bool any_leaves = false;
    for (int row = 1; row < righe_; ++row) {
        if (number_in(row, numero_riga) <= 0) continue;
        any = true;
        any_leaves |= number_in(row, evaso) != 0;
    }
    if (any) change.changes(files.orc);
    if (any_leaves) change.changes(files.art);
}

void mirorcr::stay(const change_outcome& outcome) {
    const std::string list_is_read = "Non è stato registrato nulla, l'elenco viene riletto."_cp;
    if (outcome.how == change_outcome::to_be_asked) {
        app_.desk.guards().refuse(
            "Un'altra postazione ha cambiato queste righe mentre l'elenco era aperto:" +
            changed_rows() + "\n" + list_is_read);
    } else if (outcome.how == change_outcome::order_moved) {
        app_.desk.message("Un'altra postazione ha compattato l'archivio. " + list_is_read,
                          ui::attention, ui::icon::warning);
    } else {
        was_stored(app_.desk, outcome);
        if (std::ranges::all_of(visti_, &ordine_visto::letto)) return;
    }
    list_anew();
}

std::string mirorcr::changed_rows() const {
    std::string named;
    for (int row = 1; row < righe_; ++row) {
        const std::string_view leaving = elenco.text(row, evaso);
        rec_orc now;
        if ((testo_a_numero(leaving) == 0 && leaving != "*") ||
            !app_.archives.orc.read(static_cast<std::int64_t>(number_in(row, numero_riga)), now) ||
            riga_vista(now) == viste_[static_cast<std::size_t>(row - 1)]) {
            continue;
        }
        named += "\nordine " + std::string(now.numero.trimmed()) + ", " +
                 std::string(trimmed(elenco.text(row, articolo)));
    }
    return named;
}

void mirorcr::list_anew() {
    struct segno {
        ordine_visto ordine;
        std::int64_t riga;
        riga_vista vista;
        std::string evaso;
    };
    std::vector<segno> marks;
    const auto order_in = [this](int row) {
        const auto block = static_cast<int>(number_in(row, numero_ordine));
        return *std::ranges::find(visti_, block, &ordine_visto::registrazione);
    };
    const auto line_in = [this](int row) {
        return static_cast<std::int64_t>(number_in(row, numero_riga)) % righe_blocco;
    };
    for (int row = 1; row < righe_; ++row) {
        const std::string_view leaving = elenco.text(row, evaso);
        if (leaving.empty()) continue;
        marks.push_back({order_in(row), line_in(row), viste_[static_cast<std::size_t>(row - 1)],
                         std::string(leaving)});
    }
    build_list();
    for (int row = 1; row < righe_ && !marks.empty(); ++row) {
        const auto its = std::ranges::find_if(marks, [&](const segno& mark) {
            return mark.riga == line_in(row) &&
                   mark.vista == viste_[static_cast<std::size_t>(row - 1)] &&
                   same_order(mark.ordine, order_in(row));
        });
        if (its == marks.end()) continue;
        elenco.set_text(row, evaso, its->evaso);
        marks.erase(its);
    }
    show_marked();
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
            const bool alive = viste_[static_cast<std::size_t>(row - 1)].annullato != 1;
            const rec_orc booked =
                prenota_riga(change, app_.archives, record, leaving, articoli_.quanti, alive);
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
        if (!show_shipping(*app_.mirorcc, number, row)) throw subscript_error();
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
