#pragma once

#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "store/file_port.h"

namespace vantora::test {

/// Leaves the code under test at the write where the process ends.
struct crash {};

/// One write or flush, as it reached the system.
struct file_event {
    std::string path;
    std::int64_t offset = 0;
    std::size_t size = 0;
    bool flush = false;

    bool operator==(const file_event&) const = default;
};

/// Passes everything on to other files, notes the order of writes and flushes, and fails where a
/// test wants it to.
class faulty_files final : public file_port {
 public:
    explicit faulty_files(file_port& real) : real_(real) {}

    std::vector<file_event> events;
    /// The process ends right after so many writes: the next one throws `crash`.
    std::size_t writes_before_crash = std::numeric_limits<std::size_t>::max();
    /// Whether a read of so many bytes at an offset of a file fails.
    std::function<bool(const std::string& path, std::int64_t offset, std::size_t size)> read_fails;
    /// Whether a write at an offset of a file fails.
    std::function<bool(const std::string& path, std::int64_t offset)> write_fails;
    std::size_t reads = 0;
    std::size_t writes = 0;

    std::unique_ptr<file> open_records(std::string_view path) override;
    std::optional<std::string> read_whole(std::string_view path) override {
        return real_.read_whole(path);
    }
    std::unique_ptr<file> create(std::string_view path) override;
    bool create_folder(std::string_view path) override { return real_.create_folder(path); }

 private:
    file_port& real_;
};

}  // namespace vantora::test
