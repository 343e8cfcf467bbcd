#pragma once

#include <string>

namespace vantora::ui {

/// Starts another program by a command line, without waiting for it.
class launcher {
 public:
    virtual ~launcher() = default;

    /// `command`: the program's path as the suite writes it, one blank, and the one argument text,
    /// in the code page. False if it can't be started.
    virtual bool start(const std::string& command) = 0;
};

}  // namespace vantora::ui
