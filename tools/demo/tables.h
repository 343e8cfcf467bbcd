#pragma once

#include <string>
#include <vector>

#include "store/records/rec_gnr.h"

namespace vantora::demo {

/// Payment terms that "vantora.tab" words; the rest of its 60 are empty.
inline constexpr int termini_di_pagamento = 38;

// The lines of the text files, in UTF-8. All are read by position alone.

std::vector<std::string> heading_lines();       ///< "vantora.int", the firm's texts
std::vector<std::string> suite_table_lines();   ///< "vantora.tab", fifteen sections
std::vector<std::string> category_lines();      ///< "vantora.tb2"
std::vector<std::string> pdf_lines();           ///< "vantora.pdf", a row a kind of document
std::vector<std::string> currency_lines();      ///< "vantora.eur"
std::vector<std::string> report_table_lines();  ///< "vantora.tbl", fonts and looks of reports

/// The general parameters of a new company.
rec_gnr general_parameters();

}  // namespace vantora::demo
