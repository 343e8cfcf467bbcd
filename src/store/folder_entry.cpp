#include "store/folder_entry.h"

#include <dirent.h>

#include <algorithm>
#include <memory>
#include <string_view>

#include "text/code_page.h"

namespace vantora {

namespace {

struct folder_closer {
    void operator()(DIR* folder) const { ::closedir(folder); }
};

/// Whether names differ before the first letter that takes the code page to compare.
bool differ_plainly(std::string_view one, std::string_view other) {
    const auto is_plain = [](char letter) { return static_cast<unsigned char>(letter) < 128; };
    const std::size_t both = std::min(one.size(), other.size());
    for (std::size_t i = 0; i < both; ++i) {
        if (!is_plain(one[i]) || !is_plain(other[i])) return false;
        if (upper(one[i]) != upper(other[i])) return true;
    }
    return one.size() != other.size();
}

}  // namespace

std::filesystem::path entry_named(const std::filesystem::path& folder, const std::string& name) {
    std::error_code failed;
    if (std::filesystem::exists(std::filesystem::symlink_status(folder / name, failed))) {
        return folder / name;
    }
    const std::string wanted = upper(from_utf8(name));
    const std::unique_ptr<DIR, folder_closer> opened(::opendir(folder.c_str()));
    while (const dirent* entry = opened ? ::readdir(opened.get()) : nullptr) {
        const std::string_view there = entry->d_name;
        if (differ_plainly(there, name)) continue;
        if (upper(from_utf8(there)) == wanted) return folder / there;
    }
    return folder / name;
}

}  // namespace vantora
