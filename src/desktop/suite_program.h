#pragma once

#include <filesystem>
#include <string>

namespace vantora::ui::desktop {

/// A program that the suite starts from its general folder, and which of its copies is started.
struct suite_program {
    std::filesystem::path file;
    std::string why_not_suite;  ///< UTF-8; why the copy in the suite isn't; empty if it is
};

/// A copy in a folder that many may write grows old and can be replaced: the installed program is
/// started where the suite's is missing, a link or older. Without an installed one it is the
/// suite's.
suite_program choose_copy(const std::filesystem::path& in_suite,
                          const std::filesystem::path& installed);

}  // namespace vantora::ui::desktop
