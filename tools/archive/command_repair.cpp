#include <iostream>

#include "archive/commands.h"
#include "archive/repair.h"

namespace vantora::archive {

command repair_command(CLI::App& program) {
    CLI::App* line = program.add_subcommand("repair", "corregge quello che check ha trovato");
    line->require_subcommand(1);
    const auto yes = std::make_shared<bool>(false);
    CLI::App* quantities = line->add_subcommand(
        "ordered-quantities", "l'ordinato degli articoli, dagli ordini ancora aperti");
    quantities->add_flag("--yes", *yes, "senza chiedere");
    return {line, [yes](const which_company& which) {
                if (!opened(which)) return exit_code::unreadable;
                return repair_ordered_quantities(
                    which.drive, which.number(), [yes] { return *yes || asked_user(); }, std::cout);
            }};
}

}  // namespace vantora::archive
