#pragma once

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "demo/company.h"
#include "support/scratch_folder.h"

namespace vantora::test {

inline std::string bytes_of(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    std::string bytes(file ? static_cast<std::size_t>(file.tellg()) : 0, '\0');
    file.seekg(0).read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return bytes;
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

/// All records of a file, read without the program's own channels.
template <class Record>
std::vector<Record> records_of(const std::filesystem::path& path) {
    const std::string bytes = bytes_of(path);
    std::vector<Record> all(bytes.size() / sizeof(Record));
    if (!all.empty()) std::memcpy(all.data(), bytes.data(), all.size() * sizeof(Record));
    return all;
}

/// Lines of a text file; each must end in CR LF, or the line "(no line end)" comes last.
inline std::vector<std::string> lines_of(const std::filesystem::path& path) {
    std::string bytes = bytes_of(path);
    std::vector<std::string> all;
    std::size_t begin = 0;
    for (std::size_t end; (end = bytes.find("\r\n", begin)) != std::string::npos; begin = end + 2) {
        all.push_back(bytes.substr(begin, end - begin));
    }
    if (begin < bytes.size()) all.emplace_back("(no line end)");
    return all;
}

/// A demonstration company on a drive of its own.
class demo_folder {
 public:
    explicit demo_folder(const demo::demo_request& request) {
        demo::make_company(request, drive());
        company_ = drive() / "mirwin/mirwin/miraz0.007";
    }

    [[nodiscard]] const std::filesystem::path& drive() const { return scratch_.path(); }
    [[nodiscard]] std::filesystem::path general(const std::string& extension) const {
        return drive() / ("mirwin/mirwin/vantora." + extension);
    }
    [[nodiscard]] std::filesystem::path file(const std::string& extension) const {
        return company_ / ("vantora." + extension);
    }
    [[nodiscard]] const std::filesystem::path& company() const { return company_; }

 private:
    scratch_folder scratch_;
    std::filesystem::path company_;
};

inline constexpr demo::demo_request small_company{
    .numero_azienda = 7, .orders = 120, .articles = 150, .customers = 90, .seed = 5};

}  // namespace vantora::test
