#include "store/drive.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <utility>

#include "store/text/code_page.h"

namespace vantora {

namespace {

/// Text files of the suite are small; of a larger file its head will do.
constexpr std::size_t largest_text_file = 64U << 20U;

class system_file final : public file {
 public:
    explicit system_file(int descriptor) : descriptor_(descriptor) {}
    system_file(const system_file&) = delete;
    system_file& operator=(const system_file&) = delete;
    ~system_file() override { ::close(descriptor_); }

    std::optional<std::size_t> read(std::int64_t offset, std::span<std::byte> into) override {
        std::size_t done = 0;
        while (done < into.size()) {
            const ssize_t got = ::pread(descriptor_, into.data() + done, into.size() - done,
                                        offset + static_cast<std::int64_t>(done));
            if (got < 0 && errno == EINTR) continue;
            if (got < 0) return {};
            if (got == 0) break;
            done += static_cast<std::size_t>(got);
        }
        return done;
    }

    bool write(std::int64_t offset, std::span<const std::byte> bytes) override {
        std::size_t done = 0;
        while (done < bytes.size()) {
            const ssize_t put = ::pwrite(descriptor_, bytes.data() + done, bytes.size() - done,
                                         offset + static_cast<std::int64_t>(done));
            if (put < 0 && errno == EINTR) continue;
            if (put <= 0) return false;
            done += static_cast<std::size_t>(put);
        }
        return true;
    }

    bool flush() override { return ::fdatasync(descriptor_) == 0; }

 private:
    int descriptor_;
};

/// Opens a plain file; never a folder, and never something that would block, such as a pipe.
std::unique_ptr<file> open_plain(const std::filesystem::path& path, int flags) {
    const int descriptor = ::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK, 0666);
    if (descriptor < 0) return nullptr;
    auto opened = std::make_unique<system_file>(descriptor);
    struct stat state {};
    if (::fstat(descriptor, &state) != 0 || !S_ISREG(state.st_mode)) return nullptr;
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

}  // namespace

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

std::unique_ptr<file> drive::create(std::string_view path) {
    if (access_ == access::reading_only) return nullptr;
    return open_plain(locate(path), O_RDWR | O_CREAT | O_TRUNC);
}

bool drive::create_folder(std::string_view path) {
    const auto located = locate(path);
    std::error_code failed;
    if (access_ != access::reading_only) std::filesystem::create_directory(located, failed);
    return std::filesystem::is_directory(located, failed);
}

}  // namespace vantora
