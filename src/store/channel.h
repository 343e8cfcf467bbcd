#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <optional>
#include <span>
#include <string>
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
    /// `name`: as users know the file, "vantora.orc".
    explicit channel(std::shared_ptr<file> opened, std::string name = {})
        : file_(std::move(opened)), name_(std::move(name)) {}

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] bool is_open() const { return file_ != nullptr; }
    void close() { file_.reset(); }

    /// Reads record `number`. What lies past the end of the file reads as zero bytes. False, with
    /// the record left as it was, for a closed channel, a number below 1 or a failed read.
    bool read(std::int64_t number, Record& record) const {
        std::byte fresh[sizeof(Record)];
        if (!fill(number, fresh)) return false;
        std::memcpy(&record, fresh, sizeof fresh);
        return true;
    }

    /// Reads records `first`, `first` + 1, ... in one call, under the same rules; on failure all
    /// of `records` stay as they were.
    bool read_block(std::int64_t first, std::span<Record> records) const {
        const auto fresh = std::make_unique_for_overwrite<std::byte[]>(records.size_bytes());
        if (!fill(first, {fresh.get(), records.size_bytes()})) return false;
        std::memcpy(records.data(), fresh.get(), records.size_bytes());
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

    /// Whether records can be written here: the channel is open, and not for reading only.
    [[nodiscard]] bool writable() const { return file_ && file_->writable(); }

    /// Goes along if another file stands under the path by now. A closed channel stays as it is.
    file_place follow() { return file_ ? file_->follow() : file_place::same; }

    /// Sets room on the disk aside for `count` records from `first` on; the file's length stays.
    /// False for a closed channel, a number below 1 or a full disk.
    bool reserve(std::int64_t first, std::int64_t count) {
        return file_ && first >= 1 &&
               file_->reserve((first - 1) * record_length, count * record_length);
    }

    /// How many whole records the file holds; empty for a closed channel, or if that can't be told.
    [[nodiscard]] std::optional<std::int64_t> records_held() const {
        const auto bytes = file_ ? file_->length() : std::nullopt;
        if (!bytes) return {};
        return *bytes / record_length;
    }

    /// When the file was written last, in nanoseconds; empty if that can't be told.
    [[nodiscard]] std::optional<std::int64_t> last_write() const {
        return file_ ? file_->last_write() : std::nullopt;
    }

    /// The file behind, for what outlives the channel: a read under way, a lock. Null if closed.
    [[nodiscard]] const std::shared_ptr<file>& shared_file() const { return file_; }

 private:
    /// Reads into bytes that nobody needs if it fails half way.
    bool fill(std::int64_t first, std::span<std::byte> bytes) const {
        if (!file_ || first < 1) return false;
        const auto had = file_->read((first - 1) * record_length, bytes);
        if (!had) return false;
        std::ranges::fill(bytes.subspan(*had), std::byte{0});
        return true;
    }

    std::shared_ptr<file> file_;
    std::string name_;
};

}  // namespace vantora
