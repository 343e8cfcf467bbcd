#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <csignal>
#include <sstream>

#include "desktop/outside_end.h"
#include "program_window.h"
#include "register/mirorc.h"
#include "store/archive_change.h"
#include "store/suite_paths.h"
#include "ui/script/script_front_end.h"

namespace vantora::ui::desktop {
namespace {

/// The register on a company with three orders, of which the second is deleted.
class register_window : public test::program_window {
 protected:
    register_window() {
        company.customers(
            {vantora::test::customer_named("Zeta"), vantora::test::customer_named("Alfa")});
        for (int i = 1; i <= 3; ++i) {
            order.numero = std::to_string(i);
            order.data_evasione = "20240201";
            order.cliente = static_cast<std::int16_t>(i == 1 ? 1 : 2);
            order.testo1 = "Perché no"_cp;
            order.annullato = static_cast<std::int16_t>(i == 2);
            company.files.orc.write(block_record(i, 1), order);
        }
        company.counter(contatori::ordini, 3);
    }
    QString cell(int row, int col) { return table()->model()->index(row, col).data().toString(); }
    QHeaderView* heads() { return table()->horizontalHeader(); }

    rec_orc order{};  ///< the third one's first row
};

TEST_F(register_window, ShowsAndSortsTheOrdersAsItsButtonsAndOptionsSay) {
    const auto end_of_head = [&] {
        const int right = heads()->sectionViewportPosition(3) + heads()->sectionSize(3);
        return heads()->viewport()->grab(QRect(right - 20, 0, 17, 20)).toImage();
    };
    QImage unsorted;
    run({[&] {
             unsorted = end_of_head();
             EXPECT_EQ(cell(0, 4), "Perché no");
             EXPECT_EQ(cell(1, 3), "Ordine eliminato");
             EXPECT_TRUE(table()->isColumnHidden(8));
             // A click on the head is one on its button.
             QTest::mouseClick(heads()->viewport(), Qt::LeftButton, {},
                               QPoint(heads()->sectionViewportPosition(3) + 20, 8));
         },
         [&] {
             EXPECT_EQ(cell(0, 3), "Alfa");
             EXPECT_NE(end_of_head(), unsorted) << "no arrow";
             EXPECT_TRUE(table()->hasFocus());
             // Typing searches the sorted column.
             QTest::keyClicks(table(), "ze");
             EXPECT_EQ(app.mirorc->elenco.row(), 3);
             for (const int col : {0, 4}) {
                 QWidget* button = bench.find(("srx(" + std::to_string(col) + ")").c_str());
                 const QPoint head(table()->columnViewportPosition(col), 0);
                 EXPECT_NEAR(button->mapTo(table()->window(), QPoint()).x(),
                             table()->viewport()->mapTo(table()->window(), head).x(), 2);
                 EXPECT_NEAR(button->width(), table()->columnWidth(col), 4);
             }
             QTest::mouseClick(bench.find("selvis(1)"), Qt::LeftButton, {}, QPoint(8, 8));
             EXPECT_EQ(app.parameters.gnr.vista_registro, 1);
             QTest::keyClick(bench.find("selvis(1)"), Qt::Key_Down);
             EXPECT_EQ(app.parameters.gnr.vista_registro, 2);
         }});
}

TEST_F(register_window, RowsOpenByClickAndByEnter) {
    run({[&] { click_cell(1, 3); }, answer("Ordine annullato", Qt::Key_Return),
         [&] {
             EXPECT_FALSE(box());
             QTest::keyClick(table(), Qt::Key_Up);
             EXPECT_EQ(app.mirorc->elenco.row(), 1);
             QTest::keyClick(table(), Qt::Key_F5);
             EXPECT_EQ(app.mirorc->elenco.row(), 1) << "the mark stays on its order";
             QTest::keyClick(table(), Qt::Key_Down);
             QTest::keyPress(table(), Qt::Key_Return);
         },
         [&] {
             ASSERT_TRUE(box());
             // Still held down, it doesn't answer what it opened.
             QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
             QApplication::sendEvent(box(), &held);
             ASSERT_TRUE(box());
             // Nor where the repetition comes as two events of one moment.
             for (const auto type : {QEvent::KeyRelease, QEvent::KeyPress}) {
                 QKeyEvent part(type, Qt::Key_Return, Qt::NoModifier, "\r");
                 part.setTimestamp(7);
                 QApplication::sendEvent(box(), &part);
                 ASSERT_TRUE(box());
             }
             QTest::keyRelease(box(), Qt::Key_Return);
             QTest::keyClick(box(), Qt::Key_Return);
         },
         [&] {
             EXPECT_FALSE(box());
             EXPECT_EQ(app.selezione_1, 2);
         }});
}

TEST_F(register_window, ALongListTellsHowFarItIsAndTheUserWaits) {
    run({[&] {
             disk.read_takes = std::chrono::milliseconds(200);
             QTimer::singleShot(0, table(), [&] {
                 auto* bar = bench.find<QProgressBar>("list_bar");
                 ASSERT_TRUE(bar);
                 EXPECT_TRUE(bar->isVisible() && QGuiApplication::overrideCursor());
                 EXPECT_TRUE(table()->geometry().contains(bar->geometry())) << "in its place";
                 bench.press_button("bottone(2)");
                 bench.front.front_window()->close();
                 EXPECT_FALSE(bench.desk.ended());
             });
             bench.desk.dispatch([&] { app.mirorc->build_list(); });
             EXPECT_FALSE(bench.find<QProgressBar>("list_bar"));
             EXPECT_FALSE(QGuiApplication::overrideCursor()) << "nor is it busy";
             EXPECT_EQ(bench.desk.active(), &app.mirorc.use());
         },
         [] { ADD_FAILURE() << "the window was closed meanwhile"; }});
}

TEST_F(register_window, AnotherStationThatIsWaitedForIsSeenAndTheUserWaits) {
    run({[&] {
             auto other = files.open_records(company_path(1, "tot"));
             other->try_lock();
             QTimer::singleShot(0, table(), [&] {
                 auto* note = bench.find<QLabel>("station_note");
                 ASSERT_TRUE(note);
                 EXPECT_TRUE(note->isVisible());
                 EXPECT_TRUE(note->text().startsWith("Attesa di un'altra postazione: ")) << "who";
                 bench.press_button("bottone(2)");
                 bench.front.front_window()->close();
                 other.reset();
             });
             bench.desk.dispatch([&] { EXPECT_TRUE(archive_change(app.archives).may_write()); });
             EXPECT_FALSE(bench.find<QLabel>("station_note"));
             EXPECT_EQ(bench.desk.active(), &app.mirorc.use());
             EXPECT_FALSE(bench.desk.ended());
         },
         [] { ADD_FAILURE() << "the window was closed meanwhile"; }});
}

TEST_F(register_window, ATooltipTellsWhatStandsBehindARowAndThatItIsLate) {
    order.quantita = 5;
    company.files.orc.write(block_record(3, 1), order);
    const auto told = [&](int at, int role = Qt::ToolTipRole) {
        return table()->model()->index(at, 0).data(role).toString();
    };
    bench.time.stop_at({{2024, 2, 3}, 10, 0, 0});
    run({[&] {
        EXPECT_TRUE(told(2).contains("In ritardo di 2 giorni<br>5,00"));
        EXPECT_EQ(told(1), "") << "deleted";
        EXPECT_EQ(told(2, Qt::AccessibleTextRole), "3, In ritardo di 2 giorni");
        bench.time.stop_at({{2024, 2, 1}, 23, 0, 0});
        EXPECT_FALSE(told(2).contains("ritardo"));
    }});
}

TEST_F(register_window, AskedToEndFromOutsideItEndsWhateverIsOpen) {
    run({[&] { click_cell(1, 3); },
         [&] {
             ASSERT_TRUE(box());
             QDialog of_the_system;
             of_the_system.show();
             const outside_end ending([] { return true; }, [&] { bench.front.end_by_user(); });
             std::raise(SIGTERM);
             EXPECT_TRUE(QTest::qWaitFor([&] { return bench.desk.ended().has_value(); }, 2000));
             EXPECT_FALSE(of_the_system.isVisible());
         }});
    EXPECT_FALSE(app.archives.tot.is_open());
}

TEST_F(register_window, WindowsAndDraggedColumnsKeepTheirSizesFromRunToRun) {
    int width = 0;
    run({[&] {
        bench.front.front_window()->resize(700, 500);
        QCoreApplication::processEvents();
        const int designed = table()->columnWidth(1);
        heads()->resizeSection(1, designed + 60);
        QTest::mouseRelease(heads()->viewport(), Qt::LeftButton);
        width = table()->columnWidth(1);
        EXPECT_GT(width, designed + 30);
        bench.desk.dispatch([&] { app.mirorc->hide(); });
    }});
    const auto run_again = [&](const std::function<void(QWidget&)>& look) {
        test::window_stage later;
        program again(disk, later.desk, pictures);
        later.run([&] { start(again, "ordini001"); }, {[&] {
                      look(*later.front.front_window());
                      later.desk.dispatch([&] { again.mirorc->hide(); });
                  }});
    };
    run_again([&](QWidget& window) {
        EXPECT_EQ(window.size(), QSize(700, 500));
        EXPECT_NEAR(window.findChild<QTableView*>("elenco")->columnWidth(1), width, 2);
        window.showMaximized();
    });
    run_again([](QWidget& window) { EXPECT_TRUE(window.isMaximized()); });
    QSettings().remove("windows");
}

TEST_F(register_window, KeepsItselfFreshWithMarkSortAndPlaceButNotInAGestureOrAScript) {
    order.annullato = 0;
    const auto take_order = [&](int number) {
        order.numero = std::to_string(number);
        order.cliente = static_cast<std::int16_t>(1 + number % 2);
        company.files.orc.write(block_record(number, 1), order);
        company.counter(contatori::ordini, number);
    };
    for (int i = 4; i <= 60; ++i) take_order(i);
    const auto come_back_to_it = [] {
        emit qApp->applicationStateChanged(Qt::ApplicationActive);
        QTest::qWait(20);
    };
    run({[&] { bench.press_button("srx(3)"); },
         [&] {
             ui::grid& list = app.mirorc->elenco;
             list.set_top_row(36);
             list.set_row(40);
             const std::string marked(list.text(40, mirorc::ordine));
             const std::string top(list.text(list.top_row(), mirorc::ordine));
             take_order(61);
             QWidget* window = bench.front.front_window();
             QTest::mousePress(window, Qt::LeftButton, {}, QPoint(1, 1));
             come_back_to_it();
             EXPECT_EQ(list.row(), 40);
             QTest::mouseRelease(window, Qt::LeftButton, {}, QPoint(1, 1));
             come_back_to_it();
             EXPECT_EQ(list.row(), 41) << "an order of Alfa's came before those of Zeta";
             EXPECT_EQ(list.text(41, mirorc::ordine), marked);
             EXPECT_EQ(list.text(list.top_row(), mirorc::ordine), top);
             order.testo1 = "cambiato";
             company.files.orc.write(block_record(61, 1), order);
             come_back_to_it();
             int changed = 0;
             for (int row = 1; row < list.rows(); ++row) {
                 changed += list.text(row, mirorc::descrizione) == "cambiato";
             }
             EXPECT_EQ(changed, 1);
         }});
    test::window_stage later;
    program again(disk, later.desk, pictures);
    std::stringstream commands("rows mirorc.elenco\nrows mirorc.elenco\n"), replies;
    script::interpreter by(later.desk, later.time, later.paper, later.programs);
    script::script_runner runner(by, commands, replies);
    const auto step = [&, steps = 0]() mutable {
        if (++steps == 2) take_order(62);
        if (steps == 2) come_back_to_it();
        return runner.step();
    };
    later.front.served_by(step, {});
    later.desk.dispatch([&] { start(again, "ordini001"); });
    later.front.run();
    runner.write_reply();
    EXPECT_EQ(QString::fromStdString(replies.str()).count("\"61\""), 4) << replies.str();
    EXPECT_FALSE(replies.str().find("\"62\"") != std::string::npos);
}

TEST_F(register_window, AScriptOfManyOrdersLeavesNoWindowsBehind) {
    std::stringstream commands, replies;
    for (int i = 0; i < 12; ++i) commands << "click mirorc.bottone(2)\nclose mirorcx\n";
    script::interpreter by(bench.desk, bench.time, bench.paper, bench.programs);
    script::script_runner runner(by, commands, replies);
    bench.front.served_by([&] { return runner.step(); }, {});
    bench.desk.dispatch([&] { start(app, "ordini001"); });
    bench.front.run();
    runner.write_reply();
    EXPECT_EQ(QString::fromStdString(replies.str()).count("\"screen\":\"mirorcx\""), 12);
    EXPECT_LT(QApplication::topLevelWidgets().size(), 12);
}

}  // namespace
}  // namespace vantora::ui::desktop
