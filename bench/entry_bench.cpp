// How long order entry keeps its user waiting on an article file filled to its limit: the loading
// of the list, a key in the code cell, the search by description, the totals of a full order. Each
// against the bare work that can't be avoided.

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "bench/full_archive.h"
#include "bench/measure.h"
#include "customer/mirorcx.h"
#include "entry/mirorcs.h"
#include "support/program_stage.h"

namespace vantora::bench {
namespace {

void list_benches(mirorcs& screen, const program& app, int articles, int rounds) {
    std::vector<rec_art> read(320);
    const auto read_all = [&] {
        for (int first = 1; first <= articles; first += 320)
            app.archives.art.read_block(first, read);
    };
    const std::vector<std::string> in_file_order =
        article_entries_of(app.archives.art_blocchi, static_cast<std::int16_t>(articles));
    compare(
        "load of the list", rounds, [&] { screen.command3d3.click(); },
        "bare reads, copies and std::stable_sort",
        [&] {
            read_all();
            auto entries = in_file_order;
            std::ranges::stable_sort(entries);
        });

    // The last key of a code that no article has: the whole list is walked.
    const auto& entries = screen.lookup().List1.items();
    screen.artic[0].set_focus();
    screen.artic[0].set_text("TUBO-123");
    int found = 0;
    compare(
        "key in a code cell, no match", rounds,
        [&] {
            ui::key_event typed{'X'};
            screen.artic[0].on_key_press(typed);
        },
        "one plain scan of the entries",
        [&] {
            found += static_cast<int>(std::ranges::count_if(
                entries, [](const auto& entry) { return entry.starts_with("TUBO-123X"); }));
        });

    screen.ds[0].set_focus();
    screen.ds[0].set_text("Articolo di magazzino n. X");
    compare(
        "F1 without a match", rounds,
        [&] {
            ui::key_event f1{ui::key::f1};
            screen.ds[0].on_key_down(f1);
        },
        "bare reads of the file", read_all);
    if (found != 0) std::printf("the yardstick found what isn't there\n");
}

/// The roundings and sums of a full order, bare.
double bare_totals(const std::vector<double>& price, const std::vector<double>& quantity) {
    double total = 0;
    for (std::size_t i = 0; i < price.size(); ++i) {
        double amount = std::floor(price[i] * quantity[i] * 100 + 0.51) / 100;
        amount -= std::floor(amount * 10 + 0.51) / 100;
        amount -= std::floor(amount * 5 + 0.51) / 100;
        total += amount;
    }
    return total;
}

void totals_bench(const valuta& currency, int rounds) {
    tabella_iva rates;
    for (std::size_t code = 1; code <= 12; ++code) rates.aliquota_iva[code] = "22";
    const auto lines = std::make_unique<righe_ordine>();
    std::vector<double> price;
    std::vector<double> quantity;
    for (int i = 1; i <= righe_ordine::massimo; ++i) {
        riga_ordine& line = (*lines)[i];
        price.push_back(line.prezzo = 1.37 * i);
        quantity.push_back(line.quantita = i % 7 + 1);
        line.sc1 = 10;
        line.sc2 = 5;
        line.iva = static_cast<std::int16_t>(i % 24 + 1);
    }
    double sum = 0;
    compare(
        "totals of 200 lines, 1000 times", rounds,
        [&] {
            for (int i = 0; i < 1000; ++i) sum += calcola_totali(*lines, rates, currency).totale;
        },
        "bare roundings and sums, 1000 times",
        [&] {
            for (int i = 0; i < 1000; ++i) {
                price[0] += 0.01;
                sum += bare_totals(price, quantity);
            }
        });
    if (!std::isfinite(sum)) std::printf("the totals are no numbers\n");
}

int run(int articles, int rounds) {
    test::program_stage bench;
    program& app = bench.app;
    bench.provide(app.mirorcx);
    bench.provide(app.mirorcs);
    apri_archivi(app.archives, bench.files, 1);
    fill_archive(app.archives, {.articles = articles});
    app.mirorcs->show();
    std::printf("%d articles\n", articles);
    list_benches(*app.mirorcs, app, articles, rounds);
    valuta euro{app.parameters};
    euro.centesimi = true;
    totals_bench(euro, rounds);
    return 0;
}

}  // namespace
}  // namespace vantora::bench

int main(int count, char** arguments) {
    return vantora::bench::is_quick(count, arguments) ? vantora::bench::run(300, 3)
                                                      : vantora::bench::run(32767, 15);
}
