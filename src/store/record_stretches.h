#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <memory>
#include <vector>

#include "store/record_runs.h"

namespace vantora {

/// The customers or articles for one build of a list. Neighbours in the file are read together,
/// each stretch of the file once, and only the part of a record that the list needs is kept: a Part
/// is made from a Record. The more stretches a list needs, the more of those behind are read ahead.
/// Lives as long as the build, so what other programs write shows in the next.
template <class Record, class Part>
class record_stretches {
 public:
    explicit record_stretches(const channel<Record>& records)
        : records_(records), ahead_(records), stretches_(stretches) {}
    record_stretches(const record_stretches&) = delete;
    record_stretches& operator=(const record_stretches&) = delete;

    /// The part of record `number`. Where the record can't be read it is the one that was looked up
    /// before, at first that of an empty record. Valid until the next call.
    const Part& of(std::int16_t number) {
        if (number < 1) return *last_;
        const auto place = static_cast<std::size_t>(number - 1);
        const auto& known = at(place / stretch_length);
        if (known.readable) {
            last_ = &known.parts[place % stretch_length];
        } else if (Record record; records_.read(number, record)) {
            alone_ = Part(record);
            last_ = &alone_;
        }
        return *last_;
    }

 private:
    static constexpr std::size_t stretch_length = 32;
    static constexpr std::size_t stretches = INT16_MAX / stretch_length + 1;
    static constexpr std::size_t ahead_most = 32;

    struct stretch {
        bool readable = false;  ///< as a whole; if not, its records are read one by one
        bool read = false;
        std::array<Part, stretch_length> parts;
    };

    const stretch& at(std::size_t number) {
        if (!stretches_[number]) ask_from(number);
        while (!stretches_[number]->read) take_next();
        return *stretches_[number];
    }

    /// Asks for a stretch and for some that lie behind it.
    void ask_from(std::size_t number) {
        const std::int64_t held = records_.records_held().value_or(0);
        const auto end =
            std::min<std::size_t>(stretches, static_cast<std::size_t>(held) / stretch_length + 1);
        ask(number);
        std::size_t more = neighbours_;
        for (std::size_t i = number + 1; i < end && more > 0; ++i) {
            if (stretches_[i]) continue;
            ask(i);
            --more;
        }
        if (neighbours_ < ahead_most) ++neighbours_;
        ahead_.send();
    }

    void ask(std::size_t number) {
        ahead_.ask({static_cast<std::int64_t>(number * stretch_length) + 1, stretch_length});
        asked_.push_back(number);
        stretches_[number] = std::make_unique<stretch>();
    }

    void take_next() {
        stretch& one = *stretches_[asked_.front()];
        asked_.pop_front();
        one.read = true;
        const auto records = ahead_.next_run();
        one.readable = records.has_value();
        if (!records) return;
        for (std::size_t i = 0; i < stretch_length; ++i) one.parts[i] = Part((*records)[i]);
    }

    const channel<Record>& records_;
    records_ahead<Record> ahead_;
    std::vector<std::unique_ptr<stretch>> stretches_;  ///< null: not asked for yet
    std::deque<std::size_t> asked_;                    ///< not taken yet
    std::size_t neighbours_ = 0;
    Part alone_;
    const Part* last_ = &alone_;
};

}  // namespace vantora
