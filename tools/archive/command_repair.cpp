#include <iostream>

#include "archive/commands.h"
#include "archive/repair.h"
#include "store/day_book.h"

namespace vantora::archive {

command repair_command(CLI::App& program) {
    CLI::App* line = program.add_subcommand("repair", "corregge quello che check ha trovato");
    line->require_subcommand(1);
    const auto yes = std::make_shared<bool>(false);
    for (const named_repair& one : repairs) {
        line->add_subcommand(one.name, one.words)->add_flag("--yes", *yes, "senza chiedere");
    }
    return {line, [line, yes](const which_company& which) {
                if (!opened(which)) return exit_code::unreadable;
                drive files(which.drive);
                const auto confirmed = [yes](bool certain) {
                    return (*yes && certain) || asked_user();
                };
                for (const named_repair& one : repairs) {
                    if (!line->got_subcommand(one.name)) continue;
                    const auto book = [&which](archivi& changed) {
                        const auto of_person = book_of_person();
                        if (of_person) of_person->watch(changed, which.number(), now_here);
                    };
                    return carry_out(one, {files, which.number(), confirmed, std::cout, book});
                }
                return exit_code::wrong_options;
            }};
}

}  // namespace vantora::archive
