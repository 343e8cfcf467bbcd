#include "fulfil/booking.h"

#include <vector>

#include "errors/run_time_errors.h"
#include "orders/order_rows.h"
#include "orders/stock.h"
#include "store/records/order_block.h"

namespace vantora {

rec_orc prenota_riga(archive_change& change, archivi& files, std::int64_t record, double quantity,
                     std::int16_t articles, bool alive) {
    rec_orc row;
    change.read(files.orc, record, row);
    const bool committed = row.impegno.full() != "0";
    if (!alive || row.annullato != 1) {
        change_article(change, files.art, row.articolo, articles,
                       [&](rec_art& article) { release_stock(article, quantity, committed); });
    }
    row.evaso = checked(row.evaso + quantity);
    change.write(files.orc, record, row);
    return row;
}

void chiudi_se_evaso(archive_change& change, archivi& files, std::int64_t registrazione) {
    std::vector<rec_orc> rows(righe_blocco);
    change.read_block(files.orc, block_record(registrazione, 1), std::span(rows));
    // A damaged figure that is no number closes no order.
    if (!(balance_of(rows) <= 0)) return;
    rec_orc head;
    change.read(files.orc, block_record(registrazione, 1), head);
    head.evaso_flag = 1;
    change.write(files.orc, block_record(registrazione, 1), head);
}

}  // namespace vantora
