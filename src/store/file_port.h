#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vantora {

/// One open file, read and written at byte offsets. Other programs hold the same file open, so
/// nothing is kept back: every call reaches the system.
class file {
 public:
    virtual ~file() = default;

    /// Fills `into` from `offset` on. Returns the number of bytes that the file had there (fewer
    /// only at its end), empty if the system refused.
    virtual std::optional<std::size_t> read(std::int64_t offset, std::span<std::byte> into) = 0;

    /// Writes all bytes at `offset`; a gap behind the old end fills with zero bytes. False if the
    /// system refused.
    virtual bool write(std::int64_t offset, std::span<const std::byte> bytes) = 0;

    /// Waits until everything written has reached the disk.
    virtual bool flush() = 0;
};

/// The system's files, by the paths of the suite ("\mirwin\mirwin\vantora.eur", "c:\mirdoc.rto"),
/// in the code page. Tests put faults in here.
class file_port {
 public:
    virtual ~file_port() = default;

    /// Opens a record file for reading and writing, shared with other programs, and creates it
    /// empty if it doesn't exist. A file that may only be read is opened for reading: its writes
    /// then fail. Null if it can't be opened at all.
    virtual std::unique_ptr<file> open_records(std::string_view path) = 0;

    /// The whole content of a text file, or the head of one that is far too large to be a text of
    /// the suite; empty if it doesn't exist or can't be read.
    virtual std::optional<std::string> read_whole(std::string_view path) = 0;

    /// Creates a file anew, empty, for writing. Null if that isn't possible.
    virtual std::unique_ptr<file> create(std::string_view path) = 0;

    /// Makes one folder. True if it stands afterwards.
    virtual bool create_folder(std::string_view path) = 0;
};

}  // namespace vantora
