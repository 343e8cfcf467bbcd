#pragma once

#include <filesystem>

namespace vantora::demo {

/// Puts `mirxpdf`, which turns printed documents into PDF files, into the general folder of the
/// suite, in place of an older one, and beside it its settings, all of them comments, unless there
/// are some. Both come from `programs`, the folder of built or installed programs; what isn't there
/// isn't put.
/// Throws `demo_error` if a file can't be written. REQUIRES: the general folder exists.
void install_companion(const std::filesystem::path& programs, const std::filesystem::path& drive);

}  // namespace vantora::demo
