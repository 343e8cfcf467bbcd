#pragma once

#include <filesystem>
#include <string>

namespace vantora {

/// The entry of a folder that has the name, in whatever case; the name as it is if there is none.
/// A company's folder may hold tens of thousands of documents: a new name costs one look at each.
std::filesystem::path entry_named(const std::filesystem::path& folder, const std::string& name);

}  // namespace vantora
