#include <QCalendarWidget>
#include <QDateEdit>
#include <QLabel>

#include "customer/mirdata.h"
#include "customer/mirorcx.h"
#include "program_window.h"
#include "store/records/order_block.h"

namespace vantora::ui::desktop {
namespace {

using charts_window = test::program_window;

TEST_F(charts_window, EveryBarOpensTheListBehindItByKeyAndByMouse) {
    company.customers({vantora::test::customer_named("ROSSI SPA")});
    std::vector<rec_orc> rows(righe_blocco);
    for (rec_orc& row : rows) {
        row.numero = "7/A";
        row.data = row.data_evasione = "20240506";
        row.cliente = 1;
    }
    rows.front().quantita = 3;
    rows.front().prezzo = 10;
    company.files.orc.write_block(1, rows);
    company.counter(contatori::ordini, 1);

    const auto charts = [&] { return bench.find("grafici"); };
    const auto first_cell = [&] { return table()->model()->index(0, 0).data().toString(); };
    const auto listed = [&](const char* title) {
        EXPECT_EQ(front(), "quadro");
        EXPECT_FALSE(charts()->isVisible());
        EXPECT_EQ(first_cell(), "7/A");
        EXPECT_TRUE(bench.find<QLabel>("esito")->text().startsWith(title));
        QTest::keyClick(table(), Qt::Key_Escape);
    };
    run({[&] { QTest::keyClick(table(), Qt::Key_B, Qt::ControlModifier); },
         [&] {
             EXPECT_TRUE(charts()->isVisible());
             EXPECT_EQ(first_cell(), "Da evadere per settimana");
             QTest::keyClick(table(), Qt::Key_Right);
             QTest::keyClick(table(), Qt::Key_Right);
             QTest::keyClick(table(), Qt::Key_Return);
         },
         [&] { listed("ROSSI SPA: 1 ordine"); },
         [&] {
             EXPECT_TRUE(charts()->isVisible());
             EXPECT_EQ(table()->currentIndex().row(), 2) << "where it was left";
             QTest::mouseClick(charts(), Qt::LeftButton, {}, {30, 45});
         },
         [&] { listed("In ritardo (1): 1 ordine"); }});
}

using customer_window = test::program_window;

/// REQUIRES: the picker's calendar is open.
void click_day(const QDateEdit& picker, int number) {
    auto* days = picker.calendarWidget()->findChild<QTableView*>();
    const QModelIndex day = days->model()->match(days->model()->index(2, 1), 0, number).at(0);
    QTest::mouseClick(days->viewport(), Qt::LeftButton, {}, days->visualRect(day).center());
}

TEST_F(customer_window, TheDateDialogLeavesWhenItsCalendarCloses) {
    app.data_proposta = "03/04/2025";
    const auto open = [this] { bench.desk.dispatch([this] { app.mirdata->show_modal(); }); };
    const auto open_calendar = [this] {
        EXPECT_EQ(bench.front.front_window()->windowModality(), Qt::ApplicationModal);
        EXPECT_EQ(app.data_scelta, "");
        auto* picker = bench.find<QDateEdit>("nuovadata");
        QTest::mousePress(picker, Qt::LeftButton, {}, QPoint(picker->width() - 6, 10));
        EXPECT_TRUE(picker->calendarWidget()->isVisible());
        return picker->calendarWidget();
    };
    run({open,
         [&] {
             open_calendar();
             click_day(*bench.find<QDateEdit>("nuovadata"), 15);
         },
         [&] {
             EXPECT_FALSE(app.mirdata.loaded());
             EXPECT_EQ(app.data_scelta, "15/04/2025");
             app.data_scelta.clear();
         },
         open, [&] { QTest::keyClick(open_calendar(), Qt::Key_Escape); },
         [&] {
             EXPECT_FALSE(app.mirdata.loaded());
             EXPECT_EQ(app.data_scelta, "03/04/2025");
         }});
}

TEST_F(customer_window, TodayChosenInACalendarIsWrittenOverWhatIsNoDay) {
    bench.time.stop_at({{2025, 4, 15}, 10, 0, 0});
    company.customers({vantora::test::customer_named("Zeta")});
    std::vector<std::function<void()>> steps{
        [&] { QTest::keyClick(table(), Qt::Key_N, Qt::ControlModifier); }};
    for (const char* wrong : {"boh", ""}) {
        steps.emplace_back([this, wrong] {
            ASSERT_EQ(front(), "mirorcx");
            app.mirorcx->Text3[1].set_text(wrong);
            auto* picker = bench.find<QDateEdit>("text5(0)");
            QTest::mousePress(picker, Qt::LeftButton, {}, QPoint(picker->width() / 2, 10));
            ASSERT_TRUE(picker->calendarWidget()->isVisible());
            click_day(*picker, 15);
            EXPECT_EQ(text("Text3(1)"), "15/04/2025") << wrong;
            picker->calendarWidget()->window()->close();
            bench.front.front_window()->activateWindow();
        });
    }
    run(steps);
}

}  // namespace
}  // namespace vantora::ui::desktop
