#pragma once

#include "archive/survey.h"

namespace vantora::archive {

/// Everything that can be told of an archive from its files alone, causes before effects.
findings check_archive(company_files& company, const progress& tell = {});

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
