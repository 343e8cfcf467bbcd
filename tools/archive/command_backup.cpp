#include <chrono>
#include <iostream>
#include <set>

#include "archive/commands.h"
#include "archive/progress_line.h"
#include "archive/words.h"
#include "backup/backup.h"
#include "store/day_book.h"
#include "store/suite_paths.h"
#include "text/number_text.h"

namespace vantora::archive {

namespace {

namespace fs = std::filesystem;

std::string moment() {
    return end_of_copy(now_here());
}

copy_progress shown_by(progress_line& line, const char* what) {
    return [&line, what](std::int64_t done, std::int64_t all) { line.show(what, done, all); };
}

int tell_failed(const char* what, const copy_outcome& outcome) {
    std::cerr << what << without_controls(outcome.fault) << ".\n";
    return exit_code::unreadable;
}

std::string megabytes(std::int64_t bytes) {
    return masked(static_cast<double>(bytes) / 1e6, "###,###,##0.#0") + " MB";
}

struct backup_request {
    std::string folder;
    int keep = 0;
    bool quiet = false;
};

int run_backup(const which_company& which, const backup_request& request) {
    const auto begun = std::chrono::steady_clock::now();
    drive from(which.drive, drive::access::reading_only);
    drive locks(which.drive);
    std::error_code failed;
    fs::create_directories(request.folder, failed);
    drive to(request.folder);
    const std::string stem = stem_of_copies(which.number());
    copy_outcome outcome;
    {
        progress_line line(request.quiet ? nullptr : watched_errors());
        outcome =
            make_copy(from, locks, which.number(), to, stem + moment(), shown_by(line, "Copia"));
    }
    if (!outcome.fault.empty()) return tell_failed("Nessuna copia: ", outcome);
    const int dropped = request.keep > 0 ? drop_old_copies(request.folder, stem, request.keep) : 0;
    if (request.quiet) return exit_code::done;
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begun;
    std::cout << outcome.files.size() << " file, " << megabytes(outcome.bytes()) << " in "
              << words_of_path(outcome.place) << ", riletti e uguali, "
              << masked(took.count(), "###,##0.#0") << " secondi\n";
    if (dropped > 0) std::cout << "Copie più vecchie tolte: " << dropped << "\n";
    return exit_code::done;
}

/// What putting a copy back changes; false if nothing does.
bool tell_differences(const copy_outcome& copy, file_port& now, int numero_azienda,
                      std::ostream& out) {
    constexpr int told_max = 20;
    int differing = 0;
    const auto tell = [&](const std::string& path, const char* what) {
        if (++differing <= told_max) out << "  " << words_of_path(path) << ": " << what << '\n';
    };
    copy_pace unseen;
    std::set<std::string> copied;
    for (const copied_file& one : copy.files) {
        copied.insert(upper(one.path));
        const auto found =
            now.exists(drive_path(one.path)) ? read_over(now, one.path, unseen) : std::nullopt;
        if (!found) {
            tell(one.path, "oggi manca");
        } else if (found->size != one.size) {
            tell(one.path, found->size > one.size ? "oggi è più lungo" : "oggi è più corto");
        } else if (found->mark != one.mark) {
            tell(one.path, "diverso");
        }
    }
    const fs::path folder = now.locate(folder_of_company(numero_azienda));
    if (fs::is_directory(folder)) {
        for (const listed_file& one : list_company(now.locate("\\"), folder)) {
            if (!copied.contains(upper(one.path))) tell(one.path, "nella copia non c'è");
        }
    }
    if (differing > told_max) out << "  ... e altri " << differing - told_max << " file\n";
    return differing > 0;
}

constexpr const char* unchanged = "Non è stato cambiato nulla: ";

struct restore_request {
    std::string copy;
    bool yes = false;
};

int run_restore(const which_company& which, const restore_request& request) {
    drive from(request.copy, drive::access::reading_only);
    copy_outcome copy;
    {
        progress_line line(watched_errors());
        copy = checked_copy(request.copy, from, shown_by(line, "Si rilegge la copia"));
    }
    if (!copy.fault.empty()) return tell_failed(unchanged, copy);
    drive now(which.drive, drive::access::reading_only);
    std::cout << "La copia è intera. Rispetto all'archivio di oggi:\n";
    if (!tell_differences(copy, now, which.number(), std::cout)) {
        std::cout << "  nessuna differenza: non è stato cambiato nulla.\n";
        return exit_code::done;
    }
    std::cout << "La cartella della ditta prende il posto di quella di oggi, che resta accanto. Le "
                 "tabelle generali si rimettono solo se mancano.\n";
    if (!request.yes && !asked_user()) {
        std::cout << "Non è stato cambiato nulla.\n";
        return exit_code::refused;
    }
    drive to(which.drive);
    archivi noted;
    if (const auto book = book_of_person()) book->watch(noted, which.number(), now_here);
    const std::string former = "prima-" + stem_of_copies(which.number()) + moment();
    copy_outcome outcome;
    {
        progress_line line(watched_errors());
        outcome = put_back(copy, from, which.number(), to, former, shown_by(line, "Si rimette"));
    }
    if (noted.book) {
        noted.book("ripristino", from_utf8(fs::absolute(request.copy).string()),
                   outcome.fault.empty() ? "fatto" : "non fatto, " + outcome.fault);
    }
    if (!outcome.fault.empty()) return tell_failed(unchanged, outcome);
    std::cout << "La ditta è quella della copia.\n";
    if (!outcome.place.empty())
        std::cout << "Quella di prima è " << words_of_path(outcome.place) << "\n";
    return exit_code::done;
}

}  // namespace

command backup_command(CLI::App& program) {
    CLI::App* line = program.add_subcommand("backup", "copia la ditta, anche mentre si lavora");
    const auto request = std::make_shared<backup_request>();
    line->add_option("CARTELLA", request->folder, "dove stanno le copie")
        ->required()
        ->type_name("");
    line->add_option("--keep", request->keep,
                     "quante copie della ditta tenere; le altre si tolgono")
        ->check(CLI::Range(1, 100000).description(""))
        ->type_name("N");
    line->add_flag("--quiet", request->quiet, "dice qualcosa solo se non riesce");
    return {line, [request](const which_company& which) {
                return opened(which) ? run_backup(which, *request) : exit_code::unreadable;
            }};
}

command restore_command(CLI::App& program) {
    CLI::App* line = program.add_subcommand("restore", "rimette una copia al posto della ditta");
    const auto request = std::make_shared<restore_request>();
    line->add_option("COPIA", request->copy, "una cartella fatta da backup")
        ->required()
        ->type_name("");
    line->add_flag("--yes", request->yes, "senza chiedere");
    return {line, [request](const which_company& which) {
                if (!which.argument.empty()) return run_restore(which, *request);
                opened(which);
                return exit_code::wrong_options;
            }};
}

}  // namespace vantora::archive
