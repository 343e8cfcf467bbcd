#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <limits>
#include <mutex>
#include <optional>
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
/// test wants it to. Reads may come from several threads, all else from one.
class faulty_files final : public file_port {
 public:
    explicit faulty_files(file_port& real) : real_(real) {}

    std::vector<file_event> events;
    /// The process ends right after so many writes: the next one throws `crash`.
    std::size_t writes_before_crash = std::numeric_limits<std::size_t>::max();
    /// Whether a read of so many bytes at an offset of a file fails; of a whole text, 0 bytes.
    std::function<bool(const std::string& path, std::int64_t offset, std::size_t size)> read_fails;
    /// Whether a write at an offset of a file fails.
    std::function<bool(const std::string& path, std::int64_t offset)> write_fails;
    std::function<bool(const std::string& path)> flush_fails;
    /// Whether a file can't be opened, created or put in its place.
    std::function<bool(const std::string& path)> open_fails;
    /// Whether a file is open for reading only.
    std::function<bool(const std::string& path)> read_only;
    /// Whether the disk has no room for bytes up to `end` of a file.
    std::function<bool(const std::string& path, std::int64_t end)> room_lacks;
    /// The n-th read, write, flush, opening, creation or putting in place from now on fails, from
    /// 0; `for_good`: all behind it too. `failed` tells whether it came to that. One thread only.
    void fail_at(std::size_t n, bool for_good, bool& failed);
    /// What the file system says whenever the lock is asked for, instead of the truth.
    std::optional<lock_answer> lock_answers;
    /// How long the disk takes over each read, of any number at once.
    std::chrono::microseconds read_takes{0};
    std::atomic<std::size_t> reads = 0;
    std::size_t writes = 0;

    std::unique_ptr<file> open_records(std::string_view path) override;
    std::optional<std::string> read_whole(std::string_view path) override;
    bool exists(std::string_view path) override { return real_.exists(path); }
    std::unique_ptr<file> create(std::string_view path) override;
    std::unique_ptr<file> create_instead(std::string_view path) override;
    std::unique_ptr<file> create_aside(std::string_view path) override;
    bool create_folder(std::string_view path) override { return real_.create_folder(path); }
    [[nodiscard]] std::filesystem::path locate(std::string_view path) const override {
        return real_.locate(path);
    }

 private:
    friend class faulty_file;
    std::unique_ptr<file> opened(std::string_view path, std::unique_ptr<file> real);
    bool refuses_open(std::string_view path) { return open_fails && open_fails(std::string(path)); }
    bool refuses_read(const std::string& path, std::int64_t offset, std::size_t size);

    file_port& real_;
    std::mutex counting_;
};

}  // namespace vantora::test
