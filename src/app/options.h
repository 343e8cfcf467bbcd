#pragma once

#include <optional>
#include <string>

#include "store/day_book.h"
#include "text/dates.h"
#include "ui/desk.h"

namespace vantora {

/// The command line that both programs take.
struct program_options {
    const char* program;
    const char* purpose;
    bool takes_script = false;
    std::string drive = "/";              ///< folder that holds the suite's tree
    std::optional<date_time> clock = {};  ///< where the clock stands still
    /// Folder of what belongs to the person and not to the archive; empty: the system's own place.
    std::string data = {};
    std::string argument = {};  ///< of the suite's menu program, in the code page
    /// File of commands for a desktop run, "-" for standard input; only where `takes_script`.
    std::string script = {};

    /// Empty if the program is to run, else its exit code: 0 after help, 2 for wrong options.
    std::optional<int> read(int count, char** arguments);
};

/// The book of what was done, in the named folder of the person or in the system's place for it.
/// None where it was switched off, and in a run by script without a named folder.
std::optional<day_book> book_for(const program_options& options, bool by_script);

/// 0 after the program's own end, 3 after a fatal run-time error.
int exit_code(const ui::desk& desk);

}  // namespace vantora
