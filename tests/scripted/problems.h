#pragma once

#include "archive/check.h"
#include "scripted/small_company.h"

namespace vantora::test {

/// What the archive's own check finds wrong with a company's orders and its stock, a line each.
inline std::string problems(const small_company& company) {
    archive::company_files files(company.drive(), 1);
    archive::findings all;
    archive::open_quantities open(files.count(contatori::articoli));
    archive::check_orders(files, open, all);
    archive::check_stock(files, open, all);
    std::string text;
    for (const auto& one : all) {
        if (one.how_bad != archive::gravity::note) text += one.where + ": " + one.what + "\n";
    }
    return text;
}

}  // namespace vantora::test
