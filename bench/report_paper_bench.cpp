// How long a thousand rows of a report take on the system's printer, measured as a PDF file that
// the toolkit prints; and how long they take into the print file, whose texts it measures.

#include <QApplication>
#include <QString>

#include "bench/measure.h"
#include "bench/report_list.h"
#include "desktop/printing/system_printer.h"
#include "support/program_stage.h"

namespace vantora::bench {
namespace {

int run(int rows, int rounds) {
    test::program_stage<> stage;
    const std::string pdf = (stage.folder.path() / "report.pdf").string();
    ui::desktop::system_printer paper([&](const QString&) { return QString::fromStdString(pdf); },
                                      [](const QString&) {});
    ui::desk desk(stage.front, stage.time, paper, stage.programs);
    program app(stage.files, desk, stage.pictures);
    carica_parametri(app.parameters, stage.files);
    ui::grid list;
    fill(list, rows);
    std::vector<double> printed;
    std::vector<double> filed;
    for (int round = 0; round < rounds; ++round) {
        stage.front.answers.keep(ui::answer::yes);
        printed.push_back(milliseconds(
            [&] { stampa_report(app, schede, list, list.rows(), uscita_report::stampante); }));
        stage.front.answers.keep(ui::answer::ok);
        filed.push_back(milliseconds(
            [&] { stampa_report(app, schede, list, list.rows(), uscita_report::pdf); }));
    }
    std::printf("%d rows: %.0f ms on the printer, %.0f ms into the print file\n", rows,
                median(printed), median(filed));
    return 0;
}

}  // namespace
}  // namespace vantora::bench

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(count, arguments);
    return vantora::bench::is_quick(count, arguments) ? vantora::bench::run(50, 1)
                                                      : vantora::bench::run(1000, 5);
}
