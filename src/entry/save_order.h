#pragma once

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

}  // namespace vantora
