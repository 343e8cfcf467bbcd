#include <gtest/gtest.h>

#include "customer/mirorcm.h"
#include "customer/shipping_data.h"
#include "customer_desk.h"

namespace vantora::test {
namespace {

class mirorcm_screen : public testing::Test {
 protected:
    mirorcm_screen() {
        auto deleted = customer_named("*CESSATI SRL");
        deleted.eliminato = 1;
        company.customers({customer_named("ROSSI SPA"), customer_named("Bianchi"), deleted,
                           customer_named("ZETA")});
        company.table_file();
        desk = std::make_unique<customer_desk>(company);
        app = &desk->app;
        app->mirorcm.made_by(desk->around.desk, [this] { return std::make_unique<mirorcm>(*app); });
        app->mirorcm->Text2[0].set_text("come nell'ordine");
    }
    void open(int customer) {
        app->selezione_2 = static_cast<std::int16_t>(customer);
        app->mirorcm->show();
    }

    small_company company;
    std::unique_ptr<customer_desk> desk;
    program* app = nullptr;
};

TEST_F(mirorcm_screen, StandsOnTheOrdersCustomerAndLeavesTheFieldsAlone) {
    // The index: the deleted one (3), Bianchi (2), ROSSI (1), ZETA (4).
    for (const auto& [customer, position] :
         {std::pair{4, 4}, {2, 2}, {3, 1}, {1, 3}, {99, 1}, {0, 1}, {-1, 1}}) {
        desk->reads.clear();
        open(customer);
        EXPECT_EQ(app->mirorcm->HScroll1.value(), position) << customer;
        EXPECT_EQ(app->mirorcm->HScroll1.maximum(), 4);
        EXPECT_EQ(app->mirorcm->Text2[0].text(), "come nell'ordine");
        EXPECT_FALSE(app->mirorcm->Label2.visible()) << "no living customer is told deleted";
        EXPECT_EQ(desk->reads["cli"], 0U);
        EXPECT_LE(desk->reads["src"], 1U) << "the index is read in blocks";
        EXPECT_TRUE(app->mirorcm->nome.has_focus());
        app->mirorcm->hide();
    }
}

TEST_F(mirorcm_screen, MovesTheOrderToALivingCustomerOnly) {
    struct {
        int opened_on;
        int moved_to;  ///< position, 0 for none
        int confirmed;
    } cases[] = {{1, 4, 4}, {1, 2, 2}, {1, 0, 1}, {99, 0, 99}, {1, 1, 0}, {0, 0, 0}};
    for (const auto& one : cases) {
        app->mirorcm->unload();
        app->schermo_pronto = 1;
        open(one.opened_on);
        app->mirorcm->Text3[1].set_text("domani");
        if (one.moved_to > 0) app->mirorcm->HScroll1.drag(one.moved_to);
        app->mirorcm->bottone.click();
        const bool done = one.confirmed > 0;
        EXPECT_EQ(app->mirorcm->visible(), !done) << one.opened_on << one.moved_to;
        EXPECT_EQ(app->selezione_2, done ? one.confirmed : one.opened_on);
        EXPECT_EQ(app->schermo_pronto, done ? 0 : 1);
    }
}

TEST_F(mirorcm_screen, AChoiceFromTheListIsLookedUpAndNoChoiceComesBackToTheOrdersCustomer) {
    open(1);
    desk->around.user.actions.push_back([this] { app->mirsel->elenco.click_cell(3, 0); });
    app->mirorcm->b_lista.click();
    EXPECT_EQ(app->mirorcm->Text2[0].text(), "ZETA");
    EXPECT_EQ(app->mirorcm->HScroll1.value(), 4);
    EXPECT_EQ(app->selezione_cliente, 0);
    desk->around.user.actions.push_back([this] { app->mirsel->indice.click(); });
    app->mirorcm->b_lista.click();
    EXPECT_EQ(app->mirorcm->Text2[0].text(), "ZETA") << "nothing is cleared";
    EXPECT_EQ(app->mirorcm->HScroll1.value(), 3);
}

TEST_F(mirorcm_screen, AnIndexThatCantBeReadLeavesThePositionAtTheFirst) {
    desk->unreadable["src"] = 3 * static_cast<std::int64_t>(sizeof(rec_src));
    for (const auto& [customer, position] : {std::pair{4, 1}, {2, 2}}) {
        open(customer);
        EXPECT_EQ(app->mirorcm->HScroll1.value(), position) << "found before the bad spot";
        app->mirorcm->hide();
    }
}

TEST_F(mirorcm_screen, ShippingDataOfAnOrdersRowsGoOnTheHead) {
    customer_head& head = *app->mirorcm;
    rec_orc row{};
    row.testo1 = "  uno";
    row.testo2 = "due";
    struct {
        const char* testo3;
        int porto;
        int trasporto;
        bool in_lists;
    } cases[] = {{"2103", 2, 1, true},    {"90", 0, 0, false}, {"x3", 0, 3, true},
                 {"-1-10", 0, 1, true},   {"", 0, 0, true},    {"19", 1, 2, false},
                 {"\xFF\xFF", 0, 0, true}};
    for (const auto& one : cases) {
        head.Combo1[customer_head::porto].choose(0);
        head.Combo1[customer_head::trasporto].choose(2);
        row.testo3 = one.testo3;
        EXPECT_EQ(mostra_spedizione(head, 3, row), one.in_lists) << one.testo3;
        EXPECT_EQ(head.Combo1[customer_head::porto].chosen(), one.porto) << one.testo3;
        EXPECT_EQ(head.Combo1[customer_head::trasporto].chosen(), one.trasporto) << one.testo3;
    }
    row.testo3 = "tre";
    for (const int number : {1, 2, 4, 5}) EXPECT_TRUE(mostra_spedizione(head, number, row));
    const std::pair<int, const char*> fields[] = {{8, "uno"},  {9, "due"},  {10, "tre"},
                                                  {11, "uno"}, {12, "due"}, {17, "uno"},
                                                  {18, "due"}, {19, "tre"}};
    for (const auto& [field, text] : fields) EXPECT_EQ(head.Text2[field].text(), text) << field;
}

}  // namespace
}  // namespace vantora::test
