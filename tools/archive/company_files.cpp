#include "archive/company_files.h"

#include "store/suite_paths.h"

namespace vantora::archive {

company_files::company_files(const std::filesystem::path& root, int numero_azienda)
    : numero_(numero_azienda), drive_(root, drive::access::reading_only) {
    apri_archivi(records_, drive_, numero_);
}

bool company_files::folder_exists() const {
    std::error_code failed;
    return std::filesystem::is_directory(drive_.locate(cartella_azienda(numero_)), failed);
}

std::filesystem::path company_files::path_of(std::string_view extension) const {
    return drive_.locate(file_azienda(numero_, extension));
}

std::optional<std::int64_t> company_files::length_of(std::string_view extension) const {
    std::error_code failed;
    const auto size = std::filesystem::file_size(path_of(extension), failed);
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

}  // namespace vantora::archive
