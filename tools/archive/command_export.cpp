#include <chrono>
#include <iostream>

#include "archive/commands.h"
#include "archive/csv_text.h"
#include "archive/export_csv.h"
#include "archive/export_sqlite.h"
#include "archive/progress_line.h"
#include "text/number_text.h"

namespace vantora::archive {

namespace {

namespace fs = std::filesystem;

struct export_request {
    std::string target;
    std::string names = "italian";
    bool plain = false;
    bool partial = false;
};

enum class form { folder, database, unknown };

/// By its ending; a folder that is there, or that ends with a slash, is one whatever its name.
form form_of(const std::string& target) {
    std::error_code failed;
    if (target.ends_with('/') || fs::is_directory(target, failed)) return form::folder;
    const std::string ending = upper(fs::path(target).extension().string());
    if (ending.empty()) return form::folder;
    for (const char* known : {".SQLITE", ".SQLITE3", ".DB", ".DB3"}) {
        if (ending == known) return form::database;
    }
    return form::unknown;
}

/// "3.412", "0,31"
std::string italian(double number, bool with_decimals) {
    return masked(number, with_decimals ? "###,###,##0.#0" : "###,###,###,##0");
}

int tell(const export_outcome& outcome, const fs::path& target,
         std::chrono::steady_clock::duration took) {
    std::cout << italian(static_cast<double>(outcome.tables), false) << " tabelle, "
              << italian(static_cast<double>(outcome.rows), false) << " righe in "
              << target.string() << ", "
              << italian(std::chrono::duration<double>(took).count(), true) << " secondi\n";
    if (outcome.lost_references > 0) {
        std::cout << outcome.lost_references
                  << " riferimenti a clienti o articoli che non ci sono: stanno in una tabella a "
                     "parte\n";
    }
    if (outcome.missing.empty()) return exit_code::done;
    std::cout << "INCOMPLETA, manca:\n" << in_lines(outcome.missing);
    return exit_code::done;
}

int refuse(const gaps& missing) {
    std::cerr << "L'archivio non si può leggere per intero, non è stato scritto nulla:\n"
              << in_lines(missing) << "Con --partial si esporta quello che c'è.\n";
    return exit_code::unreadable;
}

int run_export(company_files& company, const export_request& request, table_sink& sink) {
    const auto begun = std::chrono::steady_clock::now();
    gaps missing = gaps_of(company);
    if (!missing.empty() && !request.partial) return refuse(missing);
    std::optional<progress_line> line(watched_errors());
    const export_outcome outcome =
        export_tables(company, sink, request.names == "english", std::move(missing),
                      [&line](const std::string& table, std::int64_t rows) {
                          line->show("Esportazione: " + table + ", " +
                                         italian(static_cast<double>(rows), false) + " righe",
                                     0, 0);
                      });
    line.reset();
    if (!outcome.missing.empty() && !request.partial) return refuse(outcome.missing);
    if (sink.finish())
        return tell(outcome, request.target, std::chrono::steady_clock::now() - begun);
    std::cerr << request.target << " non si può scrivere; è rimasto quello che c'era.\n";
    return exit_code::unreadable;
}

int run_export(company_files& company, const export_request& request) {
    fs::path target = request.target;
    if (!target.has_filename()) target = target.parent_path();
    const form what = form_of(request.target);
    if (what == form::unknown) {
        std::cerr << "Come si scrive " << request.target
                  << "? Indicare una cartella (con / alla fine) o un file .sqlite o .db.\n";
        return exit_code::wrong_options;
    }
    const std::string obstacle =
        what == form::folder ? csv_folder::obstacle(target) : sqlite_file::obstacle(target);
    if (!obstacle.empty()) {
        std::cerr << target.string() << ": " << obstacle << ". Non è stato scritto nulla.\n";
        return exit_code::unreadable;
    }
    std::unique_ptr<table_sink> sink;
    if (what == form::database) {
        sink = std::make_unique<sqlite_file>(target);
    } else {
        sink = std::make_unique<csv_folder>(target, request.plain);
    }
    return run_export(company, request, *sink);
}

}  // namespace

command export_command(CLI::App& program) {
    CLI::App* line = program.add_subcommand("export", "scrive tutte le tabelle");
    const auto request = std::make_shared<export_request>();
    line->add_option("DESTINAZIONE", request->target,
                     "una cartella per i file CSV, o un file .sqlite o .db")
        ->required();
    line->add_flag("--plain", request->plain, "CSV per i programmi, non per il foglio di calcolo");
    line->add_option("--names", request->names, "nomi delle colonne: italian o english")
        ->check(CLI::IsMember({"italian", "english"}).description(""))
        ->type_name("LINGUA");
    line->add_flag("--partial", request->partial, "anche se manca qualcosa, che viene indicato");
    return {line, [request](const which_company& which) {
                const auto company = opened(which);
                return company ? run_export(*company, *request) : exit_code::unreadable;
            }};
}

}  // namespace vantora::archive
