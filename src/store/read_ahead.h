#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <utility>

#include "store/channel.h"

namespace vantora {

/// Reads many places of one file for one who needs them in a certain order: while he works on one,
/// the next are on their way, many at once where the disk or the network makes each of them wait.
/// Everything is called from one thread; the threads that read are no concern of the caller, and
/// none is left when the object goes.
///
/// Costs: of n reads of a time t each about n t / 32, of reads from memory half of them or less.
/// In memory at once: 72 batches of at most 256 KiB, or of one place if that is larger.
class read_ahead {
 public:
    /// Bytes of the file in one read. A negative offset can't be read.
    struct place {
        std::int64_t offset = 0;
        std::size_t bytes = 0;
    };

    /// `plan(i)`: place i of `places`, asked for once each, in order, some time before its turn.
    /// `from` null: nothing can be read.
    read_ahead(std::shared_ptr<file> from, std::size_t places,
               std::function<place(std::size_t)> plan);
    read_ahead(const read_ahead&) = delete;
    read_ahead& operator=(const read_ahead&) = delete;
    ~read_ahead();

    /// The bytes of the next place, zero behind the end of the file; empty if its read failed, or
    /// behind the last place. Valid until the next call.
    std::optional<std::span<const std::byte>> next();

 private:
    class readers;
    std::unique_ptr<readers> readers_;
};

/// Reads records `first`, `first` + 1, ... in one call, or, where that fails, one by one. False if
/// one of them can't be read; it and those behind it stay as they were.
template <class Record>
bool read_run(const channel<Record>& from, std::int64_t first, std::span<Record> records) {
    if (from.read_block(first, records)) return true;
    return std::ranges::all_of(records, [&](Record& record) { return from.read(first++, record); });
}

/// Records `first`, `first` + 1, ... that are read in one call.
struct record_run {
    std::int64_t first = 1;
    std::size_t count = 1;
};

/// The records of one file in a planned order, read ahead. Where a run of several can't be read in
/// one call, its records are read one by one when their turn comes, so that each fails alone.
template <class Record>
class records_ahead {
 public:
    /// `plan(i)`: run i of `runs`. `from` may be closed meanwhile: what is under way goes on.
    records_ahead(const channel<Record>& from, std::size_t runs,
                  std::function<record_run(std::size_t)> plan)
        : from_(from),
          plan_(std::move(plan)),
          runs_(runs),
          ahead_(from.shared_file(), runs, places()) {}

    /// Takes the next record of the plan. False, with the record left as it was, if it couldn't be
    /// read, or behind the last.
    bool next(Record& into) {
        while (taken_ == run_.count) {
            if (next_run_ == runs_) return false;
            run_ = plan_(next_run_++);
            taken_ = 0;
            bytes_ = ahead_.next();
        }
        const std::size_t at = taken_++;
        if (bytes_) {
            std::memcpy(&into, bytes_->data() + at * sizeof(Record), sizeof(Record));
            return true;
        }
        return run_.count > 1 && from_.read(run_.first + static_cast<std::int64_t>(at), into);
    }

 private:
    std::function<read_ahead::place(std::size_t)> places() {
        return [this](std::size_t i) {
            const record_run run = plan_(i);
            return read_ahead::place{(run.first - 1) * channel<Record>::record_length,
                                     run.count * sizeof(Record)};
        };
    }

    channel<Record> from_;
    std::function<record_run(std::size_t)> plan_;
    std::size_t runs_;
    std::size_t next_run_ = 0;
    record_run run_{1, 0};
    std::size_t taken_ = 0;
    std::optional<std::span<const std::byte>> bytes_;
    read_ahead ahead_;
};

/// Records 1 to `count` of a file in runs of `at_once`.
template <class Record>
records_ahead<Record> all_records_ahead(const channel<Record>& from, int count, int at_once) {
    const int runs = count > 0 ? (count - 1) / at_once + 1 : 0;
    return records_ahead<Record>(from, static_cast<std::size_t>(runs), [=](std::size_t run) {
        const int before = static_cast<int>(run) * at_once;
        return record_run{before + 1, static_cast<std::size_t>(std::min(at_once, count - before))};
    });
}

}  // namespace vantora
