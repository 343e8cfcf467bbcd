#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <type_traits>
#include <utility>

#include "store/file_port.h"

namespace vantora {

/// An open file of records of one kind. Record numbers begin at 1. Nothing is cached: other
/// programs write the same file.
template <class Record>
class channel {
    static_assert(std::is_trivially_copyable_v<Record> && alignof(Record) == 1);

 public:
    static constexpr std::int64_t record_length = sizeof(Record);

    channel() = default;
    explicit channel(std::unique_ptr<file> opened) : file_(std::move(opened)) {}

    [[nodiscard]] bool is_open() const { return file_ != nullptr; }
    void close() { file_.reset(); }

    /// Reads record `number`. What lies past the end of the file reads as zero bytes. False, with
    /// the record left as it was, for a closed channel, a number below 1 or a failed read.
    bool read(std::int64_t number, Record& record) const {
        return read_block(number, std::span(&record, 1));
    }

    /// Reads records `first`, `first` + 1, ... in one call, under the same rules; on failure all
    /// of `records` stay as they were.
    bool read_block(std::int64_t first, std::span<Record> records) const {
        if (!file_ || first < 1) return false;
        const auto bytes = std::as_writable_bytes(records);
        const auto had = file_->read((first - 1) * record_length, bytes);
        if (!had) return false;
        for (auto& byte : bytes.subspan(*had)) byte = std::byte{0};
        return true;
    }

    /// Writes record `number`. False for a closed channel, a number below 1 or a failed write.
    bool write(std::int64_t number, const Record& record) {
        return write_block(number, std::span(&record, 1));
    }

    /// Writes records `first`, `first` + 1, ... in one call.
    bool write_block(std::int64_t first, std::span<const Record> records) {
        if (!file_ || first < 1) return false;
        return file_->write((first - 1) * record_length, std::as_bytes(records));
    }

    /// Waits until everything written has reached the disk.
    bool flush() { return file_ && file_->flush(); }

 private:
    std::unique_ptr<file> file_;
};

}  // namespace vantora
