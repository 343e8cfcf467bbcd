#include "entry/edit_order.h"

#include <algorithm>
#include <vector>

#include "orders/order_rows.h"
#include "orders/stock.h"

namespace vantora {

namespace {

/// Whether taking the stored rows out moves any stock; if they can't be told, they may.
bool rows_move_stock(const archivi& files, const ordine_esistente& order) {
    std::vector<rec_orc> rows(righe_blocco);
    if (!files.orc.read_block(block_record(order.visto.registrazione, 1), rows)) return true;
    return std::ranges::any_of(rows, [&](const rec_orc& row) {
        return row.quantita != 0 && is_article(row.articolo, order.articoli);
    });
}

/// What is looked at before an order is written over. `now`: the counter of the orders.
write_plan plan_of(archivi& files, const ordine_esistente& order, bool lines_move_stock,
                   rec_tot& now) {
    write_plan plan;
    plan.reads(files.tot, contatori::ordini, now);
    plan.writes(files.orc, block_record(order.visto.registrazione, 1), righe_blocco);
    if (lines_move_stock || rows_move_stock(files, order)) plan.changes(files.art);
    return plan;
}

/// Takes what a stored row still has open out of its article. The check box counts as it is now,
/// not as it was when the row was stored.
bool undo_row(archivi& files, const ordine_esistente& order, const rec_orc& row,
              write_faults& faults) {
    if (row.quantita == 0) return false;
    return change_article(files.art, row.articolo, order.articoli, faults, [&](rec_art& article) {
        release_stock(article, open_quantity(row), order.impegno);
    });
}

bool apply_line(archivi& files, const ordine_esistente& order, const riga_ordine& line,
                write_faults& faults) {
    if (line.quantita == 0) return false;
    return change_article(files.art, line.articolo, order.articoli, faults, [&](rec_art& article) {
        order_stock(article, line.quantita - line.evaso, order.impegno);
    });
}

void flush(archivi& files, bool stock_moved, write_faults& faults) {
    if (stock_moved) faults.note(files.art.flush(), files.art);
    faults.note(files.orc.flush(), files.orc);
}

/// Goes over the order's rows: what a stored row still had open is taken out of its article, then
/// `change(number, row, faults)` makes the row new and tells whether it moved stock itself.
template <class Change>
write_outcome change_rows(archivi& files, const ordine_esistente& order, bool lines_move_stock,
                          const Change& change) {
    const instance_lock alone(files, instance_lock::kind::records);
    rec_tot now;
    write_outcome outcome(alone, plan_of(files, order, lines_move_stock, now));
    if (!outcome.begun()) return outcome;
    const orders_since meanwhile(now, order.contatore);
    write_faults& faults = outcome.faults;

    bool recognised = false;
    bool stock_moved = false;
    rec_orc row;
    for (int number = 1; number <= righe_blocco; ++number) {
        const std::int64_t record = block_record(order.visto.registrazione, number);
        if (!faults.note(files.orc.read(record, row), files.orc)) continue;
        if (!recognised && meanwhile.took_away(order.visto, row)) {
            outcome.give_up_moved_order();
            return outcome;
        }
        recognised = true;
        stock_moved |= undo_row(files, order, row, faults);
        stock_moved |= change(number, row, faults);
        faults.note(files.orc.write(record, row), files.orc);
    }
    flush(files, stock_moved, faults);
    return outcome;
}

}  // namespace

write_outcome salva_ordine(archivi& files, const ordine_esistente& order,
                           const testata_registrata& head, bool evaso, const righe_ordine& lines) {
    return change_rows(files, order, lines_with_stock(lines, order.articoli) > 0,
                       [&](int number, rec_orc& row, write_faults& faults) {
                           const riga_ordine& line = lines[number];
                           fill_head(row, head, static_cast<std::size_t>(number));
                           fill_line(row, line);
                           row.evaso = line.evaso;
                           row.evaso_flag = evaso ? 1 : 0;
                           row.annullato = 0;
                           return apply_line(files, order, line, faults);
                       });
}

write_outcome elimina_ordine(archivi& files, const ordine_esistente& order) {
    return change_rows(files, order, false, [](int, rec_orc& row, write_faults&) {
        row.annullato = 1;
        return false;
    });
}

}  // namespace vantora
