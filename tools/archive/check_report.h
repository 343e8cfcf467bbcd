#pragma once

#include <filesystem>
#include <iosfwd>

namespace vantora::archive {

struct check_request {
    bool json = false;
    bool quiet = false;  ///< nothing unless something is found
    bool all = false;    ///< every company of the drive
};

/// Checks a company, or all, and tells what was found: 0 sound, 1 findings, 3 nothing to read.
/// While it takes long, `progress` shows how far it is; null: nobody looks.
int report_check(const std::filesystem::path& root, int numero_azienda,
                 const check_request& request, std::ostream& out, std::ostream* progress);

}  // namespace vantora::archive
