#include "scripted/problems.h"

#include "archive/check.h"

namespace vantora::test {

std::string problems(const small_company& company) {
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
