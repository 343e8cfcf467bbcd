#include "store/drive.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

#include "store/folder_entry.h"
#include "store/station.h"
#include "text/code_page.h"

namespace vantora {

namespace {

/// Text files of the suite are small; of a larger file its head will do.
constexpr std::size_t largest_text_file = 64U << 20U;

/// The byte that stands for the lock, so far behind the largest record file that no program comes
/// near it, and still within what every system can count.
constexpr off_t lock_byte = off_t{1} << 62;

struct flock lock_of(short type) {
    struct flock lock {};
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    lock.l_start = lock_byte;
    lock.l_len = 1;
    return lock;
}

/// Who had the lock last stands beside the file's content, where no other program meets it.
constexpr const char* holder_attribute = "user.vantora.station";

/// Calls until the call isn't interrupted.
template <class Call>
auto uninterrupted(const Call& call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

/// Device and number of a plain file; empty if there is none.
using file_identity = std::optional<std::pair<dev_t, ino_t>>;

file_identity identity_in(const struct stat& state) {
    if (!S_ISREG(state.st_mode)) return {};
    return std::pair(state.st_dev, state.st_ino);
}
file_identity identity_of(int descriptor) {
    struct stat state {};
    return ::fstat(descriptor, &state) == 0 ? identity_in(state) : std::nullopt;
}
file_identity identity_of(const std::filesystem::path& path) {
    struct stat state {};
    return ::stat(path.c_str(), &state) == 0 ? identity_in(state) : std::nullopt;
}

/// Waits for no pipe; but for a file that a file server takes back from another machine first.
int open_at_once(const std::filesystem::path& path, int flags) {
    const auto open = [&](int how) {
        return uninterrupted([&] { return ::open(path.c_str(), flags | O_CLOEXEC | how, 0666); });
    };
    const int descriptor = open(O_NONBLOCK);
    if (descriptor >= 0 || errno != EWOULDBLOCK) return descriptor;
    struct stat state {};
    return ::stat(path.c_str(), &state) == 0 && S_ISREG(state.st_mode) ? open(0) : -1;
}

class system_file : public file {
 public:
    /// `is_new`: the folder doesn't know it for good yet.
    system_file(int descriptor, std::filesystem::path path, bool is_new)
        : descriptor_(descriptor), path_(std::move(path)), is_new_(is_new) {}
    system_file(const system_file&) = delete;
    system_file& operator=(const system_file&) = delete;
    ~system_file() override {
        const int error = errno;
        ::close(descriptor_);
        errno = error;
    }

    std::optional<std::size_t> read(std::int64_t offset, std::span<std::byte> into) override {
        std::size_t done = 0;
        while (done < into.size()) {
            const ssize_t got = uninterrupted([&] {
                return ::pread(descriptor_, into.data() + done, into.size() - done,
                               offset + static_cast<std::int64_t>(done));
            });
            if (got < 0) return {};
            if (got == 0) break;
            done += static_cast<std::size_t>(got);
        }
        return done;
    }

    void will_read(std::int64_t offset, std::int64_t size) override {
        ::posix_fadvise(descriptor_, offset, size, POSIX_FADV_WILLNEED);
    }

    bool write(std::int64_t offset, std::span<const std::byte> bytes) override {
        std::size_t done = 0;
        while (done < bytes.size()) {
            const ssize_t put = uninterrupted([&] {
                return ::pwrite(descriptor_, bytes.data() + done, bytes.size() - done,
                                offset + static_cast<std::int64_t>(done));
            });
            if (put <= 0) return false;
            done += static_cast<std::size_t>(put);
        }
        return true;
    }

    bool flush() override {
        if (uninterrupted([&] { return ::fdatasync(descriptor_); }) != 0) return false;
        // A new file is lost with its name: the folder goes to the disk too, once.
        if (is_new_ && flush_folder(path_.parent_path())) is_new_ = false;
        return true;
    }

    [[nodiscard]] std::optional<std::int64_t> length() const override {
        struct stat state {};
        if (::fstat(descriptor_, &state) != 0) return {};
        return state.st_size;
    }

    [[nodiscard]] std::optional<std::int64_t> last_write() const override {
        struct stat state {};
        if (::fstat(descriptor_, &state) != 0) return {};
        return std::int64_t{state.st_mtim.tv_sec} * 1'000'000'000 + state.st_mtim.tv_nsec;
    }

    [[nodiscard]] bool writable() const override {
        const int flags = ::fcntl(descriptor_, F_GETFL);
        return flags >= 0 && (flags & O_ACCMODE) != O_RDONLY;
    }

    bool reserve(std::int64_t offset, std::int64_t size) override {
        struct rlimit limit {};
        if (::getrlimit(RLIMIT_FSIZE, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY &&
            static_cast<rlim_t>(offset + size) > limit.rlim_cur) {
            return false;
        }
        if (size <= 0) return true;
        const int done = uninterrupted(
            [&] { return ::fallocate(descriptor_, FALLOC_FL_KEEP_SIZE, offset, size); });
        return done == 0 || (errno != ENOSPC && errno != EDQUOT && errno != EFBIG &&
                             errno != EROFS && errno != EBADF);
    }

    file_place follow() override {
        const auto path = entry_named(path_.parent_path(), path_.filename().string());
        const auto here = identity_of(descriptor_);
        const auto there = identity_of(path);
        if (!there) return file_place::removed;
        if (here == there) return file_place::same;
        int mode = ::fcntl(descriptor_, F_GETFL) & O_ACCMODE;
        auto other = open_again(path, mode);
        if (!other && mode == O_RDWR) other = open_again(path, O_RDONLY);
        if (!other) return file_place::removed;
        // Where a file has another number whenever it is asked for, numbers tell nothing.
        if (identity_of(other->descriptor_) != there) return file_place::same;
        if (::dup3(other->descriptor_, descriptor_, O_CLOEXEC) < 0) return file_place::removed;
        return file_place::replaced;
    }

    lock_answer try_lock() override {
        struct flock lock = lock_of(F_WRLCK);
        if (uninterrupted([&] { return ::fcntl(descriptor_, F_OFD_SETLK, &lock); }) == 0) {
            leave_name();
            return lock_answer::held;
        }
        if (errno == EAGAIN || errno == EACCES) return lock_answer::busy;
        // A file that may only be read is refused before the file system is asked.
        if (errno == EBADF) uninterrupted([&] { return ::fcntl(descriptor_, F_OFD_GETLK, &lock); });
        const bool knows_none =
            errno == ENOLCK || errno == ENOSYS || errno == EOPNOTSUPP || errno == EINVAL;
        return knows_none ? lock_answer::unknown : lock_answer::refused;
    }

    void unlock() override {
        struct flock lock = lock_of(F_UNLCK);
        uninterrupted([&] { return ::fcntl(descriptor_, F_OFD_SETLK, &lock); });
    }

    void keep_exact(bool on) override {
        const int error = errno;
        struct flock lock = lock_of(!on ? F_UNLCK : writable() ? F_WRLCK : F_RDLCK);
        uninterrupted([&] { return ::fcntl(descriptor_, F_OFD_SETLK, &lock); });
        errno = error;
    }

    [[nodiscard]] std::optional<std::string> locked_by() const override {
        struct flock lock = lock_of(F_WRLCK);
        if (uninterrupted([&] { return ::fcntl(descriptor_, F_OFD_GETLK, &lock); }) != 0 ||
            lock.l_type == F_UNLCK) {
            return {};
        }
        return holder();
    }

 private:
    static std::unique_ptr<system_file> open_again(const std::filesystem::path& path, int mode) {
        const int descriptor = open_at_once(path, mode);
        if (descriptor < 0) return nullptr;
        return std::make_unique<system_file>(descriptor, path, false);
    }

    /// Who had the lock last.
    [[nodiscard]] std::string holder() const {
        char name[512];
        const ssize_t size = ::fgetxattr(descriptor_, holder_attribute, name, sizeof name);
        return {name, static_cast<std::size_t>(std::max<ssize_t>(size, 0))};
    }
    void leave_name() {
        static const std::string own = this_station();
        if (holder() != own) {
            ::fsetxattr(descriptor_, holder_attribute, own.data(), own.size(), 0);
        }
    }

    int descriptor_;
    std::filesystem::path path_;
    bool is_new_;
};

/// A file beside another one, gone again unless it takes that one's place.
class file_aside final : public system_file {
 public:
    file_aside(int descriptor, std::filesystem::path name, std::filesystem::path place)
        : system_file(descriptor, name, false), name_(std::move(name)), place_(std::move(place)) {}
    ~file_aside() override {
        const int error = errno;
        if (!in_place_) ::unlink(name_.c_str());
        errno = error;
    }

    bool put_in_place() override {
        const int error = errno;
        in_place_ = ::rename(name_.c_str(), place_.c_str()) == 0;
        // The name goes to the disk too; where folders can't be flushed, it goes in its own time.
        if (in_place_) {
            flush_folder(place_.parent_path());
            errno = error;
        }
        return in_place_;
    }

 private:
    std::filesystem::path name_;
    std::filesystem::path place_;
    bool in_place_ = false;
};

/// Opens a plain file; never a folder, and never something that would block, such as a pipe.
std::unique_ptr<file> open_plain(const std::filesystem::path& path, int flags) {
    const bool is_new = (flags & O_CREAT) != 0 && ::access(path.c_str(), F_OK) != 0;
    const int descriptor = open_at_once(path, flags);
    if (descriptor < 0) return nullptr;
    auto opened = std::make_unique<system_file>(descriptor, path, is_new);
    struct stat state {};
    if (::fstat(descriptor, &state) != 0 || !S_ISREG(state.st_mode)) {
        errno = EINVAL;
        return nullptr;
    }
    return opened;
}

void give_rights(const std::filesystem::path& to, mode_t rights) {
    const int descriptor = ::open(to.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) return;
    ::fchmod(descriptor, rights);
    ::close(descriptor);
}

}  // namespace

void take_file_limits_as_errors() {
    std::signal(SIGXFSZ, SIG_IGN);
}

bool flush_folder(const std::filesystem::path& folder) {
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return false;
    const bool done = uninterrupted([&] { return ::fsync(descriptor); }) == 0;
    ::close(descriptor);
    return done;
}

drive::drive(std::filesystem::path root, access to) : root_(std::move(root)), access_(to) {}

std::filesystem::path drive::locate(std::string_view path) const {
    if (path.size() >= 2 && path[1] == ':') path.remove_prefix(2);
    std::filesystem::path located = root_;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find_first_of("\\/"), path.size());
        const std::string_view name = path.substr(0, end);
        path.remove_prefix(std::min(end + 1, path.size()));
        if (name.empty() || name == "." || name == "..") continue;
        if (name.find('\0') != std::string_view::npos) continue;
        located = entry_named(located, to_utf8(name));
    }
    return located;
}

std::unique_ptr<file> drive::open_records(std::string_view path) {
    const auto located = locate(path);
    if (access_ == access::reading_only) return open_plain(located, O_RDONLY);
    auto opened = open_plain(located, O_RDWR | O_CREAT);
    if (!opened && (errno == EACCES || errno == EPERM || errno == EROFS)) {
        opened = open_plain(located, O_RDONLY);
    }
    return opened;
}

std::optional<std::string> drive::read_whole(std::string_view path) {
    const auto opened = open_plain(locate(path), O_RDONLY);
    if (!opened) return {};
    std::string content;
    std::array<std::byte, 16384> part;
    while (true) {
        const auto got = opened->read(static_cast<std::int64_t>(content.size()), part);
        if (!got) return {};
        content.append(reinterpret_cast<const char*>(part.data()), *got);
        if (*got < part.size() || content.size() >= largest_text_file) return content;
    }
}

std::optional<std::string> drive::read_head(std::string_view path, std::size_t bytes) {
    const auto opened = open_plain(locate(path), O_RDONLY);
    std::string head(bytes, '\0');
    const auto got = opened ? opened->read(0, std::as_writable_bytes(std::span(head)))
                            : std::optional<std::size_t>();
    if (!got) return {};
    head.resize(*got);
    return head;
}

bool drive::exists(std::string_view path) {
    std::error_code failed;
    return std::filesystem::exists(locate(path), failed) || failed;
}

std::unique_ptr<file> drive::create(std::string_view path) {
    if (access_ == access::reading_only) return nullptr;
    return open_plain(locate(path), O_RDWR | O_CREAT | O_TRUNC);
}

std::unique_ptr<file> drive::create_instead(std::string_view path) {
    if (access_ == access::reading_only) return nullptr;
    const auto located = locate(path);
    // A link leads away, perhaps to a file of somebody's: its place is taken, it is never followed.
    struct stat state {};
    const bool there = ::lstat(located.c_str(), &state) == 0;
    if (there && (S_ISREG(state.st_mode) || S_ISLNK(state.st_mode)) &&
        ::unlink(located.c_str()) == 0) {
        auto made = open_plain(located, O_RDWR | O_CREAT | O_EXCL);
        // Who could read and write the old one can the new one.
        if (made && S_ISREG(state.st_mode)) give_rights(located, state.st_mode & 0777);
        return made;
    }
    return open_plain(located, O_RDWR | O_CREAT | O_TRUNC | O_NOFOLLOW);
}

std::unique_ptr<file> drive::create_aside(std::string_view path) {
    if (access_ == access::reading_only) return nullptr;
    const auto located = locate(path);
    struct stat there {};
    if (::lstat(located.c_str(), &there) == 0 && !S_ISREG(there.st_mode)) {
        errno = EINVAL;
        return nullptr;
    }
    // A run that was ended may have left its own behind.
    for (int attempt = 0; attempt < 100; ++attempt) {
        const std::filesystem::path name =
            located.string() + "." + std::to_string(::getpid()) + "-" + std::to_string(attempt);
        const int descriptor = uninterrupted(
            [&] { return ::open(name.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666); });
        if (descriptor >= 0) return std::make_unique<file_aside>(descriptor, name, located);
        if (errno != EEXIST) break;
    }
    return nullptr;
}

bool drive::create_folder(std::string_view path) {
    const auto located = locate(path);
    std::error_code failed;
    if (access_ != access::reading_only) std::filesystem::create_directory(located, failed);
    return std::filesystem::is_directory(located, failed);
}

}  // namespace vantora
