#include <gtest/gtest.h>

#include "customer/customer_desk.h"

namespace vantora::test {
namespace {

TEST(customer_start, AFreshStartPutsCursorAndHeadBackAndKeepsTheLists) {
    small_company company;
    company.table_file();
    company.customers({customer_named("ALFA"), customer_named("BETA")});
    customer_desk desk(company);
    auto& screen = *desk.app.mirorcx;
    screen.HScroll1.drag(2);
    screen.Text3[3].set_text("riferimento");
    screen.Combo1[0].pick(1);
    screen.hide();
    screen.show();
    EXPECT_EQ(desk.shown_name(), "BETA") << "coming back leaves all as it was";
    screen.hide();
    desk.app.schermo_pronto = 0;
    screen.show();
    EXPECT_EQ(desk.shown_name(), "ALFA");
    EXPECT_EQ(screen.HScroll1.value(), 1);
    EXPECT_EQ(screen.Text3[3].text(), "");
    EXPECT_EQ(screen.Combo1[0].chosen(), 1);
}

TEST(customer_start, LoadingTheScreenForAnotherOneTouchesNoField) {
    small_company company;
    company.table_file();
    company.customers({customer_named("ALFA")});
    customer_desk desk(company);
    desk.app.mirorcx->unload();
    EXPECT_EQ(desk.app.mirorcx->Combo3.text(), "Vettore 1");
    EXPECT_EQ(desk.app.mirorcx->Text2[17].text(), "");
    EXPECT_FALSE(desk.app.mirorcx->visible());
}

}  // namespace
}  // namespace vantora::test
