#pragma once

#include "archive/check.h"
#include "scripted/small_company.h"

namespace vantora::test {

/// What the archive's own check finds wrong with a company's orders and its stock, a line each. The
/// companies of tests begin with committed stock that no order of theirs explains.
inline std::string problems(const small_company& company) {
    archive::company_files files(company.drive(), 1);
    archive::survey found = archive::survey_company(files);
    archive::check_stock(found, found.all);
    std::string text;
    for (const auto& alike : found.all.groups()) {
        for (const auto& one : alike.kept) {
            if (one.how_bad == archive::gravity::note || one.kind == "committed-too-high") continue;
            text += one.where + ": " + one.what + "\n";
        }
    }
    return text;
}

}  // namespace vantora::test
