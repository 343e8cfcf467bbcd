#include "archive/document_text.h"

#include "archive/field_cells.h"
#include "orders/ddt_snapshot.h"
#include "store/suite_paths.h"
#include "text/number_text.h"

namespace vantora::archive {

document_text::document_text(company_files& company)
    : files_(company.files()), folder_(folder_of_company(company.numero_azienda()) + "\\") {}

bool document_text::read(const rec_bol& record, gaps& missing) {
    const std::string name = snapshot_name(record.progressivo);
    const std::string path = folder_ + name;
    auto content = files_.read_whole(path);
    if (!content) {
        if (files_.exists(path)) missing.push_back({name, "non si può leggere"});
        return false;
    }
    reader_ = text_reader(std::move(*content));
    values_.clear();
    for (std::string_view line; reader_.line(line);) values_.push_back(line);
    if (values_.size() < lines) {
        missing.push_back({name, "è tagliato"});
        return false;
    }
    const bool its_own = number(0) == record.cliente && number(1) == record.numero;
    if (!its_own) {
        missing.push_back(
            {name, "è di un altro documento, non del " + std::to_string(record.numero)});
    }
    return its_own;
}

std::string document_text::text(std::size_t line) const {
    return cell_text(values_[line]);
}

double document_text::number(std::size_t line) const {
    return number_at_head(values_[line]);
}

bool document_text::has_row(std::size_t line) const {
    return number(line) >= 1 || !without_padding(values_[line + 3]).empty() ||
           number(line + 8) != 0 || number(line + 9) != 0;
}

}  // namespace vantora::archive
