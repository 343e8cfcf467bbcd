// How long looking something up takes on an archive filled to its limits and in memory: prices
// given before, a search that finds nothing, little or much, and the company's figures; against one
// reading of all blocks, each in one call, as the bare cost of what they look at.

#include <cstdlib>
#include <cstring>
#include <random>

#include "bench/measure.h"
#include "enquiry/company_figures.h"
#include "enquiry/order_search.h"
#include "enquiry/prices_given.h"
#include "support/program_stage.h"

namespace vantora::bench {
namespace {

constexpr int lines_of_an_order = 6;

/// Articles, customers and movements, `count` of each.
void write_companions(archivi& files, int count) {
    std::vector<rec_art> articles(static_cast<std::size_t>(count));
    std::vector<rec_cli> customers(static_cast<std::size_t>(count));
    std::vector<rec_mag> movements(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        const auto at = static_cast<std::size_t>(i);
        articles[at].codice = "TUBO-" + std::to_string(i);
        articles[at].descrizione = "Tubo zincato saldato n. " + std::to_string(i);
        articles[at].giacenza = 5;
        customers[at].intestazione1 = "Ferramenta Rossi n. " + std::to_string(i);
        movements[at].data = "2024" + std::to_string(101 + i % 12 * 100 + i % 28);
        movements[at].quantita = 1 + i % 9;
        movements[at].prezzo = 1.35;
    }
    files.art.write_block(1, articles);
    files.cli.write_block(1, customers);
    files.mag.write_block(1, movements);
    rec_tot counter;
    counter.quanti = static_cast<std::int16_t>(count);
    for (const int which :
         {contatori::articoli, contatori::clienti, contatori::ordini, contatori::magazzino}) {
        files.tot.write(which, counter);
    }
}

void write_orders(archivi& files, int count) {
    std::mt19937 random(1);
    const auto one_of_all = [&] {
        return static_cast<std::int16_t>(random() % static_cast<unsigned>(count) + 1);
    };
    std::vector<rec_orc> block(righe_blocco);
    for (int i = 1; i <= count; ++i) {
        rec_orc row;
        row.descrizione = "";
        row.descrizione2 = "";
        row.numero = std::to_string(i);
        row.data = "2024" + std::to_string(101 + i % 12 * 100 + i % 28);
        row.data_evasione = "2024" + std::to_string(1101 + i % 2 * 100 + i % 28);
        row.cliente = one_of_all();
        row.testo1 = "Ordine per il cantiere n. " + std::to_string(i);
        row.evaso_flag = static_cast<std::int16_t>(i % 3 == 0);
        block.assign(righe_blocco, row);
        for (rec_orc& line : std::span(block).first(lines_of_an_order)) {
            line.articolo = one_of_all();
            line.descrizione = "Tubo zincato saldato, in barre da 6 m";
            line.quantita = 1 + i % 9;
            line.prezzo = 1.35;
        }
        files.orc.write_block(block_record(i, 1), block);
    }
    files.orc.flush();
}

int run(int count, int rounds) {
    test::program_stage bench;
    archivi& files = bench.app.archives;
    apri_archivi(files, bench.files, 1);
    write_companions(files, count);
    write_orders(files, count);
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
    for (const char* wanted : {"non c'è", "tubo-17", "barre"}) {
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
    const bool quick = count > 1 && std::strcmp(arguments[1], "--quick") == 0;
    return quick ? vantora::bench::run(200, 3) : vantora::bench::run(32767, 5);
}
