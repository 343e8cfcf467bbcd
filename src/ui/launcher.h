#pragma once

#include <string>

namespace vantora::ui {

/// What came of a program that was started to be waited for.
struct started_program {
    enum class how {
        not_started,
        unwatched,  ///< it runs, and nobody will know how it ends
        late,       ///< it still runs, longer than anybody waits
        well,
        failed
    };
    how is = how::not_started;
    std::string told;  ///< what it had to say, in the code page
};

/// Starts another program by a command line.
class launcher {
 public:
    virtual ~launcher() = default;

    /// Doesn't wait for it. `command`: the program's path as the suite writes it, one blank, and
    /// the one argument text, in the code page. False if it can't be started.
    virtual bool start(const std::string& command) = 0;

    /// The same for a program that shows nothing of its own; a window waits for its end.
    virtual started_program run(const std::string& command) {
        using enum started_program::how;
        return {start(command) ? unwatched : not_started, {}};
    }

    /// Shows a file, by its path in the suite, in the program that the user has for it.
    virtual void open(const std::string& /*path*/) {}
};

}  // namespace vantora::ui
