#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vantora {

/// What came of asking for the lock that keeps the instances of this program, at work on one
/// company from several stations, out of each other's changes. The other programs of the suite know
/// nothing of it and are never stopped by it.
enum class lock_answer {
    held,     ///< this file has it now, until it is unlocked or closed
    busy,     ///< another instance has it
    refused,  ///< there are such locks, but not for this user or not now
    unknown,  ///< the file system knows no such locks
};

/// Whether an open file is still the one under its path.
enum class file_place {
    same,
    replaced,  ///< another one took its place: from now on it is that one that is open
    removed,   ///< none is there, or none that can be opened
};

/// One open file, read and written at byte offsets. Other programs hold the same file open, so
/// nothing is kept back: every call reaches the system. What a file system may lack is answered
/// here as one that lacks it would.
class file {
 public:
    virtual ~file() = default;

    /// Fills `into` from `offset` on. Returns the number of bytes that the file had there (fewer
    /// only at its end), empty if the system refused; `into` may then be filled in part. Several
    /// threads may read at once.
    virtual std::optional<std::size_t> read(std::int64_t offset, std::span<std::byte> into) = 0;

    /// These bytes will be read soon: the disk may begin with them. Doesn't wait for it.
    virtual void will_read(std::int64_t /*offset*/, std::int64_t /*size*/) {}

    /// Writes all bytes at `offset`; a gap behind the old end fills with zero bytes. False if the
    /// system refused.
    virtual bool write(std::int64_t offset, std::span<const std::byte> bytes) = 0;

    /// Waits until everything written has reached the disk.
    virtual bool flush() = 0;

    /// The length in bytes; empty if the system doesn't tell.
    [[nodiscard]] virtual std::optional<std::int64_t> length() const { return {}; }

    /// When it was written last, in nanoseconds; empty if the system doesn't tell.
    [[nodiscard]] virtual std::optional<std::int64_t> last_write() const { return {}; }

    /// Whether it was opened for writing.
    [[nodiscard]] virtual bool writable() const { return true; }

    /// Sets room on the disk aside for `size` bytes from `offset` on, without changing the length
    /// or what readers see: writes there don't meet a full disk. False if there isn't enough room;
    /// true where the file system sets nothing aside.
    virtual bool reserve(std::int64_t /*offset*/, std::int64_t /*size*/) { return true; }

    /// Of a file made by `create_aside`: now it stands under its path, in one step. False if the
    /// system refused.
    virtual bool put_in_place() { return false; }

    /// Looks whether the path still leads to this file, and goes along if it leads to another one;
    /// a lock that was held is lost then. Reads under way end on the old one.
    virtual file_place follow() { return file_place::same; }

    /// Asks once for the lock, without waiting. It covers no byte that a record could lie on.
    /// Asking again for it through this very file is granted, and one `unlock` gives it up.
    virtual lock_answer try_lock() { return lock_answer::unknown; }
    virtual void unlock() {}

    /// While it is on, what other machines wrote before is read, and only bytes that are written
    /// here go to the disk: a network share sees to that for a file that is locked itself. Only for
    /// who has the lock of the counters; nobody is kept out by it.
    virtual void keep_exact(bool /*on*/) {}

    /// Who has the lock, if it is another instance: user and host, "anna su cassa2", in the code
    /// page; an empty text where the system doesn't tell.
    [[nodiscard]] virtual std::optional<std::string> locked_by() const { return {}; }
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

    /// Its first `bytes` bytes, or all of it if it is shorter.
    virtual std::optional<std::string> read_head(std::string_view path, std::size_t bytes) {
        auto all = read_whole(path);
        if (all && all->size() > bytes) all->resize(bytes);
        return all;
    }

    /// Whether something stands under the name, be it readable or not.
    virtual bool exists(std::string_view path) = 0;

    /// Creates a file anew, empty, for writing. Null if that isn't possible.
    virtual std::unique_ptr<file> create(std::string_view path) = 0;

    /// Puts a new, empty file in the place of what is there: who has the old one open keeps it as
    /// it is. Where the folder doesn't allow that, the old one is emptied. Null if neither is
    /// possible.
    virtual std::unique_ptr<file> create_instead(std::string_view path) { return create(path); }

    /// A new, empty file, which takes the place of what stands under the path when it is put there.
    /// Until then that stays as it is; let go before, the new one is gone. Null if that isn't
    /// possible, or if something other than a plain file stands there (`errno` is then EINVAL).
    virtual std::unique_ptr<file> create_aside(std::string_view /*path*/) { return nullptr; }

    /// Makes one folder. True if it stands afterwards.
    virtual bool create_folder(std::string_view path) = 0;

    /// Where a path lies in this system, to be shown to the user.
    [[nodiscard]] virtual std::filesystem::path locate(std::string_view path) const = 0;
};

/// Gives a file its whole content in one step, when all of it is on the disk. False if the system
/// refused, `errno` says why: then what stood there before still does.
inline bool put_whole(file_port& files, std::string_view path, std::span<const std::byte> bytes) {
    const auto aside = files.create_aside(path);
    return aside && aside->write(0, bytes) && aside->flush() && aside->put_in_place();
}

}  // namespace vantora
