#include <gtest/gtest.h>

#include <QDialog>
#include <QImage>
#include <QPainter>
#include <QPrintPreviewWidget>
#include <QProcess>
#include <QRegularExpression>

#include "store/text/code_page.h"
#include "support/scratch_folder.h"
#include "ui/controls.h"
#include "ui/desktop/system_ports.h"
#include "window_bench.h"

namespace vantora::ui::desktop {
namespace {

constexpr double point = 25.4 / 72;  // millimetres
constexpr int resolution = 254;      // dots an inch: ten a millimetre
constexpr colour red = 0x0000FF;

QString output_of(const QString& program, const QStringList& arguments) {
    QProcess run;
    run.start(program, arguments);
    EXPECT_TRUE(run.waitForFinished()) << program.toStdString();
    return QString::fromUtf8(run.readAllStandardOutput());
}

/// What an independent reader finds in the PDF files that are printed.
class printing : public testing::Test {
 protected:
    printing() { test::application(); }

    [[nodiscard]] QString file(const char* name) const {
        return QString::fromStdString((folder.path() / name).string());
    }
    /// The page as a picture, ten points a millimetre.
    [[nodiscard]] QImage page(const QString& pdf, int number) const {
        const QString at = QString::number(number);
        const QString to = file("page");
        output_of("pdftoppm", {"-png", "-r", QString::number(resolution), "-f", at, "-l", at,
                               "-singlefile", pdf, to});
        return QImage(to + ".png");
    }
    /// Place of a word in millimetres; empty if it isn't there.
    static QRectF place_of(const QString& pdf, const char* word) {
        const QString words = output_of("pdftotext", {"-bbox", pdf, "-"});
        const auto found =
            QRegularExpression(QString("xMin=\"(.*?)\" yMin=\"(.*?)\" xMax=\"(.*?)\" "
                                       "yMax=\"(.*?)\">%1<")
                                   .arg(QString::fromUtf8(word)))
                .match(words);
        if (!found.hasMatch()) return {};
        const auto number = [&](int i) { return found.captured(i).toDouble() * point; };
        return {QPointF(number(1), number(2)), QPointF(number(3), number(4))};
    }
    static QRgb at(const QImage& page, double x, double y) {
        return page.pixel(static_cast<int>(x * 10), static_cast<int>(y * 10));
    }
    /// The part of a page that isn't white, in millimetres.
    static QRectF inked(const QImage& page) {
        QRect all;
        for (int y = 0; y < page.height(); ++y) {
            for (int x = 0; x < page.width(); ++x) {
                if (qGray(page.pixel(x, y)) < 128) all |= QRect(x, y, 1, 1);
            }
        }
        return {all.x() / 10.0, all.y() / 10.0, all.width() / 10.0, all.height() / 10.0};
    }

