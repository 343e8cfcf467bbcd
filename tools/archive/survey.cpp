#include "archive/survey.h"

namespace vantora::archive {

survey::survey(company_files& company)
    : names(names_in(company.folder())),
      known(company),
      indexes(read_key_indexes(company)),
      open(known.articles()) {}

survey survey_company(company_files& company, const progress& tell) {
    if (tell) tell("anagrafiche", 0, 0);
    survey found(company);
    survey_files(company, found);
    survey_counters(company, found);
    survey_orders(company, found, tell);
    return found;
}

}  // namespace vantora::archive
