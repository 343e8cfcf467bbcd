#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "store/file_port.h"

namespace vantora::archive {

/// One file of a copy: its path under the drive ("mirwin/mirwin/miraz0.007/vantora.orc").
struct copied_file {
    std::string path;
    std::int64_t size = 0;
    std::uint64_t mark = 0;  ///< of its bytes

    bool operator==(const copied_file&) const = default;
};

/// The list that a whole copy brings along: "elenco.txt" beside its files. A copy without it, or
/// with files that aren't as it says, is none.
inline constexpr const char* copy_list = "elenco.txt";

/// What came of a copy or of putting one back.
struct copy_outcome {
    std::string fault;  ///< in words; empty: done
    std::filesystem::path place;
    std::vector<copied_file> files;

    [[nodiscard]] std::int64_t bytes() const;
};

/// Copies a company and the general tables into a new folder `name` of the drive `to`, which opens
/// like a suite's own. Other stations wait while it reads, not while it checks what it wrote. The
/// folder appears under its name when all of it is on the disk and was read back; otherwise nothing
/// is left. `locks`: the drive of `from`, which may be written there so that it can be locked.
copy_outcome make_copy(file_port& from, file_port& locks, int numero_azienda, file_port& to,
                       const std::string& name);

/// The files of a copy, each read and compared with the list; a fault if one isn't as it was.
copy_outcome checked_copy(const std::filesystem::path& copy, file_port& files);

/// Puts a company's folder back as the copy has it, in one step; `place` is then where the former
/// one stands, or empty if there was none. General tables are put back only where they are missing:
/// other companies use them too. REQUIRES: the copy was checked.
copy_outcome put_back(const copy_outcome& copy, file_port& from, int numero_azienda, file_port& to,
                      const std::string& former);

/// Of the copies of a company in a folder, the older ones go, so that `keep` stay, and with them
/// what unfinished ones left more than a day ago; returns how many copies went. REQUIRES: keep is
/// at least 1, and the newest one is good.
int drop_old_copies(const std::filesystem::path& folder, const std::string& stem, int keep);

/// When the newest copy of a company in a folder was made, as its name says; empty for none.
std::string newest_copy(const std::filesystem::path& folder, const std::string& stem);

}  // namespace vantora::archive
