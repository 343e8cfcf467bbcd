#pragma once

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

#include "archive/company_files.h"
#include "store/archive_change.h"

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

/// What one repair may write with.
struct repair_tools {
    file_port& files;
    int numero_azienda;
    archivi& records;
    archive_change& change;
};

/// One thing that a repair changes.
struct repair_step {
    std::string shown;  ///< what changes, from what to what: what still holds has the same words
    const char* extension;                           ///< of the file that it writes
    std::function<bool(const repair_tools&)> write;  ///< false if a file refused
};

/// All of them.
struct repair_plan {
    std::string refusal;  ///< why nothing may be changed; empty: nothing is in the way
    std::string nothing;  ///< what to say if there is nothing to change
    bool certain = true;  ///< false: only a person who looks can tell that it is right
    std::vector<repair_step> steps;
};

// Each repair reads the company, shows what it will change, asks, takes the program's lock, reads
// anew, copies the files in question beside themselves and looks whether the copies are good,
// then writes what was shown and still holds, and nothing else. Ended anywhere, a figure is the
// old one or the new one; the next run shows what is left. 0: all is right afterwards; 1: refused,
// by the user or because the repair isn't sure, and says why; 3: a file can't be read or written.

/// One of them.
struct named_repair {
    const char* name;   ///< as the command line has it
    const char* words;  ///< what it sets right
    repair_plan (*plan)(company_files&);
};

extern const named_repair repairs[4];

int carry_out(const named_repair& which, const repair_request& request);

// What to change, worked out from what the files hold now
// ------------------------------------------

/// `ordinato_clienti` of the articles, from the open orders.
repair_plan plan_ordered_quantities(company_files& company);
/// Orders that stand twice since a compaction was cut off: the later ones count as deleted.
repair_plan plan_doubled_orders(company_files& company);
/// The three key indexes, anew from the records.
repair_plan plan_indexes(company_files& company);
/// Counters that are wrong for certain.
repair_plan plan_counters(company_files& company);

}  // namespace vantora::archive
