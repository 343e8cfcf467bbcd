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

 private:
    std::function<std::string(std::string_view)> locate_;
};

}  // namespace vantora::ui::desktop
