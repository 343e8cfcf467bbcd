#include "archive/check.h"

namespace vantora::archive {

findings check_archive(company_files& company, const progress& tell) {
    survey found = survey_company(company, tell);
    findings& all = found.all;
    tell_unread(company.records().cli, found.known.unread_customers(), all);
    tell_unread(company.records().art, found.known.unread_articles(), all);
    check_tables(company, all);
    check_layouts(company, all);
    check_indexes(found, all);
    check_masters(found, all);
    if (tell) tell("vantora.prv", 0, 0);
    check_quotes(company, found, all);
    check_stock(found, all);
    if (tell) tell("vantora.mag", 0, 0);
    check_movements(company, found, all);
    check_documents(company, found, all);
    return all;
}

}  // namespace vantora::archive
