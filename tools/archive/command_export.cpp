#include <iostream>

#include "archive/commands.h"
#include "archive/export_csv.h"
#include "archive/export_sqlite.h"

namespace vantora::archive {

namespace {

struct export_request {
    std::filesystem::path target;
    bool plain = false;
};

int run_export(company_files& company, const export_request& request) {
    bool written = false;
    if (request.target.extension() == ".sqlite") {
        sqlite_file database(request.target);
        export_tables(company, database);
        written = database.finish();
    } else {
        csv_folder folder(request.target, request.plain);
        export_tables(company, folder);
        written = folder.good();
    }
    if (written) return exit_code::done;
    std::cerr << request.target.string() << " can't be written.\n";
    return exit_code::unreadable;
}

}  // namespace

command export_command(CLI::App& program) {
    CLI::App* line = program.add_subcommand("export", "scrive tutte le tabelle");
    const auto request = std::make_shared<export_request>();
    line->add_option("DESTINAZIONE", request->target,
                     "una cartella per i file CSV, o un FILE.sqlite")
        ->required();
    line->add_flag("--plain", request->plain, "CSV per i programmi, non per il foglio di calcolo");
    return {line, [request](const which_company& which) {
                const auto company = opened(which);
                return company ? run_export(*company, *request) : exit_code::unreadable;
            }};
}

}  // namespace vantora::archive
