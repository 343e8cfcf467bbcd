#include <gtest/gtest.h>

#include "customer/mirorcx.h"
#include "entry/mirorcs.h"
#include "scripted/small_company.h"
#include "store/drive.h"
#include "ui/bench_desk.h"
#include "ui/pictures/pixbuf_decoder.h"

namespace vantora::test {
namespace {

/// The line screen alone, with its controls in reach of a user who acts in the midst of a painting.
class entry_events : public testing::Test {
 protected:
    entry_events() {
        company.customers({customer_named("ROSSI")});
        company.articles({article("A", "Uno", 1), article("B", "Due", 2)});
        app.parameters.numero_azienda = 1;
        app.selezione_1 = 1;
        apri_archivi(app.archives, port_, 1);
        app.mirorcx.made_by(desk, [this] { return std::make_unique<mirorcx>(app); });
        app.mirorcs.made_by(desk, [this] { return std::make_unique<mirorcs>(app); });
        app.mirorcs->show();
    }
    mirorcs& screen() { return *app.mirorcs; }

    small_company company;
    drive port_{company.drive()};
    ui::test::bench_desk around_;
    ui::test::prepared_user& user = around_.user;
    ui::desk& desk = around_.desk;
    ui::pixbuf_decoder pictures_;
    program app{port_, desk, pictures_};
};

TEST_F(entry_events, AScrollIsServedBeforeThePaintingBegins) {
    screen().ds[0].set_text("prima");
    screen().VScroll1.set_value(2);
    user.pending = [&] { screen().VScroll1.set_value(1); };
    screen().VScroll1.set_value(40);
    EXPECT_EQ(screen().VScroll1.value(), 1);
    EXPECT_EQ(screen().ds[0].text(), "prima");
    EXPECT_FALSE(user.pending);
}

TEST_F(entry_events, AVatCellThatTakesTheFocusDuringAPickLeavesNoRowToGoTo) {
    screen().VScroll1.set_value(20);
    screen().um[2].set_focus();
    user.pending = [&] { screen().civ[3].set_focus(); };
    screen().lookup().List1.pick(1);
    EXPECT_EQ(screen().artic[2].text(), "B");
    EXPECT_TRUE(screen().Combo1.has_focus());
}

TEST_F(entry_events, TheStockLineIsReadOnceAndPricesEachTime) {
    screen().lookup().List1.pick(0);
    const std::string stock = screen().lookup().listx.text();
    auto changed = article("A", "Uno", 5);
    changed.giacenza = 99;
    company.files.art.write(1, changed);
    screen().lookup().List1.pick(0);
    EXPECT_EQ(screen().prezzo[0].text(), "5");
    EXPECT_EQ(screen().lookup().listx.text(), stock);
    screen().um[1].set_focus();  // a line without article shows no other stock
    EXPECT_EQ(screen().lookup().listx.text(), stock);
    screen().lookup().List1.pick(1);
    screen().um[0].set_focus();
    EXPECT_NE(screen().lookup().listx.text().find("Giacenza:99 "), std::string::npos);
}

}  // namespace
}  // namespace vantora::test
