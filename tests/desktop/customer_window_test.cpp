#include <QCalendarWidget>
#include <QDateEdit>

#include "customer/mirdata.h"
#include "program_window.h"

namespace vantora::ui::desktop {
namespace {

using customer_window = test::program_window;

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
