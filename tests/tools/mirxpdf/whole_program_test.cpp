#include <gtest/gtest.h>

#include <QApplication>
#include <QColor>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "desktop/look/style.h"
#include "mirxpdf/carry_out.h"
#include "mirxpdf/notices.h"
#include "run_of_program.h"
#include "support/faulty_files.h"
#include "support/picture_file.h"
#include "support/printed_pdf.h"

namespace vantora::test {
namespace {

const pdf_drive::page one_text = {text_at(20, 30, "Ordine")};

/// What doesn't become a PDF says why, and leaves every file as it was.
void expect_refused(const pdf_drive& drive, const std::vector<std::string>& command, int exit_code,
                    const std::string& why) {
    const auto before = drive.files();
    const auto result = drive.run_command(command);
    EXPECT_EQ(result.exit_code, exit_code) << testing::PrintToString(command);
    EXPECT_NE(result.said, "") << testing::PrintToString(command);
    EXPECT_NE(result.said.find(why), std::string::npos) << result.said;
    EXPECT_TRUE(drive.files() == before) << why;
}

TEST(mirxpdf_program, TheArgumentSaysWhatBecomesOfIt) {
    const std::pair<std::vector<std::string>, const char*> good[] = {
        {{"***,c:\\mirdoc.rto,C:\\a.pdf"}, "a.pdf"},
        {{"x,C:\\MIRDOC.RTO , c:\\a.pdf ,  "}, "a.pdf"},
        {{"***,c:\\mirdoc.rto,C:\\nuova\\sotto", "cartella\\a", "b.pdf,", "***"},
         "nuova/sotto cartella/a b.pdf"},
        {{"***,c:\\mirdoc.rto,C:\\MirWin\\..\\Perch\xC3\xA9.pdf"}, "mirwin/Perch\xC3\xA9.pdf"},
        {{"--no-window", "***,c:\\mirdoc.rto,\\a.pdf", "--drive", "x.PDF"}, "a.pdf --drive x.PDF"},
    };
    pdf_drive drive;
    std::filesystem::create_directories(drive.at("mirwin"));
    drive.write_print_file({one_text});
    for (const auto& [words, pdf] : good) {
        const auto result = drive.run(words);
        EXPECT_EQ(result.exit_code, 0) << testing::PrintToString(words) << result.said;
        EXPECT_TRUE(bytes_of(drive.at(pdf)).starts_with("%PDF-")) << testing::PrintToString(words);
        std::filesystem::remove(drive.at(pdf));
    }
    const std::pair<std::vector<std::string>, int> bad[] = {
        {{"***,c:\\mirdoc.rto,C:\\a.txt"}, 1},
        {{}, 2},
        {{"***,c:\\mirdoc.rto"}, 2},
        {{"***,,C:\\a.pdf,***"}, 2},
        {{"***,c:\\mirdoc.rto,C:\\cartella\\,***"}, 2},
        {{"--unknown"}, 2},
        {{"--drive", "/no/such/folder", "***,c:\\mirdoc.rto,C:\\a.pdf"}, 2},
    };
    for (const auto& [words, code] : bad) expect_refused(drive, drive.command(words), code, "");
}

TEST(mirxpdf_program, WhatCannotBecomeAPdfLeavesTheOlderOne) {
    const std::string mark = std::string(marca_verticale) + "\r\n";
    const std::string text =
        " 3 \r\n 1 \r\n 2 \r\n 0 \r\n 0 \r\n 9 \r\n 0 \r\nx\r\nArial\r\n 0 \r\n";
    pdf_drive drive;
    put(drive.at("doc.pdf"), "the one before");
    expect_refused(drive, drive.command({report_call}), 1, "c:\\mirdoc.rto non si può leggere");
    const std::pair<std::string, const char*> contents[] = {
        {"", "non è un file di stampa"},
        {"#FILEFORMAT=KLP-RTX\r\n", "non è un file di stampa"},
        {mark + text, "incompleto (riga 12)"},
        {mark, "non ha pagine"}};
    for (const auto& [content, said] : contents) {
        put(drive.at("mirdoc.rto"), content);
        expect_refused(drive, drive.command({report_call}), 1, said);
    }
    drive.write_print_file({one_text});
    std::filesystem::create_directory(drive.at("taken.pdf"));
    std::filesystem::create_symlink("doc.pdf", drive.at("link.pdf"));
    for (const char* place : {"C:\\taken.pdf", "C:\\doc.pdf\\doc.pdf", "C:\\..", "C:\\link.pdf"}) {
        expect_refused(drive, drive.command({std::string("***,c:\\mirdoc.rto,") + place}), 1,
                       "non è stato creato");
    }
}

/// Each read, write, flush, creation and putting in place is refused once, and from there on.
TEST(mirxpdf_program, WhateverTheDiskRefusesThereIsAWholePdfOrTheOneBefore) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int no_arguments = 0;
    const QApplication application(no_arguments, nullptr);
    pdf_drive drive;
    put(drive.at("logo.bmp"), picture_file(1, 1));
    drive.write_print_file({{text_at(20, 30, "Ordine"),
                             {tipo_record::figura, 50, 70, 0, 0, 0, 0, "\\logo.bmp", "", 0, 0}}});
    vantora::drive real(drive.root());
    faulty_files disk(real);
    const auto request = mirxpdf::read_request(report_call);
    int refused = 0;
    bool failed = true;
    for (std::size_t fault = 0; failed; ++fault) {
        put(drive.at("doc.pdf"), "the one before");
        const auto before = drive.files();
        disk.fail_at(fault / 2, fault % 2 == 1, failed);
        testing::internal::CaptureStderr();
        const int code =
            mirxpdf::carry_out(*request, disk.read_whole(request->print_file), disk, {});
        const std::string said = testing::internal::GetCapturedStderr();
        refused += code;
        const bool done = code == mirxpdf::all_done;
        EXPECT_TRUE(done ? said.empty() : !said.empty() && drive.files() == before) << fault;
        EXPECT_EQ(done, printed_pdf(drive.at("doc.pdf")).has_pages(1)) << fault;
        EXPECT_EQ(drive.files().size(), before.size()) << fault;
    }
    EXPECT_EQ(refused, 11) << "a picture that can't be read for once is left out, as on paper";
}

TEST(mirxpdf_program, ADemonstrationCompanyGetsTheProgramAndItsSettings) {
    pdf_drive drive;
    const auto make = [&](const char* company) {
        return drive.run_command({DEMO_PROGRAM, drive.root().string(), company, "--orders", "1",
                                  "--articles", "1", "--customers", "1"});
    };
    ASSERT_EQ(make("001").exit_code, 0);
    drive.write_print_file({one_text});
    const std::string program = drive.at("mirwin/mirwin/mirxpdf").string();
    // The drive is where the program lies, however it was started.
    for (const std::string& started_as : {program, std::string("mirwin/mirwin/mirxpdf")}) {
        EXPECT_EQ(drive.run_command({started_as, report_call}).exit_code, 0) << started_as;
        EXPECT_TRUE(std::filesystem::remove(drive.at("doc.pdf"))) << started_as;
    }
    expect_refused(drive, {MIRXPDF_PROGRAM, report_call}, 2, "--drive");
    // Its sample settings set nothing.
    const auto mail = drive.run_command({program, call_with_address("a@b.it")});
    EXPECT_EQ(mail.exit_code, 3);
    EXPECT_NE(mail.said.find("non è configurata"), std::string::npos) << mail.said;

    drive.write_settings("# of the firm\n");
    put(program, "an older one");
    ASSERT_EQ(make("002").exit_code, 0);
    EXPECT_TRUE(bytes_of(program) == bytes_of(MIRXPDF_PROGRAM));
    EXPECT_EQ(bytes_of(drive.at("mirwin/mirwin/mirxpdf.conf")), "# of the firm\n");
}

/// Boxes on a screen that nobody sees, answered as a user would.
TEST(mirxpdf_notices, APdfThatIsReadyIsOpenedOnlyIfTheUserWantsIt) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int no_arguments = 0;
    QApplication application(no_arguments, nullptr);
    ui::dress_application(application);
    const QString pdf = "/ditta/orc12.pdf";
    int opened = 0;
    const mirxpdf::notices tell{[&](const QString& file) { opened += file == pdf ? 1 : 0; }};
    /// Presses this button, or Escape if it is empty, in the next box, which tells a text.
    const auto answer_with = [&](const QString& button, const QString& told) {
        QTimer::singleShot(0, &application, [button, text = told + "\n\n" + pdf] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            EXPECT_EQ(box->text(), text);
            if (button.isEmpty()) box->reject();
            for (auto* one : box->buttons()) {
                if (one->text().remove('&') == button) one->click();
            }
        });
    };
    const QString done = "Il documento è pronto.";
    const QString not_sent = "Il documento <b>non</b> è stato inviato.";
    for (const auto& [button, times] : {std::pair{"Chiudi", 0}, {"", 0}, {"Apri", 2}}) {
        opened = 0;
        answer_with(button, done);
        tell.done(done, "", pdf);
        answer_with(button, not_sent);
        tell.not_sent(not_sent, pdf);
        EXPECT_EQ(opened, times) << button;
    }
}

