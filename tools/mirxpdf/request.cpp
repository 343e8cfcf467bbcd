#include "mirxpdf/request.h"

#include <unistd.h>

#include <cstdlib>
#include <vector>

#include "text/code_page.h"

namespace vantora::mirxpdf {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view none = "***";

std::vector<std::string> values_of(std::string_view argument) {
    std::vector<std::string> values;
    while (true) {
        const std::size_t comma = argument.find(',');
        values.emplace_back(trimmed(argument.substr(0, comma)));
        if (comma == std::string_view::npos) return values;
        argument.remove_prefix(comma + 1);
    }
}

bool names_a_file(const std::string& path) {
    const std::size_t name = path.find_last_of("\\/:");
    return !path.empty() && (name == std::string::npos || name + 1 < path.size());
}

/// Where the shell found a program that was started by its bare name.
std::optional<fs::path> found_on_path(const std::string& name) {
    const char* variable = std::getenv("PATH");
    std::string_view folders = variable ? variable : "";
    while (!folders.empty()) {
        const std::size_t end = std::min(folders.find(':'), folders.size());
        const fs::path candidate = fs::path(folders.substr(0, end)) / name;
        if (::access(candidate.c_str(), X_OK) == 0) return candidate;
        folders.remove_prefix(std::min(end + 1, folders.size()));
    }
    return {};
}

bool is_suite_folder(const fs::path& path) {
    return upper(path.filename().string()) == "MIRWIN";
}

}  // namespace

std::optional<pdf_request> read_request(std::string_view argument) {
    auto values = values_of(argument);
    values.resize(std::max<std::size_t>(values.size(), 4));
    pdf_request request{values[1], values[2], values[3]};
    if (request.addressee == none) request.addressee.clear();
    // A customer's field may hold several addresses, with the comma that also parts the values.
    for (std::size_t i = 4; i < values.size() && !request.addressee.empty(); ++i) {
        if (values[i].find('@') != std::string::npos) request.addressee += ";" + values[i];
    }
    if (!names_a_file(request.print_file) || !names_a_file(request.pdf)) return {};
    return request;
}

fs::path program_file(const std::string& started_as) {
    std::error_code failed;
    fs::path file = started_as;
    if (started_as.find('/') == std::string::npos) {
        const auto found = found_on_path(started_as);
        file = found ? *found : fs::read_symlink("/proc/self/exe", failed);
    }
    return fs::absolute(file, failed).lexically_normal();
}

std::optional<fs::path> drive_around(const fs::path& program) {
    const fs::path general = program.parent_path();
    if (!is_suite_folder(general) || !is_suite_folder(general.parent_path())) return {};
    return general.parent_path().parent_path();
}

}  // namespace vantora::mirxpdf
