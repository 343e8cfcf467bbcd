#pragma once

#include <map>
#include <set>

#include "program/program.h"
#include "scripted/small_company.h"
#include "store/drive.h"
#include "support/faulty_files.h"
#include "ui/bench_desk.h"
#include "ui/pictures/pixbuf_decoder.h"

namespace vantora::test {

/// The program over a company, in the hands of a test that works its controls, counts its reads
/// and makes reads fail.
struct company_stage {
    explicit company_stage(const small_company& company) : port(company.drive()) {
        around.time.stop_at({{2024, 5, 6}, 10, 20, 30});
        files.read_fails = [this](const std::string& path, std::int64_t offset, std::size_t size) {
            const std::string extension = path.substr(path.size() - 3);
            ++reads[extension];
            const auto& bad = unreadable[extension];
            const auto next = bad.lower_bound(offset);
            return next != bad.end() && *next < offset + static_cast<std::int64_t>(size);
        };
        app.parameters.numero_azienda = 1;
        apri_archivi(app.archives, files, 1);
    }

    /// Tells the program how one of its screens is made.
    template <class Form>
    void provide(ui::screen<Form>& place) {
        place.made_by(around.desk, [this] { return std::make_unique<Form>(app); });
    }

    std::map<std::string, std::size_t> reads;                  ///< by the file's extension
    std::map<std::string, std::set<std::int64_t>> unreadable;  ///< bad bytes of a file
    vantora::drive port;
    faulty_files files{port};
    ui::test::bench_desk around;
    ui::pixbuf_decoder pictures;
    program app{files, around.desk, pictures};
};

}  // namespace vantora::test
