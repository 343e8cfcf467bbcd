#include "backup/copying.h"

#include <algorithm>
#include <array>

#include "text/code_page.h"

namespace vantora {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t at_once = 1 << 20;

void add_files(const fs::path& root, const fs::path& folder, bool tables_only,
               std::vector<listed_file>& into) {
    const auto add = [&](const fs::directory_entry& one) {
        if (!one.is_regular_file()) return;
        const std::string name = upper(one.path().filename().string());
        if (tables_only && !name.starts_with("VANTORA.")) return;
        into.push_back({one.path().lexically_relative(root).generic_string(),
                        static_cast<std::int64_t>(one.file_size()), one.last_write_time()});
    };
    if (tables_only) {
        for (const auto& one : fs::directory_iterator(folder)) add(one);
    } else {
        for (const auto& one : fs::recursive_directory_iterator(folder)) add(one);
    }
}

/// Reads a file whole, for its mark, and writes and flushes it `to` another one unless that is
/// null. Empty if something refused.
std::optional<copied_file> passed(file& from, file* to, const std::string& path, copy_pace& pace) {
    copied_file all{path, 0, 0xCBF29CE484222325};
    const auto length =
        static_cast<std::size_t>(std::max<std::int64_t>(from.length().value_or(0), 0));
    std::vector<std::byte> stretch(std::min(at_once, length + 1));
    bool more = true;
    while (more) {
        const auto got = from.read(all.size, stretch);
        if (!got) return {};
        const auto bytes = std::span(stretch).first(*got);
        for (const std::byte one : bytes) {
            all.mark = (all.mark ^ std::to_integer<std::uint64_t>(one)) * 0x100000001B3;
        }
        pace.add(*got);
        if (to && !bytes.empty() && !to->write(all.size, bytes)) return {};
        all.size += static_cast<std::int64_t>(*got);
        more = *got == stretch.size();
    }
    if (to && !to->flush()) return {};
    return all;
}

}  // namespace

std::vector<listed_file> list_company(const fs::path& root, const fs::path& company_folder) {
    std::vector<listed_file> all;
    add_files(root, company_folder, false, all);
    add_files(root, company_folder.parent_path(), true, all);
    std::ranges::sort(all, {}, &listed_file::path);
    return all;
}

std::string drive_path(const std::string& listed) {
    std::string path = "\\" + from_utf8(listed);
    std::ranges::replace(path, '/', '\\');
    return path;
}

std::optional<copied_file> copy_over(file_port& from, const std::string& path, file_port& to,
                                     const std::string& target, copy_pace& pace) {
    const auto source = from.open_records(drive_path(path));
    const auto made = to.create(drive_path(target));
    if (!source || !made) return {};
    return passed(*source, made.get(), path, pace);
}

std::optional<copied_file> read_over(file_port& from, const std::string& path, copy_pace& pace) {
    const auto source = from.open_records(drive_path(path));
    if (!source) return {};
    return passed(*source, nullptr, path, pace);
}

std::string copied_beside(file_port& files, const std::string& path, std::string& why) {
    constexpr int copies_most = 9999;
    std::string copy;
    for (int number = 1; copy.empty() || (files.exists(copy) && number <= copies_most); ++number) {
        copy = path + ".copia" + std::to_string(number);
    }
    const auto from = files.open_records(path);
    const auto length = from ? from->length() : std::nullopt;
    const auto aside = files.create_aside(copy);
    if (!length) why = "il file non si può leggere"_cp;
    if (length && !aside) why = "nella cartella non si può scrivere"_cp;
    if (!length || !aside) return {};
    if (!aside->reserve(0, *length)) {
        why = "sul disco non c'è posto"_cp;
        return {};
    }
    copy_pace unseen;
    const auto made = passed(*from, aside.get(), path, unseen);
    if (!made || made != passed(*aside, nullptr, path, unseen) || !aside->put_in_place()) {
        why = "il disco ha rifiutato una lettura o una scrittura";
        return {};
    }
    return copy;
}

}  // namespace vantora
