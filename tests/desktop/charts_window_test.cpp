#include <QLabel>

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

}  // namespace
}  // namespace vantora::ui::desktop
