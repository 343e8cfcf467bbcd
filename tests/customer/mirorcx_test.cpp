#include <gtest/gtest.h>

#include "scripted/scripted_run.h"
#include "scripted/small_company.h"

namespace vantora::test {
namespace {

using nlohmann::json;

class mirorcx : public testing::Test {
 protected:
    mirorcx() {
        auto deleted = customer_named("*CESSATI SRL");
        deleted.eliminato = 1;
        company.customers({customer_named("ROSSI SPA"), customer_named("Bianchi"), deleted,
                           customer_named("ROSSI MARIO"), customer_named("ZETA")});
        company.counter(contatori::ordini, 0, 41);
        company.table_file();
    }

    std::vector<json> open(std::vector<std::string> commands) {
        commands.insert(commands.begin(), "click mirorc.bottone(2)");
        return run_script(company.drive(), commands);
    }
    std::string text_after(std::vector<std::string> commands, const std::string& control) {
        commands.push_back("get mirorcx." + control);
        return open(commands).back()["value"]["text"];
    }

    small_company company;
};

TEST_F(mirorcx, OpensFreshOnTheFirstCustomerInTheOrderOfNames) {
    const json controls = open({"controls mirorcx"}).back()["value"];
    EXPECT_EQ(controls["Text3(0)"]["text"], "42");
    EXPECT_EQ(controls["Text3(1)"]["text"], "06/05/2024");
    EXPECT_EQ(controls["Text3(2)"]["text"], "06/05/2024");
    EXPECT_EQ(controls["text5(1)"]["text"], "06/05/2024");
    EXPECT_EQ(controls["HScroll1"]["max"], 5);
    // The first in the index is the deleted one, without its mark and with empty fields.
    EXPECT_EQ(controls["Text2(0)"]["text"], "CESSATI SRL");
    EXPECT_EQ(controls["Text2(1)"]["text"], "seconda riga");
    for (int i = 2; i < 22; ++i) {
        EXPECT_EQ(controls["Text2(" + std::to_string(i) + ")"]["text"], "") << i;
    }
    EXPECT_EQ(controls["Label2"]["visible"], true);
    EXPECT_EQ(controls["Combo3"]["count"], 40);
    EXPECT_EQ(controls["Combo1(1)"]["count"], 60);
    EXPECT_EQ(controls["Combo1(0)"]["text"], "Porto franco");
    EXPECT_EQ(controls["Combo1(2)"]["text"], "Mittente");
}

TEST_F(mirorcx, ShowsEveryFieldOfACustomer) {
    const json controls = open({"scroll mirorcx.HScroll1 2", "controls mirorcx"}).back()["value"];
    const char* expected[] = {
        "Bianchi",    "seconda riga", "indirizzo", "06100", "citta",         "CF",
        "IT",         "00000000001",  "amm 1",     "amm 2", "amm indirizzo", "06012",
        "amm citta",  "tel 1",        "tel 2",     "tel 3", "a@example.it",  "corriere 1",
        "corriere 2", "corriere 3",   "nota 1",    "nota 2"};
    for (int i = 0; i < 22; ++i) {
        EXPECT_EQ(controls["Text2(" + std::to_string(i) + ")"]["text"], expected[i]) << i;
    }
    EXPECT_EQ(controls["Label2"]["visible"], false);
    EXPECT_EQ(controls["Combo1(1)"]["text"], "Pagamento 2");
}

TEST_F(mirorcx, SearchesByTheBeginningOfTheName) {
    const auto replies =
        open({"set mirorcx.nome \" ros \"", "key mirorcx.nome Enter", "get mirorcx.Text2(0)",
              "get mirorcx.nome", "set mirorcx.nome \"zz\"", "click mirorcx.b_cerca", "answer ok",
              "get mirorcx.Text2(0)", "get mirorcx.HScroll1"});
    EXPECT_TRUE(replies[3]["value"]["text"].get<std::string>().starts_with("ROSSI"));
    EXPECT_EQ(replies[4]["value"]["text"], "");
    EXPECT_EQ(replies[6]["box"], (json{{"text", "Anagrafica non trovata"},
                                       {"title", "Attenzione"},
                                       {"icon", "warning"},
                                       {"buttons", "ok"}}));
    EXPECT_EQ(replies[7]["focus"], "nome");
    EXPECT_EQ(replies[8]["value"]["text"], replies[3]["value"]["text"]);
    EXPECT_GT(replies[9]["value"]["value"], 1);
}

TEST_F(mirorcx, DatesAndTheirPickersKeepInStep) {
    const std::pair<const char*, const char*> cases[] = {
        {"1/2/24", "01/02/2024"}, {"29.02.2023", "06/05/2024"}, {"", "06/05/2024"}};
    for (const auto& [typed, picked] : cases) {
        const auto replies = open({"set mirorcx.Text3(1) \"" + std::string(typed) + "\"",
                                   "get mirorcx.Text3(1)", "get mirorcx.text5(0)"});
        EXPECT_EQ(replies[2]["value"]["text"], typed);
        EXPECT_EQ(replies[3]["value"]["text"], picked) << typed;
    }
    EXPECT_EQ(text_after({"date mirorcx.text5(1) \"03/04/2025\""}, "Text3(2)"), "03/04/2025");
}

TEST_F(mirorcx, GoesOnOnlyWithTwoWholeDatesAndALivingCustomer) {
    struct {
        std::vector<std::string> commands;
        const char* complaint;
        const char* focus;
    } wrong[] = {
        {{"set mirorcx.Text3(1) \"1/2/2024\""}, "La data dell'ordine non è corretta", "Text3(1)"},
        {{"set mirorcx.Text3(1) \"30/02/2024\""}, "La data dell'ordine non è corretta", "Text3(1)"},
        {{"set mirorcx.Text3(2) \"\""}, "La data presunta di evasione non è corretta", "Text3(2)"},
    };
    for (auto& one : wrong) {
        auto commands = one.commands;
        commands.insert(commands.end(), {"click mirorcx.bottone", "answer ok"});
        const auto replies = open(commands);
        EXPECT_EQ(replies[2]["box"]["text"], one.complaint);
        EXPECT_EQ(replies[2]["box"]["icon"], "stop");
        EXPECT_EQ(replies[3]["focus"], one.focus);
    }
    EXPECT_EQ(open({"click mirorcx.bottone"}).back()["screen"], "mirorcx");
    EXPECT_EQ(open({"scroll mirorcx.HScroll1 3", "set mirorcx.Text3(1) \" 01/02/2024 \"",
                    "click mirorcx.bottone"})
                  .back()["screen"],
              "mirorcs");
}

TEST_F(mirorcx, ACarrierLeavesTheLinesMarkedWithAnAsteriskAlone) {
    const json controls =
        open({"scroll mirorcx.HScroll1 2", "pick mirorcx.Combo3 6", "controls mirorcx"})
            .back()["value"];
    EXPECT_EQ(controls["Text2(17)"]["text"], "Vettore 7");
    EXPECT_EQ(controls["Text2(18)"]["text"], "Via 7");
    EXPECT_EQ(controls["Text2(19)"]["text"], "corriere 3");
}

TEST_F(mirorcx, EnterWalksTheFieldsAndAFullCounterProposesNothing) {
    const auto replies = open({"key mirorcx.Text2(0) Enter", "key mirorcx.Text2(20) Enter",
                               "key mirorcx.Text2(21) Enter", "key mirorcx.Text3(4) Enter"});
    EXPECT_EQ(replies[1]["focus"], "Text2(1)");
    EXPECT_EQ(replies[2]["focus"], "Text2(21)");
    EXPECT_EQ(replies[3]["focus"], "Text2(21)");
    EXPECT_EQ(replies[4]["focus"], "Text3(5)");
    company.counter(contatori::ordini, 0, 32767);
    EXPECT_EQ(text_after({}, "Text3(0)"), "") << "no number is left to propose";
}

TEST_F(mirorcx, WithoutTableFileTheListsAreEmptyAndTheScreenWorks) {
    std::filesystem::remove(company.file("tab"));
    const auto replies = open({"get mirorcx.Combo3", "get mirorcx.Combo1(1)",
                               "scroll mirorcx.HScroll1 2", "click mirorcx.bottone"});
    EXPECT_EQ(replies[1]["value"]["count"], 0);
    EXPECT_EQ(replies[2]["value"]["count"], 0);
    EXPECT_EQ(replies.back()["screen"], "mirorcs");
}

}  // namespace
}  // namespace vantora::test
