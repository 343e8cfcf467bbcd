#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "ui/launcher.h"

namespace vantora::ui::desktop {

/// Starts programs of the suite, without a shell.
class system_launcher final : public launcher {
 public:
    /// `locate`: where a path of the suite lies in this system.
    explicit system_launcher(std::function<std::string(std::string_view)> locate)
        : locate_(std::move(locate)) {}

    bool start(const std::string& command) override;
    started_program run(const std::string& command) override;
    void open(const std::string& path) override;

 private:
    struct program;
    [[nodiscard]] program program_of(const std::string& command) const;

    std::function<std::string(std::string_view)> locate_;
};

}  // namespace vantora::ui::desktop
