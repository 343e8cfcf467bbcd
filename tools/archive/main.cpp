#include <unistd.h>

#include <ctime>
#include <filesystem>
#include <iostream>

#include "archive/check.h"
#include "archive/commands.h"
#include "archive/repair.h"
#include "archive/words.h"
#include "command_line/command_line.h"
#include "store/day_book.h"
#include "store/drive.h"
#include "store/suite_paths.h"

namespace vantora::archive {

namespace {

constexpr const char* no_company = "Manca la ditta, per esempio ordini007.\n";

}  // namespace

int which_company::number() const {
    return company_number_in(argument);
}

std::unique_ptr<company_files> opened(const which_company& one) {
    if (one.argument.empty()) {
        std::cerr << no_company;
        return {};
    }
    auto company = std::make_unique<company_files>(one.drive, one.number());
    if (company->folder_exists() && company->records().tot.is_open()) return company;
    std::cerr << "Non c'è un archivio leggibile della ditta " << one.number() << " in " << one.drive
              << ".\n";
    return {};
}

date_time now_here() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    return {{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday},
            local.tm_hour,
            local.tm_min,
            local.tm_sec};
}

std::ostream* watched_errors() {
    return ::isatty(STDERR_FILENO) ? &std::cerr : nullptr;
}

bool asked_user() {
    std::cout << "Procedere? (s/n) " << std::flush;
    std::string line;
    if (!std::getline(std::cin, line)) return false;
    return line == "s" || line == "S" || line == "sì" || line == "Sì" || line == "SÌ" ||
           line == "si" || line == "y" || line == "Y" || line == "yes";
}

namespace {

command check_command(CLI::App& program) {
    CLI::App* line = program.add_subcommand("check", "dice se l'archivio è in ordine");
    const auto request = std::make_shared<check_request>();
    line->add_flag("--json", request->json, "per i programmi");
    line->add_flag("--all", request->all, "tutte le aziende del disco");
    line->add_flag("--quiet", request->quiet, "niente, se non si trova niente: per i timer");
    return {line, [request](const which_company& company) {
                if (company.argument.empty() && !request->all) {
                    std::cerr << no_company;
                    return exit_code::wrong_options;
                }
                return report_check(company.drive, company.number(), *request, std::cout,
                                    watched_errors());
            }};
}

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

/// Each command brings a help option of its own.
void group_help(CLI::App& of) {
    of.get_help_ptr()->group("Opzioni");
    for (CLI::App* one : of.get_subcommands([](CLI::App*) { return true; })) group_help(*one);
}

int run(int count, char** arguments) {
    command_line line(
        "vantora-archive",
        "Cura l'archivio di una ditta: lo controlla, lo mostra, lo esporta, lo copia");
    CLI::App& program = line.parser();
    program.require_subcommand(1);
    which_company company;
    line.folder("--drive", company.drive, "cartella che contiene l'albero della suite");
    line.text("DITTA", company.argument, "argomento del menu della suite, per esempio ordini007");
    const command commands[] = {check_command(program),  show_command(program),
                                export_command(program), repair_command(program),
                                backup_command(program), restore_command(program)};
    group_help(program);
    if (const auto code = line.read(count, arguments)) return *code;
    try {
        for (const command& one : commands) {
            if (*one.line) return one.run(company);
        }
    } catch (const std::filesystem::filesystem_error& problem) {
        std::cerr << words_of_path(problem.path1()) << ": non si può leggere o scrivere\n";
        return exit_code::unreadable;
    }
    return exit_code::wrong_options;
}

}  // namespace

}  // namespace vantora::archive

int main(int count, char** arguments) {
    vantora::take_file_limits_as_errors();
    return vantora::archive::run(count, arguments);
}
