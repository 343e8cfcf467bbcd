#pragma once

#include <optional>
#include <span>

#include "store/archives.h"
#include "store/record_runs.h"
#include "store/records/order_block.h"

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

/// An order's block as it was read.
struct ordine_letto {
    std::int16_t registrazione = 0;
    std::span<const rec_orc> righe;  ///< all 200
};

/// The orders of a company, the newest first, each block in one read, many of them on their way at
/// once. Deleted orders, and those that can't be read, are passed over.
class order_walk {
 public:
    explicit order_walk(const archivi& files)
        : count_(records_in_use(files, contatori::ordini)),
          blocks_(files.orc, static_cast<std::size_t>(count_), [count = count_](std::size_t i) {
              return record_run{block_record(count - static_cast<std::int64_t>(i), 1),
                                righe_blocco};
          }) {}

    /// The next order; empty behind the oldest. Valid until the next call.
    std::optional<ordine_letto> next() {
        while (passed_ < count_) {
            const auto block = static_cast<std::int16_t>(count_ - passed_++);
            const auto rows = blocks_.next_run();
            if (rows && rows->front().annullato != 1) return ordine_letto{block, *rows};
        }
        return {};
    }

    [[nodiscard]] int count() const { return count_; }
    [[nodiscard]] int passed() const { return passed_; }

 private:
    int count_;
    int passed_ = 0;
    records_ahead<rec_orc> blocks_;
};

}  // namespace vantora
