#include "backup/staging.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "store/drive.h"

namespace vantora {

namespace fs = std::filesystem;

namespace {

fs::path folder_of(const fs::path& place) {
    return place.has_parent_path() ? place.parent_path() : fs::path(".");
}

bool exchanged(const fs::path& one, const fs::path& other) {
    return ::renameat2(AT_FDCWD, one.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE) == 0;
}

bool rename_to(const fs::path& from, const fs::path& to) {
    std::error_code failed;
    fs::rename(from, to, failed);
    return !failed;
}

void give_rights(const struct stat& like, const fs::path& to) {
    // First the group: it takes the bit away that new files get it by.
    [[maybe_unused]] const int refused = ::chown(to.c_str(), static_cast<uid_t>(-1), like.st_gid);
    ::chmod(to.c_str(), like.st_mode & 07777);
}

}  // namespace

staging::staging(const fs::path& target) {
    std::string name = target.string() + ".XXXXXX";
    if (::mkdtemp(name.data())) folder_ = name;
}

staging::~staging() {
    std::error_code ignored;
    if (!folder_.empty()) fs::remove_all(folder_, ignored);
}

bool swap_in(const fs::path& made, const fs::path& place, const fs::path& former) {
    std::error_code ignored;
    if (!fs::exists(fs::symlink_status(place, ignored))) {
        if (!rename_to(made, place)) return false;
    } else if (exchanged(made, place)) {
        if (!rename_to(made, former)) {
            exchanged(made, place);
            return false;
        }
    } else {
        if (!rename_to(place, former)) return false;
        if (!rename_to(made, place)) {
            rename_to(former, place);
            return false;
        }
    }
    flush_folder(folder_of(place));
    return true;
}

void take_rights(const fs::path& like, const fs::path& made) {
    struct stat folder {};
    if (::stat(like.c_str(), &folder) != 0) return;
    give_rights(folder, made);
    std::error_code failed;
    for (const auto& one : fs::recursive_directory_iterator(made, failed)) {
        struct stat namesake {};
        if (::stat((like / one.path().lexically_relative(made)).c_str(), &namesake) != 0) {
            namesake = folder;
            if (!one.is_directory(failed)) namesake.st_mode &= 0666;
        }
        give_rights(namesake, one.path());
    }
}

void close_as(const fs::path& like, const fs::path& folder) {
    struct stat open_to {};
    if (::stat(like.c_str(), &open_to) != 0) return;
    const auto closed =
        fs::perms::all & ~(fs::perms(open_to.st_mode & 0777) | fs::perms::owner_all);
    std::error_code refused;
    fs::permissions(folder, closed, fs::perm_options::remove, refused);
}

}  // namespace vantora
