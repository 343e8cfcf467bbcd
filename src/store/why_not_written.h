#pragma once

#include <filesystem>
#include <string>

namespace vantora {

/// Why a file in a folder couldn't be written, in words of the shop, in the code page. `error`:
/// what the system left in `errno`.
std::string why_not_written(int error, const std::filesystem::path& folder);

}  // namespace vantora
