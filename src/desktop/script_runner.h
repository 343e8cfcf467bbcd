#pragma once

#include <iosfwd>

#include "desktop/desktop_front_end.h"
#include "ui/script/interpreter.h"

namespace vantora::ui::desktop {

/// Serves the desktop by a stream of command lines in the user's place: one a time whenever the
/// program waits, each answered by one reply.
class script_runner {
 public:
    script_runner(desktop_front_end& front, script::interpreter& by, std::istream& commands,
                  std::ostream& replies);

    /// Writes the reply that is due and carries out the next command. False after `quit` and at
    /// the end of the commands.
    bool step();
    /// Writes the reply that is due.
    void write_reply();

 private:
    bool shoot(const std::filesystem::path& file);

    desktop_front_end& front_;
    script::interpreter& interpreter_;
    std::istream& commands_;
    std::ostream& replies_;
};

}  // namespace vantora::ui::desktop
