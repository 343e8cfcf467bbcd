#include "backup/staging.h"

#include <fcntl.h>
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

}  // namespace vantora
