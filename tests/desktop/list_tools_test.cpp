#include <QClipboard>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTableView>
#include <QTemporaryDir>

#include <sys/resource.h>

#include "desktop/dialogs/file_dialog.h"
#include "desktop/lists/list_saving.h"
#include "store/drive.h"
#include "support/file_bytes.h"
#include "support/scratch_folder.h"
#include "ui/controls.h"
#include "window_stage.h"

namespace vantora::ui::desktop {
namespace {

/// A screen with a list of six rows, of which the last is blank.
class listed final : public form {
 public:
    explicit listed(ui::desk& on) : form(on, "prova", "Prova") {
        add("elenco", elenco);
        elenco.set_columns({{"Numero", 1}, {"Nome", 3}, {"nascosta", 0}});
        elenco.set_rows(7);
        const char* names[] = {"Alfa", "Beta", "Gamma", "Alfabeta", "Delta; \"D\"\n\xC8"};
        for (int row = 1; row <= 5; ++row) {
            elenco.set_text(row, 0, std::to_string(row) + ",5");
            elenco.set_text(row, 1, names[row - 1]);
            elenco.set_text(row, 2, "alfa");
        }
        elenco.on_click = [this] { ++clicks; };
    }

    grid elenco;
    int clicks = 0;
};

class list_tools : public test::window_of<listed> {
 protected:
    QTableView* table() { return bench.find<QTableView>("elenco"); }
    QLineEdit* line() { return bench.find<QLineEdit>("elenco_testo_da_trovare"); }
    void click(int row, Qt::KeyboardModifiers with = {}) {
        const QRect cell = table()->visualRect(table()->model()->index(row, 1));
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, with, cell.center());
    }
    QString copied() {
        QTest::keyClick(table(), Qt::Key_C, Qt::ControlModifier);
        return QApplication::clipboard()->text();
    }
};

TEST_F(list_tools, FindWalksTheMatchesOfTheColumnsThatShow) {
    run({[&] {
        QTest::keyClick(table(), Qt::Key_F, Qt::ControlModifier);
        ASSERT_TRUE(line()->hasFocus());
        QTest::keyClicks(line(), "alfa");
        EXPECT_EQ(screen->elenco.row(), 1);
        screen->elenco.set_text(2, 1, "ALF\xC0");
        std::vector<int> walked;
        for (const auto shift : {Qt::NoModifier, Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier,
                                 Qt::ShiftModifier}) {
            QTest::keyClick(line(), Qt::Key_Return, shift);
            walked.push_back(screen->elenco.row());
        }
        EXPECT_EQ(walked, (std::vector{2, 4, 1, 4, 2})) << "the list changed while it was searched";
        EXPECT_EQ(screen->clicks, 0);
        QTest::keyClick(line(), Qt::Key_Return, Qt::ControlModifier);
        EXPECT_EQ(screen->clicks, 1) << "taken";
        EXPECT_FALSE(line()->isVisible());
        EXPECT_TRUE(table()->hasFocus());
        screen->elenco.set_row(3);
        QTest::keyClick(table(), Qt::Key_F, Qt::ControlModifier);
        EXPECT_EQ(screen->elenco.row(), 4) << "it begins where the mark stands now";
    }});
}

TEST_F(list_tools, RowsAreMarkedAndCopiedWithoutTouchingTheList) {
    run({[&] {
        click(1);
        EXPECT_EQ(screen->clicks, 1);
        EXPECT_EQ(copied(), "2,5\tBeta\n");
        click(3, Qt::ShiftModifier);
        click(2, Qt::ControlModifier);
        EXPECT_EQ(copied(), "2,5\tBeta\n4,5\tAlfabeta\n");
        EXPECT_EQ(screen->elenco.row(), 2);
        EXPECT_EQ(screen->clicks, 1);
        QTest::keyClick(table(), Qt::Key_Escape);
        QTest::keyClick(table(), Qt::Key_Up, Qt::ShiftModifier);
        EXPECT_EQ(copied(), "1,5\tAlfa\n2,5\tBeta\n");
        QTest::keyClick(table(), Qt::Key_A, Qt::ControlModifier);
        EXPECT_EQ(copied().count('\n'), 5);
        EXPECT_TRUE(copied().endsWith("5,5\tDelta; \"D\" È\n"));
        screen->elenco.set_text(1, 0, "0");
        EXPECT_EQ(copied(), "2,5\tBeta\n") << "marks of a list that changed are gone";
        for (const int col : {0, 1, 2}) screen->elenco.set_text(4, col, "");
        click(2);
        click(4, Qt::ShiftModifier);
        EXPECT_EQ(copied(), "3,5\tGamma\n5,5\tDelta; \"D\" È\n") << "no blank row is marked";
    }});
}

TEST_F(list_tools, TheListIsSavedAsCsv) {
    const QTemporaryDir folder;
    const QString file = folder.filePath("elenco.csv");
    run({[&] {
        QTimer look;
        look.callOnTimeout([&] {
            QWidget* const asks = QApplication::activeModalWidget();
            if (auto* dialog = qobject_cast<QFileDialog*>(asks)) {
                dialog->selectFile(file);
                QMetaObject::invokeMethod(dialog, "accept");
            } else if (auto* told = qobject_cast<QMessageBox*>(asks)) {
                EXPECT_EQ(told->text(), "Salvato in " + file);
                QTest::keyClick(told, Qt::Key_Escape);
            }
        });
        look.start(5);
        QTest::keyClick(table(), Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
        bench.front.front_window()->activateWindow();
    }});
    QFile saved(file);
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    EXPECT_EQ(saved.readAll(),
              "\xEF\xBB\xBFNumero;Nome\r\n1,5;Alfa\r\n2,5;Beta\r\n3,5;Gamma\r\n4,5;Alfabeta\r\n"
              "5,5;\"Delta; \"\"D\"\"\nÈ\"\r\n");
}

TEST(list_saving, CellsThatASpreadsheetWouldComputeAreCopiedAndSavedAsTexts) {
    const std::pair<const char*, const char*> cells[] = {
        {"=1+1", "'=1+1"},    {"@SUM(A1)", "'@SUM(A1)"},
        {"-2+3", "'-2+3"},    {"+cmd|' /C'!A0", "'+cmd|' /C'!A0"},
        {"-12,50", "-12,50"}, {"+39 055 1", "+39 055 1"},
        {"-----", "-----"},   {"=====", "====="},
        {"A=1", "A=1"},       {"", ""},
        {" =1+1", "' =1+1"},  {" 5,00", " 5,00"}};
    for (const auto& [cell, kept] : cells) EXPECT_EQ(harmless(cell), kept);
    // Quotes go where it is pasted, and bytes that can't be shown before.
    for (const char* cell : {"\"=1+1\"", "\x01=1+1", "\n@A1"}) {
        EXPECT_TRUE(harmless(cell).starts_with('\'')) << cell;
    }
}

TEST(save_whole, AFullDiskLeavesWhatWasThereAndALinkGivesWayToAWholeFile) {
    test::application();
    const vantora::test::scratch_folder folder;
    const auto other = folder.path() / "altro";
    const auto link = folder.path() / "elenco.csv";
    vantora::test::put(other, "d'altri");
    std::filesystem::create_symlink(other, link);
    const QString name = QString::fromStdString(link.string());
    take_file_limits_as_errors();
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const rlimit little{1000, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &little);
    const QString told =
        test::told_by([&] { save_whole(name, QByteArray(100'000, 'x'), nullptr); });
    ::setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_TRUE(told.contains("elenco.csv") && told.contains("il disco è pieno"))
        << told.toStdString();
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    test::told_by([&] { save_whole(name, "nuovo", nullptr); });
    EXPECT_FALSE(std::filesystem::is_symlink(link));
    EXPECT_EQ(vantora::test::bytes_of(link), "nuovo");
    EXPECT_EQ(vantora::test::bytes_of(other), "d'altri");
    EXPECT_EQ(vantora::test::files_under(folder.path()).size(), 2U) << "nothing is left behind";
}

}  // namespace
}  // namespace vantora::ui::desktop
