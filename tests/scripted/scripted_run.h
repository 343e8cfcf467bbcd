#pragma once

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace vantora::test {

/// Runs the whole program over the company 1 of a drive folder by a script, with the clock at
/// 2024-05-06 10:20:30; one reply a command.
std::vector<nlohmann::json> run_script(const std::filesystem::path& drive,
                                       const std::vector<std::string>& commands);

}  // namespace vantora::test
