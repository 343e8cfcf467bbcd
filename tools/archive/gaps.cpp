#include "archive/gaps.h"

#include "store/suite_paths.h"

namespace vantora::archive {

namespace {

struct counted_file {
    const char* extension;
    std::int64_t record_length;
    int counter;             ///< record of the counters; 0: counted by nothing
    std::int64_t per_count;  ///< records that one of the count stands for
};

constexpr counted_file counted_files[] = {
    {"cli", sizeof(rec_cli), contatori::clienti, 1},
    {"art", sizeof(rec_art), contatori::articoli, 1},
    {"orc", sizeof(rec_orc), contatori::ordini, righe_blocco},
    {"prv", sizeof(rec_prv), contatori::preventivi, righe_blocco},
    {"mag", sizeof(rec_mag), contatori::magazzino, 1},
    {"bol", sizeof(rec_bol), contatori::documenti_trasporto, 1},
    {"prx", sizeof(rec_prx), 0, 1},
    {"tot", sizeof(rec_tot), 0, 1},
};

std::string gap_at(company_files& company, const counted_file& file) {
    const auto length = company.length_of(file.extension);
    if (!length) return "manca";
    if (!company.files().open_records(company_path(company.numero_azienda(), file.extension))) {
        return "non si può aprire";
    }
    const std::string cut =
        *length % file.record_length == 0 ? "" : "è tagliato: l'ultima registrazione non è intera";
    if (file.counter == 0) return cut;
    const std::int64_t held = *length / file.record_length / file.per_count;
    const int counted = company.counter(file.counter).quanti;
    if (counted < 0) return "il contatore non ha senso (" + std::to_string(counted) + ")";
    if (counted == 0 && held > 0) {
        return "il contatore dice 0, il file ne contiene " + std::to_string(held);
    }
    if (counted > held) {
        return "il contatore dice " + std::to_string(counted) + ", il file ne contiene " +
               std::to_string(held);
    }
    return cut;
}

/// The tables without which figures and codes of the records can't be understood.
constexpr const char* text_files[] = {"tab", "tb2"};

}  // namespace

gaps gaps_of(company_files& company) {
    gaps all;
    for (const counted_file& file : counted_files) {
        std::string what = gap_at(company, file);
        if (!what.empty()) {
            all.push_back({std::string("vantora.") + file.extension, std::move(what)});
        }
    }
    for (const char* extension : text_files) {
        if (company.files().read_whole(company_path(company.numero_azienda(), extension))) continue;
        all.push_back({std::string("vantora.") + extension, "manca o non si può leggere"});
    }
    return all;
}

std::string in_lines(const gaps& all) {
    constexpr std::size_t told_max = 20;
    std::string lines;
    for (std::size_t i = 0; i < all.size() && i < told_max; ++i) {
        lines += all[i].file + ": " + all[i].what + "\n";
    }
    if (all.size() > told_max) lines += "e altri " + std::to_string(all.size() - told_max) + "\n";
    return lines;
}

}  // namespace vantora::archive
