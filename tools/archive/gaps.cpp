#include "archive/gaps.h"

#include "archive/survey.h"
#include "store/suite_paths.h"

namespace vantora::archive {

namespace {

std::string gap_at(company_files& company, const record_file& file) {
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
    for (const record_file& file : record_files) {
        std::string what = file.is_index() ? "" : gap_at(company, file);
        if (!what.empty()) all.push_back({file.name(), std::move(what)});
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
