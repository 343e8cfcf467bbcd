#include "archive/company_files.h"

#include "archive/words.h"
#include "store/suite_paths.h"

namespace vantora::archive {

namespace fs = std::filesystem;

company_files::company_files(file_port& port, int numero_azienda)
    : numero_(numero_azienda), port_(port) {
    apri_archivi(records_, port_, numero_);
}

company_files::company_files(const fs::path& root, int numero_azienda)
    : numero_(numero_azienda),
      own_(std::make_unique<drive>(root, drive::access::reading_only)),
      port_(*own_) {
    apri_archivi(records_, port_, numero_);
}

fs::path company_files::folder() const {
    return port_.locate(folder_of_company(numero_));
}

bool company_files::folder_exists() const {
    std::error_code failed;
    return fs::is_directory(folder(), failed);
}

fs::path company_files::path_of(std::string_view extension) const {
    return port_.locate(company_path(numero_, extension));
}

std::optional<std::int64_t> company_files::length_of(std::string_view extension) const {
    std::error_code failed;
    const fs::path path = path_of(extension);
    if (!fs::is_regular_file(path, failed)) return {};
    const auto size = fs::file_size(path, failed);
    if (failed) return {};
    return static_cast<std::int64_t>(size);
}

rec_tot company_files::counter(int record) const {
    rec_tot read;
    records_.tot.read(record, read);
    return read;
}

std::int16_t company_files::count(int record) const {
    return std::max<std::int16_t>(0, counter(record).quanti);
}

const char* counted_by(int record) {
    constexpr std::pair<int, const char*> names[] = {
        {contatori::clienti, "clienti"},
        {contatori::articoli, "articoli"},
        {contatori::magazzino, "movimenti di magazzino"},
        {contatori::documenti_trasporto, "documenti di trasporto"},
        {contatori::ordini, "ordini"},
        {contatori::preventivi, "preventivi"},
    };
    const auto found = std::ranges::find(names, record, &std::pair<int, const char*>::first);
    return found == std::end(names) ? "di altri programmi" : found->second;
}

std::vector<std::string> names_in(const fs::path& folder) {
    std::vector<std::string> names;
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end;
         entry.increment(failed)) {
        names.push_back(entry->path().filename().string());
    }
    return names;
}

std::optional<std::string> company_files::lock_holder() const {
    const auto tot = records_.tot.shared_file();
    const auto holder = tot ? tot->locked_by() : std::nullopt;
    return holder ? std::optional(without_controls(*holder)) : std::nullopt;
}

}  // namespace vantora::archive
