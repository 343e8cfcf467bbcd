#include <map>

#include "archive/repair.h"
#include "archive/survey.h"
#include "store/suite_paths.h"

namespace vantora::archive {

namespace {

namespace fs = std::filesystem;

/// Without the counter of the orders nothing is known.
constexpr std::int64_t counters_needed = contatori::ordini * std::int64_t{sizeof(rec_tot)};

void survey_file(const record_file& file, company_files& company, survey& into) {
    const std::string name = file.name();
    const std::string path = company_path(company.numero_azienda(), file.extension);
    if (const std::string obstacle = obstacle_at(company, path); !obstacle.empty()) {
        const bool lost_index = file.is_index() && obstacle == "manca";
        into.all.push_back({gravity::error, "file-missing", name, obstacle,
                            std::string("Finché è così i programmi lo trovano vuoto. ") +
                                (lost_index ? "Rifarlo con «repair indexes»."
                                            : "Rimettere il file da una copia.")});
        if (file.depends) into.doubt.*file.depends = name + " " + obstacle;
        return;
    }
    const std::int64_t length = company.length_of(file.extension).value_or(0);
    // A file that is too short altogether is told of by its counter.
    const std::int64_t counted = file.counter > 0 ? company.count(file.counter) : 0;
    const bool counters = file.extension == std::string_view("tot");
    if (length < (counters ? counters_needed : counted * file.per_count * file.record_length)) {
        return;
    }
    if (const auto rest = length % file.record_length; rest != 0) {
        into.all.push_back({gravity::error, "file-cut", name,
                            "in fondo ci sono " + std::to_string(rest) +
                                " byte di troppo, che non "
                                "fanno una registrazione intera",
                            "Una scrittura è stata interrotta o qualcosa è stato aggiunto: "
                            "confrontare l'ultima registrazione con una copia."});
    }
}

void tell_unfinished_repair(const std::string& which, findings& into) {
    into.push_back({gravity::warning, "repair-unfinished", "«repair " + which + "»",
                    "è stata interrotta",
                    "Farla di nuovo: scrive quanto manca. I file com'erano stanno nelle copie "
                    "accanto (.copia1, .copia2...)."});
}

void survey_spellings(const fs::path& folder, const std::vector<std::string>& all, findings& into) {
    const std::string mark = upper(std::string("vantora.") + unfinished_repair);
    std::map<std::string, std::vector<std::string>> spellings;
    for (const std::string& one : all) {
        // Most are the text files of documents.
        if (upper(one[0]) == 'B') continue;
        const std::string name = words_of_path(one);
        const std::string capitals = upper(from_utf8(name));
        if (capitals.starts_with(mark)) {
            tell_unfinished_repair(name.substr(mark.size()), into);
        } else if (capitals.starts_with("VANTORA.") || capitals.starts_with("MIRAZ0.")) {
            spellings[capitals].push_back(name);
        }
    }
    for (const auto& [capitals, names] : spellings) {
        if (names.size() < 2) continue;
        std::string list;
        for (const std::string& name : names) list += (list.empty() ? "" : ", ") + name;
        into.push_back({gravity::error, "two-spellings", words_of_path(folder),
                        "lo stesso file c'è più volte, scritto diversamente: " + list,
                        "Vedere quale è quello giusto (data e grandezza) e spostare via gli altri: "
                        "i programmi ne usano uno solo, e non sempre lo stesso."});
    }
}

void survey_counters_file(company_files& company, survey& into) {
    const auto length = company.length_of("tot");
    if (!length) {
        // Told already; without it nothing is known of any other file.
    } else if (*length == 0) {
        into.all.push_back({gravity::error, "counters-empty", "vantora.tot",
                            "il file dei contatori è vuoto: i programmi non vedono più niente",
                            "Non salvare niente: il prossimo ordine cancellerebbe il primo. "
                            "Rimettere il file da una copia."});
    } else if (*length < counters_needed) {
        into.all.push_back({gravity::error, "counters-short", "vantora.tot",
                            "il file dei contatori finisce prima del contatore degli ordini",
                            "Non salvare niente. Rimettere il file da una copia."});
    } else if (rec_tot any; company.records().tot.read(contatori::ordini, any)) {
        return;
    } else {
        into.all.push_back({gravity::error, "counters-unreadable", "vantora.tot",
                            "il file dei contatori non si può leggere",
                            "Controllare il disco; se non si rimedia, rimettere il file da una "
                            "copia."});
    }
    const std::string why = "i contatori di vantora.tot non si possono leggere";
    doubts& doubt = into.doubt;
    for (std::string* one : {&doubt.customers, &doubt.articles, &doubt.orders, &doubt.quotes,
                             &doubt.movements, &doubt.documents}) {
        *one = why;
    }
}

}  // namespace

std::string obstacle_at(company_files& company, const std::string& path) {
    std::error_code failed;
    const fs::path place = company.files().locate(path);
    const bool link = fs::is_symlink(fs::symlink_status(place, failed));
    const fs::file_status there = fs::status(place, failed);
    switch (there.type()) {
        case fs::file_type::not_found:
            return link ? "è un collegamento che non porta a nessun file" : "manca";
        case fs::file_type::directory:
            return "è una cartella, non un file";
        case fs::file_type::fifo:
            return "è una pipe, non un file";
        case fs::file_type::regular:
            return company.files().read_head(path, 1) ? "" : "non si può leggere";
        default:
            return failed ? "non si può leggere" : "non è un file";
    }
}

void survey_files(company_files& company, survey& into) {
    for (const record_file& file : record_files) survey_file(file, company, into);
    const fs::path folder = company.folder();
    survey_spellings(folder, into.names, into.all);
    survey_spellings(folder.parent_path(), names_in(folder.parent_path()), into.all);
    survey_counters_file(company, into);
}

survey::survey(company_files& company)
    : names(names_in(company.folder())),
      known(company),
      indexes(read_key_indexes(company)),
      open(known.articles()) {}

survey survey_company(company_files& company, const progress& tell) {
    if (tell) tell("anagrafiche", 0, 0);
    survey found(company);
    survey_files(company, found);
    survey_counters(company, found);
    survey_orders(company, found, tell);
    return found;
}

}  // namespace vantora::archive
