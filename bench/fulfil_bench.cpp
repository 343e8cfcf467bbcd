// How long the worklist of a customer takes to come up in an archive filled to its limits, and the
// booking of a thousand rows, against the bare reads and writes of the same records.

#include <vector>

#include "bench/full_archive.h"
#include "bench/measure.h"
#include "fulfil/booking.h"
#include "fulfil/mirorca.h"
#include "fulfil/mirorcc.h"
#include "fulfil/mirorcr.h"
#include "orders/order_rows.h"
#include "store/records/order_block.h"
#include "support/program_stage.h"

namespace vantora::bench {
namespace {

constexpr std::int16_t articles = 1000;
constexpr int lines_of_an_order = 10;

void worklist(program& app, int orders, int rounds) {
    const auto come_up = [&] {
        app.mirorcr->hide();
        app.mirorcr->show();
    };
    const auto read_orders = [&] {
        std::vector<rec_orc> block(righe_blocco);
        rec_orc head;
        for (int order = 1; order <= orders; ++order) {
            app.archives.orc.read(block_record(order, 1), head);
            if (head.cliente == 1 && is_open_order(head)) {
                app.archives.orc.read_block(block_record(order, 1), block);
            }
        }
    };
    compare("worklist of the customer", rounds, come_up, "reads of all heads and of its blocks",
            read_orders);
}

void booking(archivi& files, int orders, int rounds) {
    std::vector<std::int64_t> rows;
    for (int order = 1; order <= orders && rows.size() < 1000; order += 65) {
        for (int line = 1; line <= lines_of_an_order; ++line) {
            rows.push_back(block_record(order, line));
        }
    }
    const auto book = [&] {
        archive_change change(files);
        for (const auto record : rows) prenota_riga(change, files, record, 1, articles, true);
    };
    const auto copy = [&] {
        rec_orc row;
        rec_art article;
        for (const auto record : rows) {
            files.orc.read(record, row);
            files.art.read(row.articolo, article);
            files.art.write(row.articolo, article);
            files.orc.write(record, row);
        }
    };
    std::printf("%zu rows\n", rows.size());
    compare("booking of the rows", rounds, book, "reads and writes of rows and articles", copy);
}

int run(int orders, int customers, int rounds) {
    test::program_stage bench;
    program& app = bench.app;
    bench.provide(app.mirorcr);
    apri_archivi(app.archives, bench.files, 1);
    fill_archive(app.archives, {.orders = orders,
                                .lines = lines_of_an_order,
                                .customers = customers,
                                .articles = articles});
    app.selezione_1 = 1;
    app.mirorcr->show();
    worklist(app, orders, rounds);
    booking(app.archives, orders, rounds);
    return 0;
}

}  // namespace
}  // namespace vantora::bench

int main(int count, char** arguments) {
    return vantora::bench::is_quick(count, arguments) ? vantora::bench::run(200, 2, 3)
                                                      : vantora::bench::run(32767, 65, 9);
}
