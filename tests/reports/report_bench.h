#pragma once

#include <set>

#include "register/mirorc.h"
#include "reports/mirstoa.h"
#include "reports/mirstoe.h"
#include "reports/mirston.h"
#include "reports/mirstos.h"
#include "reports/mirstov.h"
#include "scripted/small_company.h"
#include "store/drive.h"
#include "support/faulty_files.h"
#include "ui/bench_desk.h"
#include "ui/pictures/pixbuf_decoder.h"

namespace vantora::test {

using grid_rows = std::vector<std::vector<std::string>>;

/// The report screens over a company, in the hands of a test that makes reads of the orders fail.
struct report_bench {
    report_bench() {
        around.time.stop_at({{2024, 5, 6}, 10, 20, 30});
        files.read_fails = [this](const std::string& path, std::int64_t offset, std::size_t size) {
            if (!path.ends_with("orc")) return false;
            const auto record = offset / static_cast<std::int64_t>(sizeof(rec_orc)) + 1;
            const auto bad = unreadable.lower_bound(record);
            return bad != unreadable.end() &&
                   *bad < record + static_cast<std::int64_t>(size / sizeof(rec_orc));
        };
        app.parameters.numero_azienda = 1;
        apri_archivi(app.archives, files, 1);
        const auto provide = [this]<class Form>(ui::screen<Form>& place) {
            place.made_by(around.desk, [this] { return std::make_unique<Form>(app); });
        };
        provide(app.mirorc);
        provide(app.mirstoe);
        provide(app.mirstos);
        provide(app.mirstov);
        provide(app.mirston);
        provide(app.mirstoa);
    }

    static grid_rows rows_of(const ui::grid& list) {
        grid_rows rows;
        for (int row = 1; row < list.rows(); ++row) {
            auto& cells = rows.emplace_back();
            for (int col = 0; col < list.cols(); ++col) cells.emplace_back(list.text(row, col));
        }
        return rows;
    }

    small_company company;
    std::set<std::int64_t> unreadable;  ///< order rows whose reads fail
    drive port{company.drive()};
    faulty_files files{port};
    ui::test::bench_desk around;
    ui::pixbuf_decoder pictures;
    program app{files, around.desk, pictures};
};

}  // namespace vantora::test
