// How long the worklist of a customer takes to come up in an archive filled to its limits, and the
// booking of a thousand rows, against the bare reads and writes of the same records.

#include <cstring>
#include <vector>

#include "bench/measure.h"
#include "fulfil/booking.h"
#include "fulfil/mirorca.h"
#include "fulfil/mirorcc.h"
#include "fulfil/mirorcr.h"
#include "store/records/order_block.h"
#include "support/program_stage.h"

namespace vantora::bench {
namespace {

constexpr std::int16_t articles = 1000;
constexpr int lines_of_an_order = 10;

/// Orders of which every `every`-th is the customer's; of the others there is only the head.
void write_archive(archivi& files, int orders, int every) {
    std::vector<rec_orc> block(righe_blocco);
    for (int line = 0; line < lines_of_an_order; ++line) {
        rec_orc& row = block[static_cast<std::size_t>(line)];
        row.articolo = static_cast<std::int16_t>(line * 97 + 1);
        row.quantita = 10;
        row.impegno = "1";
    }
    for (int order = 1; order <= orders; ++order) {
        const bool own = order % every == 0;
        for (rec_orc& row : block) row.cliente = own ? 1 : 2;
        const std::size_t rows = own ? block.size() : 1;
        files.orc.write_block(block_record(order, 1), std::span(block).first(rows));
    }
    rec_art article;
    article.codice = "ART";
    article.descrizione = "articolo";
    for (int number = 1; number <= articles; ++number) files.art.write(number, article);
    rec_tot counter;
    counter.quanti = static_cast<std::int16_t>(orders);
    files.tot.write(contatori::ordini, counter);
    counter.quanti = articles;
    files.tot.write(contatori::articoli, counter);
}

void worklist(program& app, int orders, int every, int rounds) {
    const auto come_up = [&] {
        app.mirorcr->hide();
        app.mirorcr->show();
    };
    const auto read_orders = [&] {
        std::vector<rec_orc> block(righe_blocco);
        rec_orc head;
        for (int order = 1; order <= orders; ++order) {
            app.archives.orc.read(block_record(order, 1), head);
            if (head.cliente == 1) app.archives.orc.read_block(block_record(order, 1), block);
        }
    };
    std::printf("%d orders, %d of the customer\n", orders, orders / every);
    compare("worklist of the customer", rounds, come_up, "reads of all heads and of its blocks",
            read_orders);
}

void booking(archivi& files, int orders, int every, int rounds) {
    std::vector<std::int64_t> rows;
    for (int order = every; order <= orders && rows.size() < 1000; order += every) {
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

int run(int orders, int every, int rounds) {
    test::program_stage bench;
    program& app = bench.app;
    bench.provide(app.mirorcr);
    apri_archivi(app.archives, bench.files, 1);
    write_archive(app.archives, orders, every);
    app.selezione_1 = 1;
    app.mirorcr->show();
    worklist(app, orders, every, rounds);
    booking(app.archives, orders, every, rounds);
    return 0;
}

}  // namespace
}  // namespace vantora::bench

int main(int count, char** arguments) {
    const bool quick = count > 1 && std::strcmp(arguments[1], "--quick") == 0;
    return quick ? vantora::bench::run(200, 2, 3) : vantora::bench::run(32767, 65, 9);
}