struct mirxpdf_pdf : testing::Test {
    printed_pdf make(const std::vector<pdf_drive::page>& pages,
                     std::string_view mark = marca_verticale) {
        drive.write_print_file(pages, mark);
        const auto result = drive.run({report_call});
        EXPECT_EQ(result.exit_code, 0) << result.said;
        return printed_pdf(drive.at("doc.pdf"));
    }
    pdf_drive drive;
};

TEST_F(mirxpdf_pdf, PagesHaveTheSizeAndNumberThatTheFileSays) {
    const pdf_drive::page text = {text_at(20, 30, "Pagina")};
    const printed_pdf upright = make({{}, text, {}});
    EXPECT_TRUE(upright.has_pages(3));
    EXPECT_TRUE(upright.facts().contains("595 x 842 pts"));
    const printed_pdf wide = make({text}, marca_orizzontale);
    EXPECT_TRUE(wide.has_pages(1));
    EXPECT_TRUE(wide.facts().contains("842 x 595 pts"));
}

record_di_stampa shape(tipo_record kind, double x1, double y1, double x2, double y2, double colour,
                       double mark) {
    return {kind, x1, y1, x2, y2, 0, colour, "", "", mark, 0};
}

/// How marks look is the painter's affair; here, that each record becomes its mark.
TEST_F(mirxpdf_pdf, EveryRecordIsDrawnInItsPlaceAndOrder) {
    // Two points, red and the light grey that is left out.
    put(drive.at("mirwin/logo.bmp"),
        picture_file(2, 1, 0, std::string("\0\0\xFF\xC0\xC0\xC0\0\0", 8)));
    auto right_end = text_at(95, 100, "1.234,50");
    right_end.y2 = right_end.grassetto = 1;
    using enum tipo_record;
    const printed_pdf made =
        make({{shape(riquadro, 20, 20, 80, 60, 0x0000FF, 1),
               shape(riquadro, 40, 30, 60, 50, 0xFF0000, 1),
               shape(linea, 20, 40, 80, 40, 0xFFFFFF, 1),
               shape(riquadro, 120, 60, 100, 20, 0xFF0000, 0),
               {figura, 50, 70, 0, 0, 0, 0, " C:\\MIRWIN\\LOGO.BMP ", "", 0, 0},
               right_end,
               text_at(100, 110, "sinistra")}});
    const QImage page = made.page(1);
    constexpr double point = 25.4 / 96;
    const std::tuple<double, double, const char*> dots[] = {
        {30, 30, "red"},
        {50, 45, "blue"},
        {50, 40, "white"},
        {110, 20, "blue"},
        {110, 40, "white"},
        {50 + 0.5 * point, 70 + 0.5 * point, "red"},
        {50 + 1.5 * point, 70 + 0.5 * point, "white"}};
    for (const auto& [x, y, colour] : dots) {
        EXPECT_EQ(printed_pdf::at(page, x, y), QColor(colour)) << x << " " << y;
    }
    EXPECT_NEAR(made.place_of("1.234,50").right(), 95, 0.1);
    EXPECT_NEAR(made.place_of("sinistra").left(), 100, 0.1);
}

}  // namespace
}  // namespace vantora::test
