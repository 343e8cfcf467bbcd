#pragma once

#include <iosfwd>
#include <string>

#include "archive/company_files.h"

namespace vantora::archive {

/// Which records `show` shows.
struct show_request {
    enum class kind { orders, quotes, customers, articles, movements, documents, counters };

    kind what = kind::orders;
    /// One of them, by what people call it: the number of an order, a quote or a transport
    /// document, the code of an article, else the record number. Empty for all.
    std::string wanted;
    bool by_record = false;  ///< `wanted` is the record number: of orders and quotes, of the block
    bool json = false;       ///< every field by its name, instead of words
};

/// Writes the records in words, one a line, or as JSON; one of them whole, an order or a quote with
/// its lines and totals. False if there is no such record, or one can't be read.
bool show(company_files& company, const show_request& request, std::ostream& out);

}  // namespace vantora::archive
