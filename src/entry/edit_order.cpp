#include "entry/edit_order.h"

#include "program/stock.h"

namespace vantora {

namespace {

/// Takes what a stored row still has open out of its article. The check box counts as it is now,
/// not as it was when the row was stored.
bool undo_row(archivi& files, const ordine_esistente& order, const rec_orc& row) {
    if (row.quantita == 0) return false;
    return change_article(files.art, row.articolo, order.articoli, [&](rec_art& article) {
        release_stock(article, row.quantita - row.evaso, order.impegno);
    });
}

bool apply_line(archivi& files, const ordine_esistente& order, const riga_ordine& line) {
    if (line.quantita == 0) return false;
    return change_article(files.art, line.articolo, order.articoli, [&](rec_art& article) {
        order_stock(article, line.quantita - line.evaso, order.impegno);
    });
}

void flush(archivi& files, bool stock_moved) {
    if (stock_moved) files.art.flush();
    files.orc.flush();
}

}  // namespace

void salva_ordine(archivi& files, const ordine_esistente& order, const testata_registrata& head,
                  bool evaso, const righe_ordine& lines) {
    bool stock_moved = false;
    rec_orc row;
    for (int number = 1; number <= righe_blocco; ++number) {
        const std::int64_t record = block_record(order.registrazione, number);
        if (!files.orc.read(record, row)) continue;
        stock_moved |= undo_row(files, order, row);
        fill_head(row, head, static_cast<std::size_t>(number));
        fill_line(row, lines[number]);
        row.evaso = lines[number].evaso;
        row.evaso_flag = evaso ? 1 : 0;
        row.annullato = 0;
        stock_moved |= apply_line(files, order, lines[number]);
        files.orc.write(record, row);
    }
    flush(files, stock_moved);
}

void elimina_ordine(archivi& files, const ordine_esistente& order) {
    bool stock_moved = false;
    rec_orc row;
    for (int number = 1; number <= righe_blocco; ++number) {
        const std::int64_t record = block_record(order.registrazione, number);
        if (!files.orc.read(record, row)) continue;
        stock_moved |= undo_row(files, order, row);
        row.annullato = 1;
        files.orc.write(record, row);
    }
    flush(files, stock_moved);
}

}  // namespace vantora
