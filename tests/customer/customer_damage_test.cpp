#include <gtest/gtest.h>

#include "customer/customer_desk.h"

namespace vantora::test {
namespace {

using names = std::vector<std::string>;

class customer_damage : public testing::Test {
 protected:
    customer_damage() { company.customers({customer_named("ALFA"), customer_named("BETA")}); }

    void entry(int position, const char* key, int number) {
        company.files.src.write(position, {text<40>(key), static_cast<std::int16_t>(number)});
    }

    small_company company;
};

TEST_F(customer_damage, EntriesThatPointNowhereListTheCustomerBefore) {
    entry(2, "ALFB", 0);
    entry(3, "ALFC", -5);
    entry(4, "ALFD", 30000);
    entry(5, "BETA", 2);
    company.counter(contatori::clienti, 5);
    customer_desk desk(company);
    desk.with_pick_list([](mirsel& list) {
        const std::string zeros(40, '\0');
        EXPECT_EQ(customer_desk::column(list, mirsel::nominativo),
                  (names{"ALFA", "ALFA", "ALFA", zeros, "BETA"}));
        EXPECT_EQ(customer_desk::column(list, mirsel::numero),
                  (names{"1", "0", "-5", "30000", "2"}));
        list.elenco.click_cell(2, 0);
        list.elenco.click_cell(3, 0);
    });
    EXPECT_EQ(desk.app.selezione_cliente, 0) << "neither of the two could be picked";
}

TEST_F(customer_damage, NoOrderIsMadeForTheCustomerOfAnEmptyEntry) {
    entry(1, "AAA", 0);
    customer_desk desk(company);
    desk.app.selezione_1 = -1;
    desk.app.mirorcx->bottone.click();
    EXPECT_EQ(desk.app.selezione_1, -1);
}

TEST_F(customer_damage, CountsThatAreNoCountsNeitherHangNorOverrun) {
    struct {
        int count;
        int rows;
    } cases[] = {{-32768, 26}, {-1, 26}, {0, 26}, {1, 26}, {100, 101}, {32767, 31999}};
    for (const auto& one : cases) {
        company.counter(contatori::clienti, one.count);
        customer_desk desk(company);
        EXPECT_EQ(desk.shown_name(), "ALFA") << one.count;
        desk.with_pick_list([&](mirsel& list) {
            EXPECT_EQ(list.elenco.rows(), one.rows) << one.count;
            list.srx[0].click();
        });
        desk.search("zeta");
        EXPECT_EQ(desk.box, "Anagrafica non trovata") << one.count;
        auto& bar = desk.app.mirorcx->HScroll1;
        for (const int to : {bar.minimum(), bar.maximum(), -3, 2}) bar.drag(to);
    }
}

TEST_F(customer_damage, TheCursorFollowsACountThatChangesMeanwhile) {
    company.counter(contatori::clienti, 2);
    customer_desk desk(company);
    company.customers({customer_named("ALFA"), customer_named("BETA"), customer_named("GAMMA"),
                       customer_named("OMEGA")});
    desk.search("omega");
    EXPECT_EQ(desk.shown_name(), "OMEGA") << "found beyond the end of the bar";
    EXPECT_EQ(desk.app.mirorcx->HScroll1.value(), 1);
    EXPECT_EQ(desk.app.mirorcx->HScroll1.maximum(), 2);
    desk.app.mirorcx->HScroll1.drag(2);
    EXPECT_EQ(desk.shown_name(), "BETA");
    company.counter(contatori::clienti, 1);
    desk.app.mirorcx->HScroll1.drag(1);
    EXPECT_EQ(desk.shown_name(), "BETA") << "one customer alone doesn't scroll";
    company.counter(contatori::clienti, 4);
    desk.app.mirorcx->HScroll1.drag(2);
    EXPECT_EQ(desk.shown_name(), "BETA");
}

TEST_F(customer_damage, ASearchThatFindsTheCustomerShownPutsItsFieldsBack) {
    customer_desk desk(company);
    desk.app.mirorcx->Text2[4].set_text("Terni");
    desk.search("alfa");
    EXPECT_EQ(desk.app.mirorcx->Text2[4].text(), "citta");
    desk.app.mirorcx->Text2[4].set_text("Terni");
    desk.search("zeta");
    EXPECT_EQ(desk.app.mirorcx->Text2[4].text(), "citta") << "so does one that finds nothing";
}

TEST_F(customer_damage, MarksAndPaymentTermsOfAllValues) {
    struct {
        int mark;
        int payment;
        bool warned;
        int chosen;
        bool usable;
    } cases[] = {{0, 60, false, 59, true}, {0, 0, false, -1, true},  {0, 61, false, -1, true},
                 {1, 1, true, 0, false},   {2, -7, false, 0, false}, {-1, -32768, false, 0, false}};
    std::vector<rec_cli> all;
    for (const auto& one : cases) {
        all.push_back(customer_named("C" + std::to_string(all.size())));
        all.back().eliminato = static_cast<std::int16_t>(one.mark);
        all.back().pagamento = static_cast<std::int16_t>(one.payment);
    }
    company.customers(all);
    company.table_file();
    customer_desk desk(company);
    auto& screen = *desk.app.mirorcx;
    for (int i = 0; i < std::ssize(all); ++i) {
        screen.HScroll1.drag(i + 1);
        EXPECT_EQ(screen.Label2.visible(), cases[i].warned) << i;
        EXPECT_EQ(screen.Combo1[1].chosen(), cases[i].chosen) << i;
        desk.app.selezione_1 = -1;
        screen.bottone.click();
        EXPECT_EQ(desk.app.selezione_1, cases[i].usable ? i + 1 : -1) << i;
    }
    desk.with_pick_list([](mirsel& list) {
        EXPECT_EQ(customer_desk::column(list, mirsel::nominativo), (names{"C0", "C1", "C2"}));
    });
}

TEST_F(customer_damage, NamesWithZeroBytesAreFoundAsTheyStand) {
    using namespace std::string_literals;
    std::vector<rec_cli> all{customer_named("AB\0C"s), customer_named("ABC")};
    company.customers(all);
    customer_desk desk(company);
    EXPECT_EQ(desk.shown_name(), "AB\0C"s);
    desk.with_pick_list([](mirsel& list) { list.elenco.click_cell(1, 0); });
    EXPECT_EQ(desk.shown_name(), "AB\0C"s);
    desk.search("abc");
    EXPECT_EQ(desk.shown_name(), "ABC");
}

TEST_F(customer_damage, AChoiceThatTheIndexDoesntKnowSaysSo) {
    entry(2, "SOMETHING ELSE", 2);
    customer_desk desk(company);
    std::string said;
    desk.around.user.actions = {[&] { desk.app.mirsel->elenco.click_cell(2, 0); },
                                [&] {
                                    said = desk.around.desk.open_box()->text;
                                    desk.around.desk.answer_box(ui::answer::ok);
                                }};
    desk.app.mirorcx->b_lista.click();
    EXPECT_EQ(said, "Anagrafica non trovata");
    EXPECT_EQ(desk.shown_name(), "ALFA");
    EXPECT_EQ(desk.app.mirorcx->nome.text(), "");
    EXPECT_TRUE(desk.app.mirorcx->nome.has_focus());
}

}  // namespace
}  // namespace vantora::test
