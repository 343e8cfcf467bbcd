#pragma once

#include <cstring>
#include <vector>

#include "demo/demo_company.h"
#include "support/file_bytes.h"
#include "support/scratch_folder.h"

namespace vantora::test {

/// All records of a file, read without the program's own channels.
template <class Record>
std::vector<Record> records_of(const std::filesystem::path& path) {
    const std::string bytes = bytes_of(path);
    std::vector<Record> all(bytes.size() / sizeof(Record));
    if (!all.empty()) std::memcpy(all.data(), bytes.data(), all.size() * sizeof(Record));
    return all;
}

/// A demonstration company on a drive of its own.
class demo_folder {
 public:
    explicit demo_folder(const demo::demo_request& request) {
        demo::make_company(request, drive());
    }
    /// The same files again: quicker than making them.
    demo_folder(const demo_folder& other) {
        std::filesystem::copy(other.drive(), drive(), std::filesystem::copy_options::recursive);
    }

    [[nodiscard]] const std::filesystem::path& drive() const { return scratch_.path(); }
    [[nodiscard]] std::filesystem::path file(const std::string& extension) const {
        return drive() / ("mirwin/mirwin/miraz0.007/vantora." + extension);
    }

 private:
    scratch_folder scratch_;
};

inline constexpr demo::demo_request small_company{
    .numero_azienda = 7, .orders = 120, .articles = 150, .customers = 90, .seed = 5};

}  // namespace vantora::test
