#include <gtest/gtest.h>

#include <QDialog>
#include <QPrintPreviewWidget>
#include <QProgressDialog>

#include "desktop/printing/system_printer.h"
#include "desktop/system_launcher.h"
#include "support/file_bytes.h"
#include "support/printed_pdf.h"
#include "support/scratch_folder.h"
#include "text/code_page.h"
#include "ui/controls.h"
#include "window_stage.h"

namespace vantora::ui::desktop {
namespace {

using vantora::test::printed_pdf;

class printing : public testing::Test {
 protected:
    printing() { test::application(); }

    [[nodiscard]] QString file(const char* name) const {
        return QString::fromStdString((folder.path() / name).string());
    }
    [[nodiscard]] printed_pdf printed(const char* name) const {
        return printed_pdf(folder.path() / name);
    }

    vantora::test::scratch_folder folder;
};

TEST_F(printing, TextsLinesAndPagesStandWhereTheyWerePut) {
    system_printer paper([&](const QString&) { return file("ordine.pdf"); }, {});
    const font small{"Arial", 10, false, false};
    const double width = paper.text_width("Quantità"_cp, small);
    EXPECT_NEAR(paper.text_width("AV", small), 2 * paper.text_width("A", small), 1e-9) << "kerned";
    paper.text(100, 60, "Quantità"_cp, small, 0);
    paper.text(20, 250, "Verdana", {"Verdana", 24, true, false}, 0);
    paper.new_page();
    paper.line(10, 100, 200, 100, 0);
    paper.new_page();
    paper.end_job();

    const printed_pdf pdf = printed("ordine.pdf");
    EXPECT_TRUE(pdf.has_pages(2)) << "no empty page at the end";
    EXPECT_TRUE(pdf.facts().contains("(A4)"));
    EXPECT_TRUE(pdf.fonts().contains(QRegularExpression("LiberationSans|Arial")));
    EXPECT_TRUE(pdf.fonts().contains(QRegularExpression("DejaVuSans-?Bold|Verdana")));
    const QRectF word = pdf.place_of("Quantità");
    EXPECT_NEAR(word.left(), 100, 0.3);
    EXPECT_NEAR(word.width(), width, 0.3);
    EXPECT_NEAR(word.top(), 60, 0.3);
    EXPECT_NEAR(pdf.place_of("Verdana").left(), 20, 0.3);
    const std::tuple<double, double, const char*> dots[] = {
        {9.7, 100, "white"},   {10.2, 100, "black"}, {199.8, 100, "black"},
        {200.3, 100, "white"}, {100, 99.7, "white"}, {100, 100.3, "white"}};
    const QImage line = pdf.page(2);
    for (const auto& [x, y, colour] : dots) {
        EXPECT_EQ(printed_pdf::at(line, x, y), QColor(colour)) << x << " " << y;
    }
}

TEST_F(printing, TheInstalledProgramTakesThePlaceOfOneInTheSuiteThatIsMissingALinkOrOlder) {
    namespace fs = std::filesystem;
    const fs::path in_suite = folder.path() / "suite" / "mirxpdf";
    const fs::path installed = folder.path() / "mirxpdf";
    const fs::path told = folder.path() / "told";
    fs::create_directory(in_suite.parent_path());
    system_launcher programs([&](std::string_view) { return in_suite.string(); });
    programs.prefer_installed(installed.parent_path(), "/a drive");
    const auto started = [&] {
        fs::remove(told);
        EXPECT_EQ(programs.run("\\mirxpdf a b").is, started_program::how::well);
        return vantora::test::bytes_of(told);
    };
    const auto make = [&](const fs::path& program, const char* name) {
        vantora::test::put(
            program, "#!/bin/sh\nprintf '%s|' " + std::string(name) + " \"$@\" >" + told.string());
        permissions(program, fs::perms::owner_all);
    };
    make(in_suite, "suite");
    EXPECT_EQ(started(), "suite|a b|") << "none is installed";
    make(installed, "installed");
    fs::last_write_time(in_suite, fs::last_write_time(installed) + std::chrono::seconds(1));
    EXPECT_EQ(started(), "suite|a b|") << "newer, somebody put it there";
    fs::last_write_time(in_suite, fs::last_write_time(installed) - std::chrono::seconds(1));
    EXPECT_EQ(started(), "installed|--drive|/a drive|a b|") << "older";
    fs::rename(in_suite, folder.path() / "elsewhere");
    EXPECT_EQ(started(), "installed|--drive|/a drive|a b|") << "missing";
    fs::create_symlink(folder.path() / "elsewhere", in_suite);
    EXPECT_EQ(started(), "installed|--drive|/a drive|a b|") << "a link";
}

TEST_F(printing, AProgramIsWaitedForAndTellsWhatWentWrong) {
    const auto program = folder.path() / "mirxpdf";
    system_launcher programs([&](std::string_view) { return program.string(); });
    using enum started_program::how;
    EXPECT_EQ(programs.run("x a").is, not_started);
    for (const int code : {0, 1}) {
        vantora::test::put(program,
                           "#!/bin/sh\nsleep 0.2\necho \"mirxpdf: $QT_QPA_PLATFORM è $1\" >&2\n"
                           "exit " +
                               std::to_string(code) + "\n");
        permissions(program, std::filesystem::perms::owner_all);
        const started_program end = programs.run("x a b");
        EXPECT_EQ(end.is, code == 0 ? well : failed);
        EXPECT_EQ(end.told, "offscreen è a b"_cp);
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
    EXPECT_FALSE(printed("uno.pdf").place_of("primo").isEmpty());
    EXPECT_FALSE(printed("tre.pdf").place_of("terzo").isEmpty());
    EXPECT_TRUE(printed("tre.pdf").place_of("secondo").isEmpty());
    const QImage wide = printed("tre.pdf").page(1);
    EXPECT_GT(wide.width(), wide.height());
}

TEST_F(printing, ALongJobThatIsStoppedLeavesNothing) {
    vantora::test::put(folder.path() / "c'era.pdf", "di prima");
    system_printer paper([&](const QString&) { return file("c'era.pdf"); }, {});
    const auto stop = [] {
        for (QWidget* open : QApplication::topLevelWidgets()) {
            if (auto* shown = qobject_cast<QProgressDialog*>(open)) shown->cancel();
        }
    };
    for (const bool while_drawing : {false, true}) {
        bool goes_on = true;
        for (int line = 0; line < 40 && goes_on; ++line) {
            paper.text(20, 20, "riga", {}, 0);
            paper.new_page();
            if (!while_drawing && line == 20) stop();
            goes_on = paper.goes_on(line / 40.0);
        }
        EXPECT_EQ(goes_on, while_drawing);
        if (while_drawing) stop();
        goes_on ? paper.end_job() : paper.drop_job();
        EXPECT_EQ(vantora::test::bytes_of(folder.path() / "c'era.pdf"), "di prima");
    }
    paper.text(20, 20, "ultima", {}, 0);
    paper.end_job();
    EXPECT_TRUE(printed("c'era.pdf").has_pages(1));
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
        paper.set_note("in fondo");
        paper.set_orientation(printer::landscape);
        paper.text(100, 60, "prima", {}, 0);
        paper.new_page();
        paper.text(20, 30, "seconda", {}, 0);
        paper.new_page();
        paper.set_orientation(printer::upright);
        paper.end_job();
        EXPECT_EQ(asked.size(), print ? 1 : 0);
        EXPECT_EQ(paper.last_job_unwanted(), !print);
    }
    EXPECT_EQ(shown_pages, 2);
    EXPECT_EQ(paper.orientation(), printer::upright);
    EXPECT_TRUE(printed("visto.pdf").has_pages(2));
    EXPECT_NEAR(printed("visto.pdf").place_of("prima").left(), 100, 0.3);
    EXPECT_GT(printed("visto.pdf").place_of("fondo").top(), 195) << "of 210 millimetres";
    const QImage second = printed("visto.pdf").page(2);
    EXPECT_GT(second.width(), second.height());
}

}  // namespace
}  // namespace vantora::ui::desktop
