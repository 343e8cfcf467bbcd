#include "app/desktop_company_choice.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QListWidget>
#include <QProcess>
#include <fstream>

#include "support/scratch_folder.h"
#include "window_stage.h"

namespace vantora {
namespace {

TEST(company_choice, OpensTheCompanyTakenAndNothingWhereThereIsNone) {
    ui::desktop::test::application();
    test::scratch_folder folder;
    const auto general = folder.path() / "MIRWIN/Mirwin";
    for (const char* one : {"miraz0.112", "MIRAZ0.007", "miraz0.12", "miraz0.x12", "miraz1.001"}) {
        create_directories(general / one);
    }
    std::ofstream(general / "miraz0.001") << "no folder";
    std::ofstream(general / "MIRAZ0.007/vantora.int") << "Perch\xE9 no S.r.l.\r\nvia Roma\r\n";

    for (const bool proposed : {false, true}) {
        company_choice choice(folder.path(), "no such program");
        choice.show();
        auto* list = choice.findChild<QListWidget*>();
        ASSERT_EQ(list->count(), 2);
        EXPECT_EQ(list->item(0)->text(), QString::fromUtf8("007   Perché no S.r.l."));
        EXPECT_EQ(list->item(1)->text(), "112   ");
        if (!proposed) QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(&choice, Qt::Key_Return);
        EXPECT_EQ(choice.result(), QDialog::Accepted);
        EXPECT_EQ(choice.argument(), "ordini112");
        EXPECT_EQ(company_choice::last_drive(), folder.path());
    }

    // A folder inside the suite's tree is understood, and one that holds a single drive.
    EXPECT_TRUE(drive_around(general / "MIRAZ0.007").drives == std::vector{folder.path()});
    const test::scratch_folder above;
    std::filesystem::copy(folder.path(), above.path() / "disco",
                          std::filesystem::copy_options::recursive);
    for (const bool second : {false, true}) {
        if (second) create_directories(above.path() / "copia/mirwin/mirwin/miraz0.003");
        company_choice typed("/no/such/folder", "no such program");
        typed.show();
        auto* place = typed.findChild<QLineEdit*>();
        place->setFocus();
        place->selectAll();
        QTest::keyClicks(place, QString::fromStdString(above.path().string()));
        QTest::keyClick(place, Qt::Key_Return);
        EXPECT_EQ(typed.result(), 0) << "it shows what it found first";
        EXPECT_EQ(typed.findChild<QListWidget*>()->count(), second ? 0 : 2);
        EXPECT_TRUE(second || typed.drive() == above.path() / "disco");
    }

    company_choice nothing(folder.path() / "elsewhere", "no such program");
    nothing.show();
    QTest::keyClick(&nothing, Qt::Key_Return);
    EXPECT_EQ(nothing.result(), 0);
}

TEST(desktop_program, TakesItsCommandsFromAScriptThatCanBeOpened) {
    ui::desktop::test::application();  // no display is needed from here on
    const test::scratch_folder folder;
    const auto script = folder.path() / "comandi";
    std::ofstream(script)
        << "answer yes\nanswer no\nclick mirorc.srtt(0)\nclick mirorc.bottone(0)\n";
    const auto run = [&](const std::string& file) {
        QProcess program;
        program.start(DESKTOP_PROGRAM, {"--drive", QString::fromStdString(folder.path().string()),
                                        "--script", QString::fromStdString(file), "ordini001"});
        program.waitForFinished();
        return std::pair(program.exitCode(), program.readAllStandardOutput().count("\"ok\":true"));
    };
    EXPECT_EQ(run(script.string()), std::pair(0, qsizetype{4})) << "kept answers are given";
    EXPECT_EQ(run("/no/such/file").first, 2);
}

}  // namespace
}  // namespace vantora
