#pragma once

#include <optional>

#include "reports/report_bench.h"
#include "reports/report_screen.h"

namespace vantora::test {

/// The lists of the reports by the plainest procedure: one record a read, the sheets with all
/// orders read anew for every article or customer. What can't be read stays as it was. Lives as
/// long as the screen that it is compared with, whose fields it reads.
class told_lists {
 public:
    told_lists(archivi& files, report_screen& screen, const parametri& parameters)
        : files_(files), screen_(screen), parameters_(parameters) {}

    grid_rows order_list();
    grid_rows schedule();
    grid_rows valuation();
    grid_rows article_sheets();
    grid_rows customer_sheets();

 private:
    void begin(int columns, int least_rows);
    void begin_sheets(int least_rows);
    void next();
    void put(int col, const std::string& text);
    grid_rows end();

    std::string name_of(int customer);
    std::string text_of(bool article);
    double net(double quantity);
    void list_row(bool head, int order, int row, bool due_column);
    bool article_passes();
    void totals();

    archivi& files_;
    report_screen& screen_;
    const parametri& parameters_;

    rec_orc row_;
    rec_orc head_;
    rec_cli customer_;
    rec_art article_;
    int articles_ = 0;
    int customers_ = 0;
    int orders_ = 0;
    int first_ = 1;
    int last_ = 0;

    int columns_ = 0;
    std::size_t least_rows_ = 0;
    double ordered_ = 0;
    double fulfilled_ = 0;
    grid_rows rows_;
};

}  // namespace vantora::test
