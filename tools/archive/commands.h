#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <memory>

#include "archive/company_files.h"
#include "archive/exit_code.h"
#include "text/dates.h"

namespace vantora::archive {

// The commands of the program; those of some weight have a file each, `command_NAME.cpp`.

/// Which company the command line names.
struct which_company {
    std::string drive = "/";  ///< folder that holds the suite's tree
    std::string argument;     ///< of the menu program; empty if none was given

    [[nodiscard]] int number() const;
};

/// A command: its place in the command line, and what it does once that was read.
struct command {
    CLI::App* line = nullptr;
    std::function<int(const which_company&)> run;
};

command show_command(CLI::App& program);
command export_command(CLI::App& program);
command backup_command(CLI::App& program);
command restore_command(CLI::App& program);

/// The company's files, open for reading; says why and returns nothing where there are none.
std::unique_ptr<company_files> opened(const which_company& one);

date_time now_here();

/// Where somebody sees how far a command is; null if the errors go into a file.
std::ostream* watched_errors();

/// Asks on the terminal whether to go on.
bool asked_user();

}  // namespace vantora::archive
