#include "store/drive.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

#include "text/code_page.h"

namespace vantora {

namespace {

/// Text files of the suite are small; of a larger file its head will do.
constexpr std::size_t largest_text_file = 64U << 20U;

/// Bytes that stand for the locks, so far behind the largest record file that no program comes
/// near them, and still within what every system can count.
constexpr off_t first_lock_byte = off_t{1} << 62;

struct flock lock_of(program_lock which, short type) {
    struct flock lock {};
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    lock.l_start = first_lock_byte + static_cast<off_t>(which);
    lock.l_len = 1;
    return lock;
}

/// Calls until the call isn't interrupted.
template <class Call>
auto uninterrupted(const Call& call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

class system_file : public file {
 public:
    /// `new_in`: the folder that the file is a new entry of; empty for a file that was there.
    explicit system_file(int descriptor, std::filesystem::path new_in = {})
        : descriptor_(descriptor), new_in_(std::move(new_in)) {}
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
        if (!new_in_.empty() && flush_folder(new_in_)) new_in_.clear();
        return true;
    }

    [[nodiscard]] std::optional<std::int64_t> length() const override {
        struct stat state {};
        if (::fstat(descriptor_, &state) != 0) return {};
        return state.st_size;
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

    lock_answer try_lock(program_lock which) override {
        struct flock lock = lock_of(which, F_WRLCK);
        if (uninterrupted([&] { return ::fcntl(descriptor_, F_OFD_SETLK, &lock); }) == 0) {
            return lock_answer::held;
        }
        return errno == EAGAIN || errno == EACCES ? lock_answer::busy : lock_answer::unknown;
    }

    void unlock(program_lock which) override {
        struct flock lock = lock_of(which, F_UNLCK);
        uninterrupted([&] { return ::fcntl(descriptor_, F_OFD_SETLK, &lock); });
    }

    [[nodiscard]] bool locked_elsewhere(program_lock which) const override {
        struct flock lock = lock_of(which, F_WRLCK);
        return uninterrupted([&] { return ::fcntl(descriptor_, F_OFD_GETLK, &lock); }) == 0 &&
               lock.l_type != F_UNLCK;
    }

 private:
    static bool flush_folder(const std::filesystem::path& folder) {
        const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (descriptor < 0) return false;
        const bool done = uninterrupted([&] { return ::fsync(descriptor); }) == 0;
        ::close(descriptor);
        return done;
    }

    int descriptor_;
    std::filesystem::path new_in_;
};

/// A file beside another one, gone again unless it takes that one's place.
class file_aside final : public system_file {
 public:
    file_aside(int descriptor, std::filesystem::path name, std::filesystem::path place)
        : system_file(descriptor), name_(std::move(name)), place_(std::move(place)) {}
    ~file_aside() override {
        const int error = errno;
        if (!in_place_) ::unlink(name_.c_str());
        errno = error;
    }

    bool put_in_place() override {
        in_place_ = ::rename(name_.c_str(), place_.c_str()) == 0;
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
    const int descriptor =
        uninterrupted([&] { return ::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK, 0666); });
    if (descriptor < 0) return nullptr;
    auto opened = std::make_unique<system_file>(
        descriptor, is_new ? path.parent_path() : std::filesystem::path());
    struct stat state {};
    if (::fstat(descriptor, &state) != 0 || !S_ISREG(state.st_mode)) {
        errno = EINVAL;
        return nullptr;
    }
    return opened;
}

/// The entry of a folder that has the name, in whatever case; the name as it is if there is none.
std::filesystem::path entry_named(const std::filesystem::path& folder, const std::string& name) {
    std::error_code failed;
    if (std::filesystem::exists(std::filesystem::symlink_status(folder / name, failed))) {
        return folder / name;
    }
    const std::string wanted = upper(from_utf8(name));
    for (std::filesystem::directory_iterator entry(folder, failed), end; !failed && entry != end;
         entry.increment(failed)) {
        if (upper(from_utf8(entry->path().filename().string())) == wanted) return entry->path();
    }
    return folder / name;
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
