#include "fulfil/booking.h"

#include <vector>

#include "fulfil/faults.h"
#include "orders/order_rows.h"
#include "orders/stock.h"
#include "store/records/order_block.h"

namespace vantora {

rec_orc prenota_riga(archivi& files, std::int64_t record, double quantity, std::int16_t articles) {
    rec_orc row;
    require(files.orc.read(record, row));
    if (is_article(row.articolo, articles)) {
        const bool committed = row.impegno.full() != "0";
        require(change_article(files.art, row.articolo, articles, [&](rec_art& article) {
            release_stock(article, quantity, committed);
        }));
    }
    row.evaso = checked(row.evaso + quantity);
    require(files.orc.write(record, row));
    return row;
}

void chiudi_se_evaso(archivi& files, std::int64_t registrazione) {
    std::vector<rec_orc> rows(righe_blocco);
    require(files.orc.read_block(block_record(registrazione, 1), rows));
    // A damaged figure that is no number closes no order.
    if (!(balance_of(rows) <= 0)) return;
    rec_orc head;
    require(files.orc.read(block_record(registrazione, 1), head));
    head.evaso_flag = 1;
    require(files.orc.write(block_record(registrazione, 1), head));
}

}  // namespace vantora
