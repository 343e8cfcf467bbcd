#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "store/channel.h"
#include "store/records/rec_cli.h"

namespace vantora {

/// The customers or articles for one build of a list. Neighbours in the file are read together,
/// each stretch of the file once, and only the part of a record that the list needs is kept: a Part
/// is made from a Record. Lives as long as the build, so what other programs write shows in the
/// next.
template <class Record, class Part>
class record_stretches {
 public:
    explicit record_stretches(const channel<Record>& records)
        : records_(records), stretches_(stretches) {}
    record_stretches(const record_stretches&) = delete;
    record_stretches& operator=(const record_stretches&) = delete;

    /// The part of record `number`. Where the record can't be read it is the one that was looked up
    /// before, at first that of an empty record. Valid until the next call.
    const Part& of(std::int16_t number) {
        if (number < 1) return *last_;
        const auto place = static_cast<std::size_t>(number - 1);
        auto& known = stretches_[place / stretch_length];
        if (!known) known = read_stretch(place / stretch_length);
        if (known->readable) {
            last_ = &known->parts[place % stretch_length];
        } else if (Record record; records_.read(number, record)) {
            alone_ = Part(record);
            last_ = &alone_;
        }
        return *last_;
    }

 private:
    static constexpr std::size_t stretch_length = 32;
    static constexpr std::size_t stretches = INT16_MAX / stretch_length + 1;

    struct stretch {
        bool readable = false;  ///< as a whole; if not, its records are read one by one
        std::array<Part, stretch_length> parts;
    };

    std::unique_ptr<stretch> read_stretch(std::size_t number) {
        auto read = std::make_unique<stretch>();
        std::array<Record, stretch_length> records;
        const auto first = static_cast<std::int64_t>(number * stretch_length) + 1;
        read->readable = records_.read_block(first, records);
        if (!read->readable) return read;
        for (std::size_t i = 0; i < stretch_length; ++i) read->parts[i] = Part(records[i]);
        return read;
    }

    const channel<Record>& records_;
    std::vector<std::unique_ptr<stretch>> stretches_;
    Part alone_;
    const Part* last_ = &alone_;
};

template <class Part>
using customer_stretches = record_stretches<rec_cli, Part>;

}  // namespace vantora
