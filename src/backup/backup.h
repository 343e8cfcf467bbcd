#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "backup/copying.h"
#include "text/dates.h"

namespace vantora {

/// The list that a whole copy brings along: "elenco.txt" beside its files. A copy without it, or
/// with files that aren't as it says, is none.
inline constexpr const char* copy_list = "elenco.txt";

/// What came of a copy or of putting one back.
struct copy_outcome {
    std::string fault;  ///< in words, in the code page; empty: done
    std::filesystem::path place;
    std::vector<copied_file> files;

    [[nodiscard]] std::int64_t bytes() const;
};

/// "ditta007": what the names of a company's copies begin with.
std::string stem_of_copies(int numero_azienda);
/// "-2024-12-20-193000": what they end with.
std::string end_of_copy(const date_time& made);

/// Copies a company and the general tables into a new folder `name` of the drive `to`, which opens
/// like a suite's own. Other stations wait while it reads, not while it checks what it wrote. The
/// folder appears under its name when all of it is on the disk and was read back; otherwise nothing
/// is left. `locks`: the drive of `from`, which may be written there so that it can be locked.
copy_outcome make_copy(file_port& from, file_port& locks, int numero_azienda, file_port& to,
                       const std::string& name, const copy_progress& tell = {});

/// The files of a copy, each read and compared with the list; a fault if one isn't as it was.
copy_outcome checked_copy(const std::filesystem::path& copy, file_port& files,
                          const copy_progress& tell = {});

/// Puts a company's folder back as the copy has it, in one step; `place` is then where the former
/// one stands, or empty if there was none. General tables are put back only where they are missing:
/// other companies use them too. REQUIRES: the copy was checked.
copy_outcome put_back(const copy_outcome& copy, file_port& from, int numero_azienda, file_port& to,
                      const std::string& former, const copy_progress& tell = {});

/// Of the copies of a company in a folder, the older ones go, so that `keep` stay, and with them
/// what unfinished ones left more than a day ago; returns how many copies went. REQUIRES: keep is
/// at least 1, and the newest one is good.
int drop_old_copies(const std::filesystem::path& folder, const std::string& stem, int keep);

/// When the newest copy of a company in a folder was made; empty for none.
std::optional<date_time> newest_copy(const std::filesystem::path& folder, const std::string& stem);

}  // namespace vantora
