#include <gtest/gtest.h>

#include "customer/customer_desk.h"
#include "customer/mirorcm.h"
#include "customer/shipping_data.h"

namespace vantora::test {
namespace {

/// The index has the deleted one (3), Bianchi (2), ROSSI MARIO (4), ROSSI SPA (1) and ZETA (5).
struct five_customers : small_company {
    five_customers() {
        auto deleted = customer_named("*CESSATI SRL");
        deleted.eliminato = 1;
        customers({customer_named("ROSSI SPA"), customer_named("Bianchi"), deleted,
                   customer_named("ROSSI MARIO"), customer_named("ZETA")});
        counter(contatori::ordini, 0, 41);
        table_file();
    }
};

struct a_customer_desk : testing::Test {
    five_customers company;
    customer_desk desk{company};
    program& app = desk.app;
};

class mirorcx_screen : public a_customer_desk {
 protected:
    customer_head& head = *app.mirorcx;
};

TEST_F(mirorcx_screen, OpensFreshAndShowsEveryFieldOfACustomer) {
    std::string fresh;
    for (const auto& field : head.Text3) fresh += field.text() + "|";
    for (const auto& picker : head.text5) fresh += picker.text() + "|";
    for (const auto& list : head.Combo1) fresh.append(list.text()).append("|");
    EXPECT_EQ(fresh.append(head.Combo3.text()),
              "42|06/05/2024|06/05/2024||||06/05/2024|06/05/2024|Porto franco|Pagamento 2|Mittente|"
              "Vettore 1");
    EXPECT_EQ(head.Combo3.count(), 40);
    EXPECT_EQ(head.Combo1[customer_head::pagamento].count(), 60);
    const char* fields[] = {
        "Bianchi",    "seconda riga", "indirizzo", "06100", "citta",         "CF",
        "IT",         "00000000001",  "amm 1",     "amm 2", "amm indirizzo", "06012",
        "amm citta",  "tel 1",        "tel 2",     "tel 3", "a@example.it",  "corriere 1",
        "corriere 2", "corriere 3",   "nota 1",    "nota 2"};
    // The first in the index is the deleted one: without its mark, and all but its name empty.
    for (int i = 0; i < 22; ++i) {
        EXPECT_EQ(head.Text2[i].text(), i == 0 ? "CESSATI SRL" : i == 1 ? fields[1] : "") << i;
    }
    head.HScroll1.drag(2);
    for (int i = 0; i < 22; ++i) EXPECT_EQ(head.Text2[i].text(), fields[i]) << i;
    company.counter(contatori::ordini, 0, 32767);
    EXPECT_EQ(customer_desk(company).app.mirorcx->Text3[0].text(), "") << "no number is left";
}

TEST_F(mirorcx_screen, FieldsFollowWhatTheUserDoes) {
    const std::tuple<int, const char*, const char*> typed[] = {
        {1, "1/2/24", "01/02/2024"}, {2, "29.02.2023", "06/05/2024"}, {1, "", "06/05/2024"}};
    for (const auto& [field, text, picked] : typed) {
        head.Text3[field].set_text(text);
        EXPECT_EQ(head.Text3[field].text(), text);
        EXPECT_EQ(head.text5[field - 1].text(), picked) << text;
    }
    head.text5[1].choose({2025, 4, 3});
    EXPECT_EQ(head.Text3[2].text(), "03/04/2025");
    EXPECT_EQ(head.Text3[1].text(), "");
    // A line of a carrier marked with an asterisk leaves the customer's own.
    head.HScroll1.drag(2);
    head.Combo3.pick(6);
    EXPECT_EQ(head.Text2[17].text() + head.Text2[18].text() + head.Text2[19].text(),
              "Vettore 7Via 7corriere 3");
    head.nome.set_text(" ros ");
    head.nome.press_key(ui::key::enter, '\r');
    EXPECT_EQ(head.Text2[0].text(), "ROSSI MARIO");
    for (auto* field : {&head.Text2[0], &head.Text2[20], &head.Text3[4]}) {
        field->press_key(ui::key::enter, '\r');
        EXPECT_TRUE((field + 1)->has_focus()) << "Enter goes to the next one";
    }
}

TEST_F(mirorcx_screen, GoesOnOnlyWithTwoWholeDates) {
    head.HScroll1.drag(2);
    const std::tuple<int, const char*, std::string> cases[] = {
        {1, "1/2/2024", "La data dell'ordine non è corretta"_cp},
        {1, "30/02/2024", "La data dell'ordine non è corretta"_cp},
        {1, " 01/02/2024 ", ""},
        {2, "", "La data presunta di evasione non è corretta"_cp}};
    for (const auto& [field, text, complaint] : cases) {
        app.selezione_1 = -1;
        head.Text3[field].set_text(text);
        EXPECT_EQ(desk.told_by([&] { head.bottone.click(); }), complaint);
        EXPECT_EQ(head.Text3[field].has_focus(), !complaint.empty());
        EXPECT_EQ(app.selezione_1, complaint.empty() ? 2 : -1);
    }
    // Without the suite's table the lists are empty, and the screen works.
    std::filesystem::remove(company.file("tab"));
    customer_desk bare(company);
    EXPECT_EQ(bare.app.mirorcx->Combo1[customer_head::pagamento].count(), 0);
    bare.app.mirorcx->HScroll1.drag(2);
    bare.app.mirorcx->bottone.click();
    EXPECT_EQ(bare.app.selezione_1, 2);
}

TEST_F(mirorcx_screen, ThePickedCustomerIsTakenWhereAPersonPicks) {
    company.customers({customer_named("ROSSI"), customer_named("ROSSI"),
                       customer_named("ROSSI MARIO"), customer_named("ZETA")});
    for (const bool guarded : {false, true}) {
        desk.desk.guards().switch_to(guarded);
        int right = 0;
        for (const int row : {1, 2, 3}) {
            int picked = 0;
            desk.front.actions = {[&] {
                picked = std::stoi(std::string(app.mirsel->elenco.text(row, mirsel::numero)));
                app.mirsel->elenco.click_cell(row, 0);
            }};
            head.nome.set_text("rossi");
            head.b_lista.click();
            EXPECT_EQ(head.nome.text(), "");
            head.bottone.click();
            right += app.selezione_1 == picked;
            app.mirorcx->show();
        }
        EXPECT_EQ(right == 3, guarded);
    }
    // Nor does an empty search take whoever stands in the middle.
    const std::string shown = head.Text2[0].text();
    head.nome.set_text(" ");
    head.b_cerca.click();
    EXPECT_TRUE(head.Text2[0].text() == shown && head.Text2[0].has_focus());
}

class mirorcm_screen : public a_customer_desk {
 protected:
    mirorcm_screen() { desk.provide(app.mirorcm); }
    void open(int customer) {
        app.selezione_2 = static_cast<std::int16_t>(customer);
        app.mirorcm->show();
    }
};

TEST_F(mirorcm_screen, StandsOnTheOrdersCustomerAndMovesTheOrderToALivingOne) {
    // The order's customer, its position; where the user moves to (0: nowhere), and the order's
    // customer then (0: no way on).
    const std::array<int, 4> cases[] = {{1, 4, 5, 5}, {1, 4, 2, 2}, {1, 4, 0, 1},   {1, 4, 1, 0},
                                        {5, 5, 0, 5}, {3, 1, 0, 0}, {99, 1, 0, 99}, {0, 1, 0, 0},
                                        {2, 2, 0, 2}, {-1, 1, 0, 0}};
    for (const auto& [customer, position, moved_to, confirmed] : cases) {
        SCOPED_TRACE(std::to_string(customer) + " to " + std::to_string(moved_to));
        app.mirorcm->unload();
        mirorcm& head = *app.mirorcm;
        head.Text2[0].set_text("come nell'ordine");
        app.schermo_pronto = 1;
        desk.reads.clear();
        open(customer);
        EXPECT_EQ(head.HScroll1.value(), position);
        EXPECT_EQ(head.HScroll1.maximum(), 5);
        EXPECT_TRUE(head.nome.has_focus());
        EXPECT_EQ(head.Text2[0].text(), "come nell'ordine");
        EXPECT_EQ(head.Text3[0].accepts.longest, 10);
        EXPECT_EQ(head.Text2[19].accepts.longest, 40) << "as its row holds";
        EXPECT_EQ(head.Text2[17].text(), "") << "the carriers' list touches no field";
        EXPECT_EQ(head.Label2.visible(), customer == 3) << "only the deleted one is told so";
        EXPECT_LE(desk.reads["cli"], 1U);
        EXPECT_LE(desk.reads["src"], 1U) << "the index is read in blocks";
        if (moved_to > 0) head.HScroll1.drag(moved_to);
        head.bottone.click();
        EXPECT_EQ(head.visible(), confirmed == 0);
        EXPECT_EQ(app.selezione_2, confirmed > 0 ? confirmed : customer);
        EXPECT_EQ(app.schermo_pronto, confirmed > 0 ? 0 : 1);
    }
    // Each order's customer is judged anew, whatever was shown before.
    open(3);
    app.mirorcm->hide();
    open(1);
    EXPECT_FALSE(app.mirorcm->Label2.visible());
    app.mirorcm->bottone.click();
    EXPECT_FALSE(app.mirorcm->visible());
    desk.unreadable["src"] = {4 * std::int64_t{sizeof(rec_src)}};
    for (const auto& [customer, position] : {std::pair{5, 1}, {2, 2}}) {
        app.mirorcm->hide();
        open(customer);
        EXPECT_EQ(app.mirorcm->HScroll1.value(), position) << "found before the bad spot only";
    }
}

TEST_F(mirorcm_screen, LeftForTheLinesItIsAsItWas) {
    mirorcm& head = *app.mirorcm;
    head.Text3[0].set_text("12");
    head.Combo1[customer_head::porto].choose(1);
    for (int round = 0; round < 2; ++round) {
        open(1);
        head.Text3[0].set_text("99");
        head.Combo1[customer_head::porto].choose(0);
        head.HScroll1.drag(5);
        head.give_back();
        EXPECT_EQ(head.Text3[0].text(), "12");
        EXPECT_EQ(head.Combo1[customer_head::porto].chosen(), 1);
        EXPECT_EQ(app.selezione_2, 1) << "the order stays with its customer";
        EXPECT_FALSE(head.visible());
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
        EXPECT_EQ(show_shipping(head, 3, row), in_lists) << testo3;
        EXPECT_EQ(head.Combo1[customer_head::porto].chosen(), porto) << testo3;
        EXPECT_EQ(head.Combo1[customer_head::trasporto].chosen(), trasporto) << testo3;
    }
    row.testo3 = "tre";
    for (const int number : {1, 2, 4, 5}) EXPECT_TRUE(show_shipping(head, number, row));
    std::string shown;
    for (const int field : {8, 9, 10, 11, 12, 17, 18, 19}) shown += head.Text2[field].text() + " ";
    EXPECT_EQ(shown, "uno due tre uno due uno due tre ");
}

}  // namespace
}  // namespace vantora::test
