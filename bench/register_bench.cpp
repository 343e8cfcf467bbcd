// How long the register takes to build and to sort on an archive filled to its limits, against the
// bare cost of reading the same rows with one positioned read each: from memory, from the disk, and
// from another machine, which answers each read after half a millisecond.

#include <cstdlib>
#include <memory>
#include <string>

#include "bench/cold_files.h"
#include "bench/full_archive.h"
#include "bench/measure.h"
#include "register/mirorc.h"
#include "support/faulty_files.h"
#include "support/program_stage.h"

namespace vantora::bench {
namespace {

void sort_benches(ui::grid& list, int rounds) {
    const auto texts_of = [&](int col) {
        std::vector<std::string> texts;
        for (int row = 1; row < list.rows(); ++row) texts.emplace_back(list.text(row, col));
        return texts;
    };
    for (const int col : {mirorc::registr, mirorc::ordine, mirorc::cliente, mirorc::descrizione,
                          mirorc::data_stored}) {
        const auto by = col == mirorc::data_stored ? ui::sort_order::numeric_ascending
                                                   : ui::sort_order::generic_ascending;
        const auto shuffled_by = col == mirorc::cliente ? mirorc::ordine : mirorc::cliente;
        std::vector<std::string> texts;
        const std::string what = "sort by column " + std::to_string(col);
        compare(
            what.c_str(), rounds, [&] { list.sort(col, by); }, "std::stable_sort of the same texts",
            [&] { std::ranges::stable_sort(texts); },
            [&] {
                // Each begins with the rows in another order.
                list.sort(shuffled_by, ui::sort_order::generic_ascending);
                texts = texts_of(col);
            });
    }
}

int run(int orders, int customers, int rounds) {
    test::program_stage bench;
    program& app = bench.app;
    bench.provide(app.mirorc);
    {
        archivi files;
        apri_archivi(files, bench.files, 1);
        fill_archive(files, {.orders = orders, .customers = customers});
    }
    app.mirorc->show();
    std::printf("%d orders, %d customers\n", orders, customers);

    const auto read_rows = [&](bool names) {
        rec_orc row;
        rec_cli customer;
        for (int i = 1; i <= orders; ++i) {
            app.archives.orc.read(block_record(i, 1), row);
            if (names) app.archives.cli.read(row.cliente, customer);
        }
    };
    const auto build = [&] { app.mirorc->build_list(); };
    compare("build of the register", rounds, build, "one read for each row and its customer",
            [&] { read_rows(true); });
    compare("build of the register", rounds, build, "one read for each row alone",
            [&] { read_rows(false); });
    const auto drop = [&] { drop_from_memory(bench.folder.path()); };
    compare(
        "the same from the disk", 5, build, "one read for each row and its customer",
        [&] { read_rows(true); }, drop);
    compare(
        "the same from the disk", 5, build, "one read for each row alone",
        [&] { read_rows(false); }, drop);
    test::faulty_files far(bench.files);
    far.read_takes = std::chrono::microseconds(500);
    apri_archivi(app.archives, far, 1);
    compare("the same from afar", 1, build, "one read for each row alone",
            [&] { read_rows(false); });
    sort_benches(app.mirorc->elenco, rounds);
    return 0;
}

}  // namespace
}  // namespace vantora::bench

int main(int count, char** arguments) {
    return vantora::bench::is_quick(count, arguments) ? vantora::bench::run(300, 100, 3)
                                                      : vantora::bench::run(32767, 32767, 9);
}
