#include "archive/check.h"

namespace vantora::archive {

findings check_archive(company_files& company) {
    findings all;
    check_files(company, all);
    check_tables(company, all);
    check_indexes(company, all);
    open_quantities open(company.count(contatori::articoli));
    check_orders(company, open, all);
    check_stock(company, open, all);
    check_movements(company, all);
    return all;
}

}  // namespace vantora::archive
