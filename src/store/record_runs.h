#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <deque>
#include <functional>
#include <optional>
#include <span>
#include <utility>

#include "store/channel.h"
#include "store/read_ahead.h"

namespace vantora {

// Many records of one file, neighbours in one call, each failing alone.

/// Records `first`, `first` + 1, ... that are read in one call.
struct record_run {
    std::int64_t first = 1;
    std::size_t count = 1;
};

/// Reads records `first`, `first` + 1, ... in one call, or, where that fails, one by one. For each
/// that can't be read `failed(i)` is called, i from 0; it was left as it was.
template <class Record, class Failed>
void read_run(const channel<Record>& from, std::int64_t first, std::span<Record> records,
              Failed failed) {
    if (from.read_block(first, records)) return;
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (!from.read(first + static_cast<std::int64_t>(i), records[i])) failed(i);
    }
}

/// Runs of records of one file in the order in which they are asked for or planned, read ahead.
template <class Record>
class records_ahead {
 public:
    using plan = std::function<record_run(std::size_t)>;

    /// Takes each run that could be read in one call, by its first record, in the thread that read
    /// it, as read_ahead::first_look.
    using first_look = std::function<void(std::int64_t first, std::span<const Record>)>;

    /// `from` may be closed meanwhile: what is under way goes on.
    explicit records_ahead(const channel<Record>& from) : records_ahead(from, 0, {}) {}
    /// `planned(i)`: run i of `runs`; asked for by itself, in order, some time before its turn.
    records_ahead(const channel<Record>& from, std::size_t runs, plan planned, first_look look = {})
        : from_(from),
          plan_(std::move(planned)),
          runs_(runs),
          ahead_(from.shared_file(), look_at_bytes(std::move(look))) {}

    void ask(const record_run& run) {
        ahead_.ask({(run.first - 1) * channel<Record>::record_length, run.count * sizeof(Record)});
        asked_.push_back(run);
    }
    /// What was asked for sets out.
    void send() { ahead_.send(); }

    /// Takes the next record. False, with the record left as it was, if it couldn't be read, or
    /// behind the last. Where a run of several can't be read in one call, its records are read one
    /// by one when their turn comes.
    bool next(Record& into) {
        while (taken_ == run_.count) {
            if (!begin_run()) return false;
        }
        const std::size_t at = taken_++;
        if (bytes_) {
            std::memcpy(&into, bytes_->data() + at * sizeof(Record), sizeof(Record));
            return true;
        }
        return run_.count > 1 && from_.read(run_.first + static_cast<std::int64_t>(at), into);
    }

    /// The run that was taken last, whole or in part.
    [[nodiscard]] const record_run& run() const { return run_; }

    /// Takes the next run, or what is left of the one at hand, whole. Empty if it couldn't be read
    /// in one call, or behind the last. Valid until the next call of anything here.
    std::optional<std::span<const Record>> next_run() {
        if (taken_ == run_.count && !begin_run()) return {};
        const std::size_t at = std::exchange(taken_, run_.count);
        if (!bytes_) return {};
        return records_in(*bytes_).subspan(at);
    }

 private:
    /// Records are arrays of bytes, at any address.
    static std::span<const Record> records_in(std::span<const std::byte> bytes) {
        return {reinterpret_cast<const Record*>(bytes.data()), bytes.size() / sizeof(Record)};
    }

    static read_ahead::first_look look_at_bytes(first_look look) {
        if (!look) return {};
        return [look = std::move(look)](const auto& place, std::span<const std::byte> bytes) {
            look(place.offset / channel<Record>::record_length + 1, records_in(bytes));
        };
    }

    bool begin_run() {
        plan_ahead();
        if (asked_.empty()) return false;
        run_ = asked_.front();
        asked_.pop_front();
        taken_ = 0;
        bytes_ = ahead_.next();
        return true;
    }

    void plan_ahead() {
        if (planned_ == runs_ || !ahead_.has_room()) return;
        while (planned_ < runs_ && ahead_.has_room()) ask(plan_(planned_++));
        ahead_.send();
    }

    channel<Record> from_;
    plan plan_;
    std::size_t runs_;
    std::size_t planned_ = 0;
    std::deque<record_run> asked_;
    record_run run_{1, 0};
    std::size_t taken_ = 0;
    std::optional<std::span<const std::byte>> bytes_;
    read_ahead ahead_;
};

/// Records 1 to `count` of a file in runs of `at_once`.
template <class Record>
records_ahead<Record> all_records_ahead(const channel<Record>& from, int count, int at_once,
                                        typename records_ahead<Record>::first_look look = {}) {
    const int runs = count > 0 ? (count - 1) / at_once + 1 : 0;
    const auto planned = [=](std::size_t run) {
        const int before = static_cast<int>(run) * at_once;
        return record_run{before + 1, static_cast<std::size_t>(std::min(at_once, count - before))};
    };
    return records_ahead<Record>(from, static_cast<std::size_t>(runs), planned, std::move(look));
}

}  // namespace vantora
