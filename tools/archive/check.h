#pragma once

#include <filesystem>
#include <iosfwd>

#include "archive/survey.h"

namespace vantora::archive {

/// Everything that can be told of an archive from its files alone, causes before effects.
findings check_archive(company_files& company, const progress& tell = {});

struct check_request {
    bool json = false;
    bool quiet = false;  ///< nothing unless something is found
    bool all = false;    ///< every company of the drive
};

/// Checks a company, or all, and tells what was found: 0 sound, 1 findings, 3 nothing to read.
/// While it takes long, `progress` shows how far it is; null: nobody looks.
int report_check(const std::filesystem::path& root, int numero_azienda,
                 const check_request& request, std::ostream& out, std::ostream* progress);

// One subject each; what follows from a doubt of the survey isn't told
// -------------------------------

/// Order of the indexes, each record once, the key of its record.
void check_indexes(const survey& found, findings& into);
/// Customers and articles: names, codes, values that mean nothing.
void check_masters(const survey& found, findings& into);
/// Quotes, like orders.
void check_quotes(company_files& company, const survey& found, findings& into);
/// Stock figures by themselves, against the orders and against the movements.
void check_stock(const survey& found, findings& into);
/// Movements and transport documents.
void check_movements(company_files& company, const survey& found, findings& into);
void check_documents(company_files& company, const survey& found, findings& into);
/// Parameter and table files that fall back to defaults.
void check_tables(company_files& company, findings& into);
/// Layouts, drawings and rates with values that can't be read.
void check_layouts(company_files& company, findings& into);

}  // namespace vantora::archive
