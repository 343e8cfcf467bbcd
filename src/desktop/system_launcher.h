#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "ui/launcher.h"

namespace vantora::ui::desktop {

/// A program that the suite starts from its general folder, and which of its copies is started.
struct suite_program {
    std::filesystem::path file;
    std::string why_not_suite;  ///< UTF-8; why the copy in the suite isn't; empty if it is
};

/// Starts programs of the suite, without a shell.
class system_launcher final : public launcher {
 public:
    /// `locate`: where a path of the suite lies in this system.
    explicit system_launcher(std::function<std::string(std::string_view)> locate)
        : locate_(std::move(locate)) {}
    /// Programs installed in `folder` may take the place of the suite's, which know their drive by
    /// where they lie.
    void prefer_installed(std::filesystem::path folder, std::string drive);

    /// What a program of the suite, by its path there, is started as.
    [[nodiscard]] suite_program copy_of(std::string_view path) const;

    bool start(const std::string& command) override;
    started_program run(const std::string& command) override;
    void open(const std::string& path) override;

 private:
    struct program;
    [[nodiscard]] program program_of(const std::string& command) const;

    std::function<std::string(std::string_view)> locate_;
    std::filesystem::path installed_in_;  ///< empty: the suite's are started
    std::string drive_;
};

}  // namespace vantora::ui::desktop
