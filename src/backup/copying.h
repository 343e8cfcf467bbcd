#pragma once

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "store/file_port.h"

namespace vantora {

/// One file of a copy: its path under the drive ("mirwin/mirwin/miraz0.007/vantora.orc").
struct copied_file {
    std::string path;
    std::int64_t size = 0;
    std::uint64_t mark = 0;  ///< of its bytes

    bool operator==(const copied_file&) const = default;
};

/// Is told how many bytes of how many are on their way; may leave through an exception.
using copy_progress = std::function<void(std::int64_t done, std::int64_t all)>;

struct copy_pace {
    copy_progress tell;
    std::int64_t all = 0;
    std::int64_t done = 0;

    void add(std::size_t bytes) {
        done += static_cast<std::int64_t>(bytes);
        if (tell) tell(std::min(done, all), all);
    }
};

/// A file as a folder lists it.
struct listed_file {
    std::string path;  ///< under the drive, with slashes
    std::int64_t size = 0;
    std::filesystem::file_time_type changed;

    bool operator==(const listed_file&) const = default;
};

/// All plain files of a company and the general tables, in the order of their names. Throws
/// filesystem_error for a folder that can't be read.
std::vector<listed_file> list_company(const std::filesystem::path& root,
                                      const std::filesystem::path& company_folder);

/// The path of a drive for a listed file.
std::string drive_path(const std::string& listed);

/// Copies a file from one drive to another, and flushes it. Empty if that failed.
std::optional<copied_file> copy_over(file_port& from, const std::string& path, file_port& to,
                                     const std::string& target, copy_pace& pace);

/// Reads a file whole for its mark. Empty if that failed.
std::optional<copied_file> read_over(file_port& from, const std::string& path, copy_pace& pace);

/// Copies a file beside itself, as "vantora.art.copia1" or the next free number, and reads the copy
/// back. The copy is whole or not there. Its path; empty if it can't be made, `why` then says why.
std::string copied_beside(file_port& files, const std::string& path, std::string& why);

}  // namespace vantora
