#include <iostream>

#include "archive/check.h"
#include "archive/commands.h"

namespace vantora::archive {

command check_command(CLI::App& program) {
    CLI::App* line = program.add_subcommand("check", "dice se l'archivio è in ordine");
    const auto request = std::make_shared<check_request>();
    line->add_flag("--json", request->json, "per i programmi");
    line->add_flag("--all", request->all, "tutte le aziende del disco");
    line->add_flag("--quiet", request->quiet, "niente, se non si trova niente: per i timer");
    return {line, [request](const which_company& company) {
                if (company.argument.empty() && !request->all) {
                    std::cerr << "Manca la ditta, per esempio ordini007.\n";
                    return exit_code::wrong_options;
                }
                return report_check(company.drive, company.number(), *request, std::cout,
                                    watched_errors());
            }};
}

}  // namespace vantora::archive
