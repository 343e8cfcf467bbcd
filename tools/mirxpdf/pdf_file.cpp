#include "mirxpdf/pdf_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <system_error>

#include "store/text/code_page.h"

namespace vantora::mirxpdf {

namespace {

/// A file beside another one, gone again unless it takes that one's place.
class file_aside {
 public:
    explicit file_aside(const std::filesystem::path& of)
        : name_(of.string() + ".XXXXXX"), descriptor_(::mkstemp(name_.data())) {}
    ~file_aside() {
        if (descriptor_ < 0) return;
        ::close(descriptor_);
        ::unlink(name_.c_str());
    }
    file_aside(const file_aside&) = delete;
    file_aside& operator=(const file_aside&) = delete;

    [[nodiscard]] bool is_open() const { return descriptor_ >= 0; }

    bool write(const QByteArray& bytes) {
        qsizetype done = 0;
        while (done < bytes.size()) {
            const ssize_t put = ::write(descriptor_, bytes.data() + done,
                                        static_cast<std::size_t>(bytes.size() - done));
            if (put < 0 && errno == EINTR) continue;
            if (put <= 0) return false;
            done += put;
        }
        return ::fsync(descriptor_) == 0;
    }

    bool take_place_of(const std::filesystem::path& other) {
        const mode_t mask = ::umask(0);
        ::umask(mask);
        ::fchmod(descriptor_, 0666 & ~mask);
        const int written = descriptor_;
        descriptor_ = -1;
        if (::close(written) == 0 && ::rename(name_.c_str(), other.c_str()) == 0) return true;
        const int error = errno;
        ::unlink(name_.c_str());
        errno = error;
        return false;
    }

 private:
    std::string name_;
    int descriptor_;
};

QString reason_of(int error) {
    switch (error) {
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return "il disco è pieno";
        case EACCES:
        case EPERM:
        case EROFS:
            return "la cartella non si può scrivere";
        case ENOENT:
        case ENOTDIR:
            return "la cartella manca";
        default:
            return QString::fromStdString(std::generic_category().message(error));
    }
}

}  // namespace

std::optional<QString> save_pdf(const QByteArray& pdf, const std::filesystem::path& path) {
    if (upper(path.extension().string()) != ".PDF") return "il nome non finisce in .pdf";
    struct stat there {};
    if (::lstat(path.c_str(), &there) == 0 && !S_ISREG(there.st_mode)) {
        return "con quel nome non c'è un file normale";
    }
    std::error_code refused;
    std::filesystem::create_directories(path.parent_path(), refused);
    file_aside made(path);
    if (made.is_open() && made.write(pdf) && made.take_place_of(path)) return {};
    return reason_of(errno);
}

}  // namespace vantora::mirxpdf
