// A document of ten full pages becomes a PDF, the reading of its print file included. Yardstick:
// the toolkit draws the same texts into a PDF in one font, with no line and no place to find.

#include <QBuffer>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <cstdlib>
#include <string_view>

#include "bench/measure.h"
#include "documents/print_file_writer.h"
#include "mirxpdf/document_pdf.h"
#include "store/drive.h"
#include "support/scratch_folder.h"
#include "ui/pictures/pixbuf_decoder.h"

namespace {

using namespace vantora;

constexpr int rows_a_page = 31;
constexpr int columns = 9;
constexpr int fields_a_page = 60;

std::string cell(int row, int column) {
    return column == 1 ? "Vite TCEI M6x30 zincata, confezione da 100 pz"
                       : "1.2" + std::to_string(row * columns + column);
}

/// A print file of the shape of the demonstration company's order.
std::string print_file(int pages) {
    test::scratch_folder folder;
    drive files(folder.path());
    {
        print_file_writer out(files, marca_verticale);
        for (int page = 0; page < pages; ++page) {
            for (int i = 0; i < fields_a_page; ++i) {
                const double y = 20 + i;
                out.write({tipo_record::linea, 10, y, 200, y, 0, 255, "", "", 1, 0});
                out.write({tipo_record::testo, 10, y, 0, 0, 7, 0, "Partita IVA", "Arial",
                           static_cast<double>(i % 2), 0});
            }
            for (int row = 0; row < rows_a_page; ++row) {
                for (int column = 0; column < columns; ++column) {
                    out.write({tipo_record::testo, 10.0 + 20 * column, 90.0 + 4 * row, 0,
                               static_cast<double>(column % 2), 8, 0, cell(row, column), "Arial", 0,
                               0});
                }
            }
            out.end_page();
        }
    }
    return files.read_whole(file_di_stampa).value();
}

qsizetype by_mirxpdf(const std::string& content) {
    const auto read = read_print_file(content);
    drive files(".");
    ui::pixbuf_decoder decoder;
    figure_documento pictures(files, decoder);
    return mirxpdf::make_pdf(std::get<documento_di_stampa>(read), "bench", pictures).size();
}

/// All texts of the document at one place, in one font, without lines.
qsizetype texts_alone(int pages) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    QPainter painter(&writer);
    painter.setFont(QFont("Liberation Sans", 8));
    for (int page = 0; page < pages; ++page) {
        if (page > 0) writer.newPage();
        for (int i = 0; i < fields_a_page; ++i) painter.drawText(QPointF(500, 500), "Partita IVA");
        for (int row = 0; row < rows_a_page; ++row) {
            for (int column = 0; column < columns; ++column) {
                painter.drawText(QPointF(500, 500), QString::fromStdString(cell(row, column)));
            }
        }
    }
    painter.end();
    return buffer.size();
}

void require(qsizetype size) {
    if (size < 1000) std::abort();
}

}  // namespace

int main(int count, char** arguments) {
    const bool quick = bench::is_quick(count, arguments);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(count, arguments);
    const int pages = quick ? 2 : 10;
    const std::string content = print_file(pages);
    bench::compare(
        "document of ten pages to PDF", quick ? 1 : 9, [&] { require(by_mirxpdf(content)); },
        "its texts alone, in one font", [&] { require(texts_alone(pages)); });
}
