#pragma once

#include "register/mirorc.h"
#include "reports/mirstoa.h"
#include "reports/mirstoe.h"
#include "reports/mirston.h"
#include "reports/mirstos.h"
#include "reports/mirstov.h"
#include "scripted/company_stage.h"
#include "scripted/order_company.h"

namespace vantora::test {

using grid_rows = std::vector<std::vector<std::string>>;

struct own_company {
    order_company company;
};

/// The report screens over a company of their own.
struct report_stage : own_company, company_stage {
    report_stage() : company_stage(company) { run(); }

    static grid_rows rows_of(const ui::grid& list) {
        grid_rows rows;
        for (int row = 1; row < list.rows(); ++row) {
            auto& cells = rows.emplace_back();
            for (int col = 0; col < list.cols(); ++col) cells.emplace_back(list.text(row, col));
        }
        return rows;
    }
};

}  // namespace vantora::test
