#include "desktop/suite_program.h"

namespace vantora::ui::desktop {

suite_program choose_copy(const std::filesystem::path& in_suite,
                          const std::filesystem::path& installed) {
    namespace fs = std::filesystem;
    std::error_code failed;
    if (!fs::is_regular_file(installed, failed)) return {in_suite, {}};
    const auto kind = fs::symlink_status(in_suite, failed).type();
    if (kind == fs::file_type::symlink) return {installed, "quello della suite è un collegamento"};
    if (kind != fs::file_type::regular) return {installed, "nella suite non c'è"};
    const auto kept = fs::last_write_time(in_suite, failed);
    if (failed) return {in_suite, {}};
    const auto newest = fs::last_write_time(installed, failed);
    if (failed || kept >= newest) return {in_suite, {}};
    return {installed, "quello della suite è più vecchio"};
}

}  // namespace vantora::ui::desktop
