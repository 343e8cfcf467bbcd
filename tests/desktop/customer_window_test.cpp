#include <QCalendarWidget>
#include <QDateEdit>
#include <QScrollBar>

#include "customer/mirdata.h"
#include "customer/mirorcx.h"
#include "program_window.h"

namespace vantora::ui::desktop {
namespace {

/// A new order over three customers, the register already left.
class customer_window : public test::program_window {
 protected:
    customer_window() {
        using vantora::test::customer_named;
        company.customers(
            {customer_named("Zeta"), customer_named("Alfa"), customer_named("Perché no"_cp)});
    }
    void run(std::vector<std::function<void()>> steps) {
        steps.insert(steps.begin(), [this] { bench.press_button("bottone(2)"); });
        program_window::run(std::move(steps));
    }
};

TEST_F(customer_window, TheCursorAndTheSearchMoveTogether) {
    run({[&] {
             auto* cursor = bench.find<QScrollBar>("HScroll1");
             EXPECT_EQ(cursor->minimum(), 1);
             EXPECT_EQ(cursor->maximum(), 3);
             QTest::keyClick(cursor, Qt::Key_Right);
             EXPECT_EQ(text("Text2(0)"), "Perché no");
             cursor->setValue(3);
             EXPECT_EQ(text("Text2(0)"), "Zeta");
             QTest::keyClicks(bench.find("nome"), "perch");
             QTest::keyClick(bench.find("nome"), Qt::Key_Return);
         },
         [&] {
             EXPECT_EQ(bench.find<QScrollBar>("HScroll1")->value(), 2);
             EXPECT_EQ(text("Text2(0)"), "Perché no");
             EXPECT_EQ(text("nome"), "");
             EXPECT_TRUE(bench.find("nome")->hasFocus());
         }});
}

TEST_F(customer_window, ARowOfTheListIsTakenByAClick) {
    run({[&] {
             QTest::keyClicks(bench.find("nome"), "ta");
             bench.press_button("b_lista");
         },
         [&] {
             EXPECT_EQ(text("selnome"), "ta");
             EXPECT_EQ(bench.front.front_window()->windowModality(), Qt::ApplicationModal);
             EXPECT_TRUE(table()->isColumnHidden(5));
             click_cell(0, 2);
         },
         [&] {
             EXPECT_EQ(front(), "mirorcx");
             EXPECT_EQ(text("Text2(0)"), "Zeta");
             bench.press_button("b_lista");
         },
         [&] {
             EXPECT_EQ(front(), "mirsel");
             bench.front.front_window()->close();
         },
         [&] {
             EXPECT_EQ(front(), "mirorcx");
             bench.front.front_window()->close();
         },
         [&] {
             EXPECT_EQ(front(), "mirorc");
             EXPECT_FALSE(app.mirorcx.loaded());
         }});
}

TEST_F(customer_window, TypedAndPickedDatesKeepInStep) {
    run({[&] {
             auto* typed = bench.find<QLineEdit>("Text3(1)");
             typed->selectAll();
             QTest::keyClicks(typed, "3/4/2025");
             auto* picker = bench.find<QDateEdit>("text5(0)");
             EXPECT_EQ(picker->date(), QDate(2025, 4, 3));
             EXPECT_EQ(typed->text(), "3/4/2025") << "what is typed stays";
             picker->setDate(QDate(2026, 12, 31));
             EXPECT_EQ(typed->text(), "31/12/2026");
             typed->selectAll();
             QTest::keyClicks(typed, "3/4/2025");
             bench.press_button("bottone");
         },
         [&] {
             ASSERT_TRUE(box());
             EXPECT_EQ(box()->text(), "La data dell'ordine non è corretta");
             QTest::keyClick(box(), Qt::Key_Return);
         },
         [&] { EXPECT_TRUE(bench.find("Text3(1)")->hasFocus()); }});
}

TEST_F(customer_window, TheDateDialogLeavesWhenItsCalendarCloses) {
    app.data_proposta = "03/04/2025";
    const auto open = [this] { bench.desk.dispatch([this] { app.mirdata->show_modal(); }); };
    const auto open_calendar = [this] {
        EXPECT_EQ(app.data_scelta, "");
        auto* picker = bench.find<QDateEdit>("nuovadata");
        QTest::mousePress(picker, Qt::LeftButton, {}, QPoint(picker->width() - 6, 10));
        EXPECT_TRUE(picker->calendarWidget()->isVisible());
        return picker->calendarWidget();
    };
    run({open,
         [&] {
             auto* days = open_calendar()->findChild<QTableView*>();
             const QModelIndex day = days->model()->match(days->model()->index(2, 1), 0, 15).at(0);
             QTest::mouseClick(days->viewport(), Qt::LeftButton, {},
                               days->visualRect(day).center());
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

}  // namespace
}  // namespace vantora::ui::desktop
