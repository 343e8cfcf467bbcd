#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "archive/backup.h"

namespace vantora::archive {

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
                                     const std::string& target);

/// Reads a file whole for its mark. Empty if that failed.
std::optional<copied_file> read_over(file_port& from, const std::string& path);

}  // namespace vantora::archive
