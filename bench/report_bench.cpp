// How long a report of the longest list takes on its way into the print file, against writing the
// same bytes from memory, in one piece. Each puts a new file in the place of the one that the other
// left in the system's memory: emptying that one instead would send it to the disk, and the next
// would wait for it.

#include <fstream>
#include <iterator>
#include <span>

#include "bench/measure.h"
#include "bench/report_list.h"
#include "documents/print_file.h"
#include "support/program_stage.h"

namespace vantora::bench {
namespace {

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