    vantora::test::scratch_folder folder;
};

TEST_F(printing, TextsLinesAndPagesStandWhereTheyWerePut) {
    const QString pdf = file("ordine.pdf");
    system_printer paper([&](const QString&) { return pdf; }, {});
    const font small{"Arial", 10, false, false};
    const double width = paper.text_width("Quantità"_cp, small);
    paper.text(100, 60, "Quantità"_cp, small, 0);
    paper.text(20, 250, "Verdana", {"Verdana", 24, true, false}, 0);
    paper.new_page();
    paper.line(10, 100, 200, 100, 0);
    paper.new_page();
    paper.end_job();

    const QString facts = output_of("pdfinfo", {pdf});
    EXPECT_TRUE(facts.contains(QRegularExpression("Pages: +2\n"))) << "no empty page at the end";
    EXPECT_TRUE(facts.contains("(A4)"));
    const QString fonts = output_of("pdffonts", {pdf});
    EXPECT_TRUE(fonts.contains(QRegularExpression("LiberationSans|Arial"))) << fonts.toStdString();
    EXPECT_TRUE(fonts.contains(QRegularExpression("DejaVuSans-?Bold|Verdana")));

    const QRectF word = place_of(pdf, "Quantità");
    EXPECT_NEAR(word.left(), 100, 0.3);
    EXPECT_NEAR(word.width(), width, 0.3);
    // The ink of the capital begins a known part of the size below the upper corner.
    const QRectF ink = inked(page(pdf, 1).copy(900, 500, 500, 300)).translated(90, 50);
    EXPECT_NEAR(ink.left(), 100.2, 0.3);
    EXPECT_NEAR(ink.top(), 60 + (0.905 - 0.74) * 10 * point, 0.3);
    EXPECT_NEAR(place_of(pdf, "Verdana").left(), 20, 0.3);
    const QRectF line = inked(page(pdf, 2));
    EXPECT_NEAR(line.left(), 10, 0.3);
    EXPECT_NEAR(line.right(), 200, 0.3);
    EXPECT_NEAR(line.center().y(), 100, 0.15);
}

TEST_F(printing, APictureHasItsPointsAndNoSeams) {
    const QString pdf = file("logo.pdf");
    system_printer paper([&](const QString&) { return pdf; }, {});
    constexpr double side = 15 / 56.6929;
    constexpr int points = 60;
    bitmap image{points, points, std::vector<colour>(points * points, red)};
    image.points[10 * points + 10] = transparent_grey;
    paper.picture(20.5, 30.25, side, std::make_shared<const bitmap>(std::move(image)));
    paper.end_job();

    const QImage logo = page(pdf, 1);
    constexpr double end = points * side;
    int others = 0;
    for (double y = 30.25 + 0.2; y < 30.25 + end - 0.2; y += 0.1) {
        for (double x = 20.5 + 0.2; x < 20.5 + end - 0.2; x += 0.1) {
            others += at(logo, x, y) != qRgb(255, 0, 0) ? 1 : 0;
        }
    }
    EXPECT_GE(others, 4) << "the transparent point";
    EXPECT_LE(others, 36) << "one seam alone would be 150";
    for (const double beside : {20.2, 20.5 + end + 0.3}) {
        EXPECT_EQ(at(logo, beside, 35), qRgb(255, 255, 255));
    }
}

TEST_F(printing, EachJobAsksForItsFileAndADroppedOneLeavesNothing) {
    QStringList answers{file("uno.pdf"), QString(), "/dev/null/no.pdf", file("tre.pdf")};
    QStringList asked;
    QString told;
    system_printer paper(
        [&](const QString& proposed) {
            asked << proposed;
            return answers[asked.size() - 1];
        },
        [&](const QString& why) { told = why; });
    paper.end_job();
    paper.set_job_name("Ordine 4/1");
    for (const char* word : {"primo", "secondo", "nessuno", "terzo"}) {
        paper.text(20, 20, word, {}, 0);
        paper.new_page();
        paper.text(20, 20, "seguito", {}, 0);
        paper.end_job();
        paper.set_orientation(printer::landscape);
        EXPECT_EQ(paper.page_width(), 297);
    }
    EXPECT_EQ(asked, (QStringList{"Ordine 4-1", "Documento", "Documento", "Documento"}));
    EXPECT_TRUE(told.contains("/dev/null/no.pdf")) << "a file that can't be written is named";
    EXPECT_FALSE(place_of(file("uno.pdf"), "primo").isEmpty());
    EXPECT_FALSE(place_of(file("tre.pdf"), "terzo").isEmpty());
    EXPECT_TRUE(place_of(file("tre.pdf"), "secondo").isEmpty());
    const QImage wide = page(file("tre.pdf"), 1);
    EXPECT_GT(wide.width(), wide.height());
}

TEST_F(printing, AJobThatIsSeenFirstIsPrintedAsAnyOther) {
    QStringList asked;
    system_printer paper(
        [&](const QString& proposed) {
            asked << proposed;
            return file("visto.pdf");
        },
        {});
    paper.set_preview(true);
    int shown_pages = 0;
    for (const bool print : {false, true}) {
        QTimer::singleShot(0, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            EXPECT_EQ(dialog->windowTitle(), "Anteprima: Ordine 7");
            shown_pages = dialog->findChild<QPrintPreviewWidget*>()->pageCount();
            dialog->done(print ? QDialog::Accepted : QDialog::Rejected);
        });
        paper.set_job_name("Ordine 7");
        paper.set_orientation(printer::landscape);
        paper.text(100, 60, "prima", {}, 0);
        paper.new_page();
        paper.text(20, 30, "seconda", {}, 0);
        paper.new_page();
        paper.set_orientation(printer::upright);
        paper.end_job();
        EXPECT_EQ(asked.size(), print ? 1 : 0);
    }
    EXPECT_EQ(shown_pages, 2);
    EXPECT_EQ(paper.orientation(), printer::upright);
    EXPECT_TRUE(
        output_of("pdfinfo", {file("visto.pdf")}).contains(QRegularExpression("Pages: +2")));
    EXPECT_NEAR(place_of(file("visto.pdf"), "prima").left(), 100, 0.3);
    EXPECT_GT(page(file("visto.pdf"), 2).width(), page(file("visto.pdf"), 2).height());
}

}  // namespace
}  // namespace vantora::ui::desktop
