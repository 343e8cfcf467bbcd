#pragma once

#include <map>
#include <set>

#include "scripted/small_company.h"
#include "support/program_stage.h"

namespace vantora::test {

/// The program over a company, in the hands of a test that works its controls, counts its reads
/// and makes reads fail.
struct company_stage : program_on_drive<ui::test::prepared_user> {
    explicit company_stage(const small_company& company) : program_on_drive(company.drive()) {
        faults.read_fails = [this](const std::string& path, std::int64_t offset, std::size_t size) {
            const std::string extension = path.substr(path.size() - 3);
            ++reads[extension];
            const auto& bad = unreadable[extension];
            const auto next = bad.lower_bound(offset);
            return next != bad.end() && *next < offset + static_cast<std::int64_t>(size);
        };
        app.parameters.numero_azienda = 1;
        apri_archivi(app.archives, faults, 1);
    }

    std::map<std::string, std::size_t> reads;                  ///< by the file's extension
    std::map<std::string, std::set<std::int64_t>> unreadable;  ///< bad bytes of a file
};

}  // namespace vantora::test
