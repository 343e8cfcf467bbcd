// How long looking something up takes on an archive filled to its limits and in memory: prices
// given before, a search that finds nothing, little or much, and the company's figures; against one
// reading of all blocks, each in one call, as the bare cost of what they look at.

#include <cstdlib>

#include "bench/full_archive.h"
#include "bench/measure.h"
#include "enquiry/company_figures.h"
#include "enquiry/order_search.h"
#include "enquiry/prezzi.h"
#include "support/program_stage.h"

namespace vantora::bench {
namespace {

constexpr int lines_of_an_order = 6;

int run(int count, int rounds) {
    test::program_stage bench;
    archivi& files = bench.app.archives;
    apri_archivi(files, bench.files, 1);
    fill_archive(files, {.orders = count,
                         .lines = lines_of_an_order,
                         .customers = count,
                         .articles = count,
                         .movements = count});
    std::printf("%d orders of %d lines, articles, customers, movements\n", count,
                lines_of_an_order);

    std::vector<rec_orc> block(righe_blocco);
    const auto read_blocks = [&] {
        for (int i = 1; i <= count; ++i) files.orc.read_block(block_record(i, 1), block);
    };
    const auto measure = [&](const char* what, const std::function<void()>& work) {
        compare(what, rounds, work, "one reading of all blocks", read_blocks);
    };
    const auto goes_on = [](int, int) { return true; };
    measure("prices of an article", [&] { find_prices(files, 17, 4, 500, goes_on); });
    for (const char* wanted : {"non c'è", "cantiere n. 17", "barre"}) {
        int found = 0;
        const std::string what = std::string("search for ") + wanted;
        measure(what.c_str(), [&] {
            order_search(files, wanted)
                .run([&](const rec_orc&, const riga_trovata&) { ++found; },
                     [&](int) { return true; });
        });
    }
    const valuta euro;
    measure("figures of the company", [&] { count_company(files, euro, {2024, 11, 26}, goes_on); });
    return 0;
}

}  // namespace
}  // namespace vantora::bench

int main(int count, char** arguments) {
    return vantora::bench::is_quick(count, arguments) ? vantora::bench::run(200, 3)
                                                      : vantora::bench::run(32767, 5);
}
