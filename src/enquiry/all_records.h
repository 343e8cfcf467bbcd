#pragma once

#include "store/archives.h"
#include "store/record_runs.h"

namespace vantora {

/// How many records a counter says are in use; none if it can't be read or makes no sense.
inline int records_in_use(const archivi& files, int counter) {
    rec_tot record;
    if (!files.tot.read(counter, record) || record.quanti < 0) return 0;
    return record.quanti;
}

/// Calls `take(number, record)` for records 1 to `count`, 256 in one read; those that can't be read
/// are passed over.
template <class Record, class Take>
void for_all(const channel<Record>& records, int count, Take take) {
    auto ahead = all_records_ahead(records, count, 256);
    Record one;
    for (int number = 1; number <= count; ++number) {
        if (ahead.next(one)) take(number, one);
    }
}

}  // namespace vantora
