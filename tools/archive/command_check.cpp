#include <iostream>

#include "archive/check.h"
#include "archive/commands.h"

namespace vantora::archive {

namespace {

int run_check(company_files& company, bool json) {
    const findings all = check_archive(company);
    if (json) {
        auto list = nlohmann::ordered_json::array();
        for (const finding& one : all) list.push_back(as_json(one));
        std::cout << list.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
    } else {
        for (const finding& one : all) std::cout << in_one_line(one) << '\n';
        if (all.empty()) std::cout << "The archive is sound.\n";
    }
    return is_sound(all) ? exit_code::done : exit_code::has_findings;
}

}  // namespace

command check_command(CLI::App& program) {
    CLI::App* line = program.add_subcommand("check", "dice se l'archivio è a posto");
    const auto json = std::make_shared<bool>(false);
    line->add_flag("--json", *json, "per i programmi");
    return {line, [json](const which_company& which) {
                const auto company = opened(which);
                return company ? run_check(*company, *json) : exit_code::unreadable;
            }};
}

}  // namespace vantora::archive
