// How long a report of the longest list takes on its way into the print file, against writing the
// same bytes from memory, in one piece. Each puts a new file in the place of the one that the other
// left in the system's memory: emptying that one instead would send it to the disk, and the next
// would wait for it.

#include <fstream>
#include <iterator>
#include <span>

#include "bench/measure.h"
#include "documents/print_file.h"
#include "reports/report.h"
#include "store/money.h"
#include "support/program_stage.h"
#include "text/number_text.h"

namespace vantora::bench {
namespace {

constexpr colonna_report schede_articoli[] = {
    {"Articolo", 32, 0}, {"Ordine", 11, 0},   {"Data", 13, 0}, {"Descrizione", 27, 0},
    {"Cliente", 27, 0},  {"Ordinato", 13, 2}, {"Evaso", 13, 5}};
constexpr descrizione_report schede{"Stampa schede articoli", "Schede articoli",
                                    "schedearticoli.pdf", schede_articoli};

/// Fills a list as the article sheets of a large archive fill it: texts that differ from row to row
/// and mostly are too wide for their columns.
void fill(ui::grid& list, int rows) {
    list.set_columns({{"Articolo"},
                      {"Ordine"},
                      {"Data"},
                      {"Descrizione"},
                      {"Cliente"},
                      {"Ordinato"},
                      {"Evaso"}});
    list.set_rows(rows + 1);
    const char* customers[] = {"Ferramenta Rossi & Figli S.n.c. di Rossi G.", "Edilnord S.p.A.",
                               "Officine Meccaniche Adriatiche S.r.l.", "Bianchi Maria"};
    for (int row = 1; row <= rows; ++row) {
        const std::string number = std::to_string(row);
        const auto part = static_cast<unsigned>(row) * 2654435761U;
        if (row % 5 == 1) list.set_text(row, 0, "TUBO-" + number + " Tubo zincato saldato 1/2\"");
        list.set_text(row, 1, number + "/A");
        list.set_text(row, 2, "0" + std::to_string(1 + part % 9) + "/05/2024");
        list.set_text(row, 3, "Ordine n. " + number + " del reparto manutenzione e impianti");
        list.set_text(row, 4, customers[part % 4] + number);
        list.set_text(row, 5, masked(part % 50000 / 100.0, maschera::quantita));
        if (row % 3 == 0) list.set_text(row, 6, masked(part % 400, maschera::quantita));
    }
}

int run(int rows, int rounds) {
    test::program_stage<> stage;
    ui::grid list;
    fill(list, rows);
    for (const std::int16_t look : {std::int16_t{0}, std::int16_t{1}}) {
        carica_parametri(stage.app.parameters, stage.files);
        stage.app.parameters.tabella_stampa[1].stile = look;
        stage.app.parameters.tabella_stampa[2].altezza = look;
        const auto print = [&] {
            stage.front.answers.keep(ui::answer::ok);
            stampa_report(stage.app, schede, list, list.rows(), uscita_report::pdf);
        };
        print();
        std::ifstream in(stage.files.locate(file_di_stampa), std::ios::binary);
        const std::string whole{std::istreambuf_iterator<char>(in), {}};
        std::printf("%d rows, %zu bytes of print file\n", rows, whole.size());
        const auto write_bytes = [&] {
            stage.files.create_instead(file_di_stampa)->write(0, std::as_bytes(std::span(whole)));
        };
        // Both have had a turn before the rounds that count: the first in a program meets code and
        // memory that were never touched.
        write_bytes();
        compare(look == 0 ? "report, plain look" : "report, grey look", rounds, print,
                "its print file from memory", write_bytes);
    }
    return 0;
}

}  // namespace
}  // namespace vantora::bench

int main(int count, char** arguments) {
    return vantora::bench::is_quick(count, arguments) ? vantora::bench::run(300, 3)
                                                      : vantora::bench::run(32000, 15);
}
