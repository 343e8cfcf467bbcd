#pragma once

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

namespace vantora::test {

inline std::string bytes_of(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

/// Writes a file, with the folders that it needs.
inline void put(const std::filesystem::path& path, std::string_view content) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
}

/// Every file and folder below a folder, with what it holds.
inline std::map<std::string, std::string> files_under(const std::filesystem::path& root) {
    std::map<std::string, std::string> all;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        const std::string name = std::filesystem::relative(entry.path(), root).string();
        all[name] = entry.is_regular_file() ? bytes_of(entry.path()) : "(folder)";
    }
    return all;
}

}  // namespace vantora::test
