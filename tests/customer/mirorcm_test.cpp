#include <gtest/gtest.h>

#include "customer/mirorcm.h"
#include "customer/shipping_data.h"
#include "customer_desk.h"

namespace vantora::test {
namespace {

class mirorcm_screen : public testing::Test {
 protected:
    mirorcm_screen() {
        desk.provide(app.mirorcm);
        app.mirorcm->Text2[0].set_text("come nell'ordine");
    }
    void open(int customer) {
        app.selezione_2 = static_cast<std::int16_t>(customer);
        app.mirorcm->show();
    }

    five_customers company;
    customer_desk desk{company};
    program& app = desk.app;
};

TEST_F(mirorcm_screen, StandsOnTheOrdersCustomerAndLeavesTheFieldsAlone) {
    const auto expect_at = [&](int customer, int position) {
        open(customer);
        EXPECT_EQ(app.mirorcm->HScroll1.value(), position) << customer;
        EXPECT_TRUE(app.mirorcm->nome.has_focus());
        app.mirorcm->hide();
    };
    for (const auto& [customer, position] :
         {std::pair{5, 5}, {2, 2}, {3, 1}, {1, 4}, {99, 1}, {0, 1}, {-1, 1}}) {
        desk.reads.clear();
        expect_at(customer, position);
        EXPECT_EQ(app.mirorcm->Text2[0].text(), "come nell'ordine");
        EXPECT_EQ(app.mirorcm->Text2[17].text(), "") << "the carriers' list touches no field";
        EXPECT_FALSE(app.mirorcm->Label2.visible()) << "no living customer is told deleted";
        EXPECT_EQ(desk.reads["cli"], 0U);
        EXPECT_LE(desk.reads["src"], 1U) << "the index is read in blocks";
    }
    EXPECT_EQ(app.mirorcm->HScroll1.maximum(), 5);
    desk.unreadable["src"] = {4 * std::int64_t{sizeof(rec_src)}};
    expect_at(5, 1);
    expect_at(2, 2);  // found before the bad spot
}

TEST_F(mirorcm_screen, MovesTheOrderToALivingCustomerOnly) {
    // On a customer, moved to a position (0: none): the order's customer then (0: no way on).
    const std::tuple<int, int, int> cases[] = {{1, 5, 5},   {1, 2, 2}, {1, 0, 1},
                                               {99, 0, 99}, {1, 1, 0}, {0, 0, 0}};
    for (const auto& [opened_on, moved_to, confirmed] : cases) {
        app.mirorcm->unload();
        app.schermo_pronto = 1;
        open(opened_on);
        app.mirorcm->Text3[1].set_text("domani");
        if (moved_to > 0) app.mirorcm->HScroll1.drag(moved_to);
        app.mirorcm->bottone.click();
        EXPECT_EQ(app.mirorcm->visible(), confirmed == 0) << opened_on << moved_to;
        EXPECT_EQ(app.selezione_2, confirmed > 0 ? confirmed : opened_on);
        EXPECT_EQ(app.schermo_pronto, confirmed > 0 ? 0 : 1);
    }
}

TEST_F(mirorcm_screen, AChoiceFromTheListIsLookedUpAndNoChoiceComesBackToTheOrdersCustomer) {
    open(1);
    for (const auto& [chooses, position] : {std::pair{true, 5}, {false, 4}}) {
        desk.front.actions = {[&, chooses = chooses] {
            chooses ? void(app.mirsel->elenco.click_cell(4, 0)) : app.mirsel->indice.click();
        }};
        app.mirorcm->b_lista.click();
        EXPECT_EQ(app.mirorcm->Text2[0].text(), "ZETA") << "nothing is cleared";
        EXPECT_EQ(app.mirorcm->HScroll1.value(), position);
        EXPECT_EQ(app.selezione_cliente, 0);
    }
}

TEST_F(mirorcm_screen, ShippingDataOfAnOrdersRowsGoOnTheHead) {
    customer_head& head = *app.mirorcm;
    rec_orc row{};
    row.testo1 = "  uno";
    row.testo2 = "due";
    const std::tuple<const char*, int, int, bool> cases[] = {
        {"2103", 2, 1, true}, {"90", 0, 0, false}, {"x3", 0, 3, true},      {"-1-10", 0, 1, true},
        {"", 0, 0, true},     {"19", 1, 2, false}, {"\xFF\xFF", 0, 0, true}};
    for (const auto& [testo3, porto, trasporto, in_lists] : cases) {
        head.Combo1[customer_head::porto].choose(0);
        head.Combo1[customer_head::trasporto].choose(2);
        row.testo3 = testo3;
        EXPECT_EQ(mostra_spedizione(head, 3, row), in_lists) << testo3;
        EXPECT_EQ(head.Combo1[customer_head::porto].chosen(), porto) << testo3;
        EXPECT_EQ(head.Combo1[customer_head::trasporto].chosen(), trasporto) << testo3;
    }
    row.testo3 = "tre";
    for (const int number : {1, 2, 4, 5}) EXPECT_TRUE(mostra_spedizione(head, number, row));
    std::string shown;
    for (const int field : {8, 9, 10, 11, 12, 17, 18, 19}) shown += head.Text2[field].text() + " ";
    EXPECT_EQ(shown, "uno due tre uno due uno due tre ");
}

}  // namespace
}  // namespace vantora::test
