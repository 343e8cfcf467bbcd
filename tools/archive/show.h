#pragma once

#include <iosfwd>
#include <string>

#include "archive/company_files.h"

namespace vantora::archive {

/// Which records `show` shows. `number`: one of them; 0 for all.
struct show_request {
    enum class kind { orders, quotes, customers, articles, movements, documents, counters };

    kind what = kind::orders;
    int number = 0;
    bool json = false;  ///< every field by its name, instead of words
};

/// Writes the records in words, one a line, or as JSON. A single order comes with its lines.
/// False if there is no such record.
bool show(company_files& company, const show_request& request, std::ostream& out);

}  // namespace vantora::archive
