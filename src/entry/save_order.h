#pragma once

#include "orders/order_seen.h"
#include "orders/stored_lines.h"
#include "orders/stored_order.h"
#include "store/archive_change.h"

namespace vantora {

/// Saves a new order as the block behind the last one: 200 rows, each behind the stock movement of
/// its article, then, with all of it on the disk, the counter that makes the order visible. What
/// ends the program before leaves at most stock moved for an order that isn't there.
///
/// The rows behind the fourth repeat its texts, to no purpose. `data_reg`: date number of the save.
/// `articles`: how many there are. An article that can't be read or written is passed over. A row
/// that refuses ends the save: the counter stays, so that no old block comes to count, and the
/// stock is put back.
change_outcome salva_nuovo_ordine(archivi& files, const testata_registrata& head, double data_reg,
                                  const righe_ordine& lines, std::int16_t articles);

/// An order that is in the archive, as it was when its screen read it, and what stands there now.
struct ordine_esistente {
    ordine_visto visto;
    rec_tot contatore;          ///< of the orders, read before the order was
    std::int16_t articoli = 0;  ///< how many articles there are
    bool impegno = false;       ///< commit the stock now, and free what the rows had committed
    /// Only these rows are written over; null: whatever stands there, the last save counts.
    const stored_rows<rec_orc>* attese = nullptr;
};

/// Saves an order anew over its block. Row by row what the stored row still had open is taken out
/// of its article, what the new line has open is put in, and the row is written, its other fields
/// as the file has them; `data_reg` too. The counters stay. At the end all is on the disk.
///
/// Failed reads and writes are passed over and noted: an article or a row that can't be read is
/// left alone, and a row that is left alone moves no stock. What ends the program on the way leaves
/// rows before it new, rows behind it old, each with its article's stock. It doesn't begin if
/// another station's compaction has put another order into the block, or if the user is to be asked
/// about other rows than those awaited.
change_outcome salva_ordine(archivi& files, const ordine_esistente& order,
                            const testata_registrata& head, bool evaso, const righe_ordine& lines);

/// Deletes an order: what its stored rows still had open is taken out of their articles, and every
/// row is marked, under the same rules. The block stays until the archive is compacted.
change_outcome elimina_ordine(archivi& files, const ordine_esistente& order);

}  // namespace vantora
