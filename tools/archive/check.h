#pragma once

#include "archive/company_files.h"
#include "archive/finding.h"
#include "archive/open_quantities.h"

namespace vantora::archive {

/// Everything that can be told of an archive from its files alone, in the order of the files.
findings check_archive(company_files& company);

// One subject each -------------------------------------------------------------------------------

/// Lengths of the record files against whole records and against their counters; counters that
/// are nonsense or near their end.
void check_files(company_files& company, findings& into);
/// Order of the indexes, each record once, the key of its record.
void check_indexes(company_files& company, findings& into);
/// The orders, block by block, in one pass that also adds up what they have open.
void check_orders(company_files& company, open_quantities& open, findings& into);
/// Stock figures that are no numbers, and ordered quantities that the orders don't account for.
void check_stock(company_files& company, const open_quantities& open, findings& into);
/// Movements and transport documents.
void check_movements(company_files& company, findings& into);
/// Parameter and table files that fall back to defaults.
void check_tables(company_files& company, findings& into);

/// So many records of an open file couldn't be read.
template <class Record>
void tell_unread(const channel<Record>& file, int records, findings& into) {
    if (records == 0 || !file.is_open()) return;
    into.push_back({gravity::error, file.name(), std::to_string(records) + " records can't be read",
                    "See whether its disk is sound; put the file back from a copy."});
}

}  // namespace vantora::archive
