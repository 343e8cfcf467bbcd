#pragma once

#include <cstdint>

#include "store/archive_change.h"

namespace vantora {

// A fulfilment is booked on orders and articles before its transport document exists. Nothing takes
// a booking back but editing the order. REQUIRES: in the change, faults end the program; what was
// booked before stays.

/// Books a quantity that leaves of order row `record`: first on the article, which has it in order
/// and perhaps set aside, then as fulfilled on the row. What ends the program between the two
/// leaves an article with too little in order, never a fulfilled row that its article doesn't know
/// of. Returns the row as written. `articles`: how many there are; a row of none of them is booked
/// alone. So is one that was `alive` when it was listed and is deleted now: what its article had in
/// order of it went with the deletion.
rec_orc prenota_riga(archive_change& change, archivi& files, std::int64_t record, double quantity,
                     std::int16_t articles, bool alive);

/// Marks an order as fulfilled if nothing is open in the balance of all its rows: what leaves
/// beyond the quantity of one row makes up for another one's rest.
void chiudi_se_evaso(archive_change& change, archivi& files, std::int64_t registrazione);

}  // namespace vantora
