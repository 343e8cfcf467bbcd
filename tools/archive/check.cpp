#include "archive/check.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <ostream>

#include "archive/exit_code.h"
#include "archive/lock_trial.h"
#include "archive/progress_line.h"
#include "archive/words.h"
#include "store/suite_paths.h"

namespace vantora::archive {

namespace {

namespace fs = std::filesystem;

/// When the files last changed that a station at work writes.
std::vector<fs::file_time_type> times_of(const company_files& company) {
    std::vector<fs::file_time_type> times;
    for (const char* extension : {"tot", "orc", "art", "mag", "bol"}) {
        std::error_code failed;
        times.push_back(fs::last_write_time(company.path_of(extension), failed));
    }
    return times;
}

/// What stands half way between two writes of a station at work is no fault: if something is found
/// and something was written meanwhile, it is looked at once more.
findings check_at_rest(const fs::path& root, int number, std::ostream* shown) {
    constexpr int attempts_max = 3;
    std::optional<std::string> holder;
    const auto at_work = [&](const char* does) {
        return finding{gravity::note, "at-work", "ditta " + std::to_string(number),
                       "una postazione" + in_brackets(holder.value_or("")) + does,
                       "Ripetere il controllo quando nessuno lavora."};
    };
    for (int attempt = 1;; ++attempt) {
        company_files company(root, number);
        if (auto who = company.lock_holder()) holder = std::move(who);
        const auto before = times_of(company);
        progress_line line(shown);
        findings all = check_archive(company, [&line](const std::string& file, int done, int of) {
            line.show("Controllo: " + file, done, of);
        });
        const bool rests = all.empty() || times_of(company) == before;
        if (!rests && attempt < attempts_max) continue;
        if (!rests) {
            all.push_back(at_work(" ha scritto nell'archivio mentre si controllava"));
        } else if (holder) {
            all.push_back(at_work(" tiene l'archivio: sta scrivendo"));
        }
        return all;
    }
}

std::vector<int> companies_of(const fs::path& root) {
    constexpr std::string_view prefix = "MIRAZ0.";
    std::vector<int> numbers;
    const drive files(root, drive::access::reading_only);
    for (const std::string& entry : names_in(files.locate(cartella_generale))) {
        const std::string name = upper(from_utf8(entry));
        const std::string digits = name.substr(std::min(prefix.size(), name.size()));
        if (!name.starts_with(prefix) || digits.size() != 3 ||
            digits.find_first_not_of("0123456789") != std::string::npos) {
            continue;
        }
        numbers.push_back(std::stoi(digits));
    }
    std::ranges::sort(numbers);
    const auto doubled = std::ranges::unique(numbers);
    numbers.erase(doubled.begin(), doubled.end());
    return numbers;
}

void show_company(int number, const findings& all, const check_request& request,
                  std::ostream& out) {
    if (request.quiet && all.sound()) return;
    if (request.all) out << "Ditta " << number << '\n';
    out << all.in_lines();
    if (all.sound()) out << "L'archivio è in ordine.\n";
}

}  // namespace

findings check_archive(company_files& company, const progress& tell) {
    survey found = survey_company(company, tell);
    findings& all = found.all;
    tell_unread(company.records().cli, found.known.unread_customers(), all);
    tell_unread(company.records().art, found.known.unread_articles(), all);
    check_tables(company, all);
    check_layouts(company, all);
    check_indexes(found, all);
    check_masters(found, all);
    if (tell) tell("vantora.prv", 0, 0);
    check_quotes(company, found, all);
    check_stock(found, all);
    if (tell) tell("vantora.mag", 0, 0);
    check_movements(company, found, all);
    check_documents(company, found, all);
    return all;
}

int report_check(const fs::path& root, int numero_azienda, const check_request& request,
                 std::ostream& out, std::ostream* progress) {
    std::vector<int> numbers = request.all ? companies_of(root) : std::vector{numero_azienda};
    auto list = nlohmann::ordered_json::array();
    int result = numbers.empty() ? exit_code::unreadable : exit_code::done;
    std::string of_locks;
    drive writable(root);
    for (const int number : numbers) {
        if (!company_files(root, number).folder_exists()) {
            result = exit_code::unreadable;
            continue;
        }
        findings all = check_at_rest(root, number, request.quiet ? nullptr : progress);
        if (const finding locks = try_locks(writable, number); locks.kind == locks_work) {
            of_locks = locks.what + "\n";
        } else {
            all.push_back(locks);
        }
        if (!all.sound()) result = std::max(result, exit_code::has_findings);
        if (!request.json) {
            show_company(number, all, request, out);
        } else if (request.all) {
            list.push_back({{"company", number}, {"findings", all.as_json()}});
        } else {
            list = all.as_json();
        }
    }
    if (request.json && !(request.quiet && result == exit_code::done)) {
        out << list.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
    }
    if (!request.json && !request.quiet) out << of_locks;
    if (result == exit_code::unreadable) {
        out << (request.all ? "Qui non c'è nessuna ditta.\n"
                            : "Qui non c'è l'archivio della ditta " +
                                  std::to_string(numero_azienda) + ".\n");
    }
    return result;
}

}  // namespace vantora::archive
