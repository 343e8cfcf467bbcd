#pragma once

#include "orders/stored_order.h"
#include "store/archives.h"
#include "store/write_outcome.h"

namespace vantora {

/// Saves a new order as the block behind the last one: 200 rows, each behind the stock movement of
/// its article, then, with all of it on the disk, the counter that makes the order visible. What
/// ends the program before leaves at most stock moved for an order that isn't there.
///
/// The rows behind the fourth repeat its texts, to no purpose. `data_reg`: date number of the save.
/// `articles`: how many there are. Failed reads and writes are passed over and noted; an article
/// that can't be read is left alone. It doesn't begin if the counter makes no sense (the block
/// might be another order's), a file can't be written, the disk has no room for the block, or
/// another station compacts the archive.
write_outcome salva_nuovo_ordine(archivi& files, const testata_registrata& head, double data_reg,
                                 const righe_ordine& lines, std::int16_t articles);

}  // namespace vantora
