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

/// Takes what a stored row still has open out of its article. The check box counts as it is now,
/// not as it was when the row was stored.
bool undo_row(archive_change& change, archivi& files, const ordine_esistente& order,
              const rec_orc& row) {
    if (row.quantita == 0) return false;
    return change_article(change, files.art, row.articolo, order.articoli, [&](rec_art& article) {
        release_stock(article, open_quantity(row), order.impegno);
    });
}

bool apply_line(archive_change& change, archivi& files, const ordine_esistente& order,
                const riga_ordine& line) {
    if (line.quantita == 0) return false;
    return change_article(change, files.art, line.articolo, order.articoli, [&](rec_art& article) {
        order_stock(article, line.quantita - line.evaso, order.impegno);
    });
}

/// The rows that are going to be written over are those awaited, or the user is asked first.
void look_for_other_rows(archive_change& change, const archivi& files,
                         const ordine_esistente& order, const orders_since& meanwhile) {
    if (!order.attese || !change.may_write()) return;
    const stored_rows<rec_orc> there(files.orc, order.visto.registrazione);
    change.require(there.unread().empty(), files.orc.name());
    if (order.attese->same_as(there)) return;
    change.give_up(meanwhile.took_away(order.visto, there[1]) ? change_outcome::order_moved
                                                              : change_outcome::to_be_asked);
}

/// Goes over the order's rows: what a stored row still had open is taken out of its article, then
/// `renew(change, number, row)` makes the row new and tells whether it moved stock itself.
template <class Renew>
change_outcome change_rows(archivi& files, const ordine_esistente& order, bool lines_move_stock,
                           const char* called, const Renew& renew) {
    archive_change change(files);
    change.recorded_as(called, std::string(order.visto.numero.trimmed()));
    rec_tot now;
    change.reads(files.tot, contatori::ordini, now);
    change.writes(files.orc, block_record(order.visto.registrazione, 1), righe_blocco);
    if (lines_move_stock || rows_move_stock(files, order)) change.changes(files.art);
    const orders_since meanwhile(now, order.contatore, files.orc);
    look_for_other_rows(change, files, order, meanwhile);

    bool recognised = false;
    bool deleted = false;  // by another station, which took these rows out of their articles
    bool stock_moved = false;
    rec_orc row;
    for (int number = 1; change.may_write() && number <= righe_blocco; ++number) {
        const std::int64_t record = block_record(order.visto.registrazione, number);
        if (!change.read(files.orc, record, row)) continue;
        if (!recognised && meanwhile.took_away(order.visto, row)) {
            change.give_up(change_outcome::order_moved);
            break;
        }
        deleted = recognised ? deleted : row.annullato == 1;
        recognised = true;
        if (!deleted || row.annullato != 1) stock_moved |= undo_row(change, files, order, row);
        stock_moved |= renew(change, number, row);
        change.write(files.orc, record, row);
    }
    if (change.may_write()) {
        if (stock_moved) change.flush(files.art);
        change.flush(files.orc);
    }
    return change.finish();
}

}  // namespace

change_outcome salva_ordine(archivi& files, const ordine_esistente& order,
                            const testata_registrata& head, bool evaso, const righe_ordine& lines) {
    return change_rows(files, order, lines_with_stock(lines, order.articoli) > 0, "ordine cambiato",
                       [&](archive_change& change, int number, rec_orc& row) {
                           const riga_ordine& line = lines[number];
                           fill_head(row, head, static_cast<std::size_t>(number));
                           fill_line(row, line);
                           row.evaso = line.evaso;
                           row.evaso_flag = evaso ? 1 : 0;
                           row.annullato = 0;
                           return apply_line(change, files, order, line);
                       });
}

change_outcome elimina_ordine(archivi& files, const ordine_esistente& order) {
    return change_rows(files, order, false, "ordine eliminato",
                       [](archive_change&, int, rec_orc& row) {
                           row.annullato = 1;
                           return false;
                       });
}

}  // namespace vantora
