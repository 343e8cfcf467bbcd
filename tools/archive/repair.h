#pragma once

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

#include "archive/company_files.h"

namespace vantora::archive {

/// "vantora.riparazione-counters" stands in the company's folder from before the repair's first
/// write until after its last: found there, it was interrupted.
inline constexpr const char* unfinished_repair = "riparazione-";

/// Where a repair works, and whom it asks.
struct repair_request {
    file_port& files;  ///< for reading and writing
    int numero_azienda;
    /// Asks whether to go on; `certain`: a yes that was given beforehand will do.
    std::function<bool(bool certain)> confirmed;
    std::ostream& out;
    /// Given the files whose changes it may take down; null: there is no book.
    std::function<void(archivi&)> book = nullptr;
};

// Each repair reads the company, shows what it will change, asks, takes the program's lock, reads
// anew, copies the files in question beside themselves and looks whether the copies are good,
// then writes what was shown and still holds, and nothing else. Ended anywhere, a figure is the
// old one or the new one; the next run shows what is left. 0: all is right afterwards; 1: refused,
// by the user or because the repair isn't sure, and says why; 3: a file can't be read or written.

/// `ordinato_clienti` of the articles, from the open orders.
int repair_ordered_quantities(const repair_request& request);
/// Orders that stand twice since a compaction was cut off: the later ones count as deleted.
int repair_doubled_orders(const repair_request& request);
/// The three key indexes, anew from the records.
int repair_indexes(const repair_request& request);
/// Counters that are wrong for certain.
int repair_counters(const repair_request& request);

}  // namespace vantora::archive
