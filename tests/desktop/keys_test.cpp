#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <set>

#include "desktop/keys/keys.h"
#include "desktop/keys/manual.h"
#include "program_window.h"

namespace vantora::ui::desktop {
namespace {

using key_set = std::set<std::string>;

std::string portable(QString key) {
    const std::pair<const char*, const char*> names[] = {
        {"Maiusc", "Shift"},     {"Canc", "Del"},     {"Pag↑", "PgUp"},
        {"Pag↓", "PgDown"},      {"Invio", "Return"}, {"Page up", "PgUp"},
        {"Page down", "PgDown"}, {"↑", "Up"},         {"↓", "Down"},
    };
    for (const auto& [local, name] : names) key.replace(QString::fromUtf8(local), name);
    return QKeySequence(key).toString(QKeySequence::PortableText).toStdString();
}

/// What a pattern finds in the part of a file of the project that begins with a heading.
key_set keys_in(const char* file, const char* from, const char* to, const char* pattern) {
    QFile text(QString(SOURCE_FOLDER) + file);
    EXPECT_TRUE(text.open(QIODevice::ReadOnly)) << file;
    const QString part = QString::fromUtf8(text.readAll()).section(from, 1).section(to, 0, 0);
    key_set keys;
    auto found = QRegularExpression(QString::fromUtf8(pattern)).globalMatch(part);
    while (found.hasNext()) keys.insert(portable(found.next().captured(1)));
    return keys;
}

using keys = test::program_window;

TEST_F(keys, OverviewManualAndReadmeTellTheKeysThatTheWindowsHave) {
    run({[&] {
        QStringList told, shown;
        QWidget* front = bench.front.front_window();
        for (const key_help* one : keys_of(*front)) told << one->native_keys() << one->what();
        QTimer::singleShot(0, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            for (const QLabel* one : dialog->findChildren<QLabel*>()) shown << one->text();
            dialog->reject();
        });
        QTest::keyClick(front, Qt::Key_Question, Qt::ControlModifier);
        front->activateWindow();
        EXPECT_EQ(shown, told);
        EXPECT_TRUE(told.contains("Registra un nuovo ordine"));
        for (screen_place* place : all_screens()) place->use();
        key_set windows;
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            for (const key_help* one : keys_of(*window)) {
                EXPECT_FALSE(one->what().isEmpty()) << one->keys().toStdString();
                for (const QString& key : one->keys().split(' ')) windows.insert(portable(key));
            }
        }
        ASSERT_GT(windows.size(), 40U);
        const key_set manual =
            keys_in("/docs/30-keys.md", "# Tutti i tasti", "</div>", R"(\[\[(.+?)\]\])");
        const key_set readme =
            keys_in("/README.md", "## Keys", "## PDF",
                    R"(\b((?:(?:Ctrl|Alt|Shift)\+)+(?:Del|F\d+|\w\b|\?)|F\d+\b))");
        const key_set of_boxes{"Return", "Esc", "S", "N"};
        for (const std::string& key : windows) EXPECT_TRUE(manual.contains(key)) << key;
        for (const std::string& key : manual) {
            EXPECT_TRUE(windows.contains(key) || of_boxes.contains(key)) << key;
        }
        ASSERT_GT(readme.size(), 20U);
        for (const std::string& key : readme) EXPECT_TRUE(windows.contains(key)) << key;
    }});
}

TEST_F(keys, WhatIsTypedWhileTheNextWindowComesIsTypedInThat) {
    company.customers({vantora::test::customer_named("Rossi")});
    QWidget* before = nullptr;
    run({[&] {
             before = bench.front.front_window();
             QTest::keyClick(table(), Qt::Key_N, Qt::ControlModifier);
             EXPECT_TRUE(before->isVisible());
             QTest::keyClicks(before->focusWidget(), "rossi");
             QTest::keyClick(before->focusWidget(), Qt::Key_Escape);
         },
         [&] {
             ASSERT_EQ(front(), "mirorc");
             QTest::keyClick(table(), Qt::Key_N, Qt::ControlModifier);
             QTest::keyClicks(before->focusWidget(), "rossi");
         },
         [&] {
             EXPECT_FALSE(before->isVisible());
             EXPECT_EQ(text("nome"), "rossi");
         }});
}

TEST_F(keys, F1FindsAnArticleInADescriptionAndElseOpensTheManual) {
    run({[&] {
        const QKeyEvent f1(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
        QLineEdit cell;
        EXPECT_TRUE(asks_for_manual(f1, &cell) && asks_for_manual(f1, nullptr));
        EXPECT_FALSE(asks_for_manual({QEvent::KeyPress, Qt::Key_F2, Qt::NoModifier}, &cell));
        keep_f1(cell);
        EXPECT_FALSE(asks_for_manual(f1, &cell));
    }});
    const QTemporaryDir folder;
    QDir(folder.path()).mkpath("bin");
    for (const char* better : {"manual/%1.html", "share/doc/vantora-ordini/%1.html",
                               "manual/%1.pdf", "share/doc/vantora-ordini/%1.pdf"}) {
        const QString file = folder.filePath(QString(better).arg("vantora-ordini-manuale"));
        QDir().mkpath(QFileInfo(file).path());
        ASSERT_TRUE(QFile(file).open(QIODevice::WriteOnly));
        EXPECT_EQ(manual_file(folder.filePath("bin")), file);
    }
}

}  // namespace
}  // namespace vantora::ui::desktop
