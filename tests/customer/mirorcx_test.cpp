#include <gtest/gtest.h>

#include "customer/customer_desk.h"
#include "scripted/scripted_run.h"

namespace vantora::test {
namespace {

using nlohmann::json;

class mirorcx : public testing::Test {
 protected:
    mirorcx() { company.counter(contatori::ordini, 0, 41); }

    std::vector<json> open(std::vector<std::string> commands) {
        commands.insert(commands.begin(), "click mirorc.bottone(2)");
        return run_script(company.drive(), commands);
    }
    /// What the controls show after some commands.
    std::string texts(std::vector<std::string> commands, const std::vector<const char*>& controls) {
        commands.emplace_back("controls mirorcx");
        const json all = open(commands).back()["value"];
        std::string shown;
        for (const char* one : controls) shown += all[one]["text"].get<std::string>() + "|";
        return shown;
    }

    five_customers company;
};

TEST_F(mirorcx, OpensFreshAndShowsEveryFieldOfACustomer) {
    EXPECT_EQ(texts({}, {"Text3(0)", "Text3(1)", "Text3(2)", "Text3(3)", "text5(0)", "text5(1)",
                         "Combo1(0)", "Combo1(1)", "Combo1(2)", "Combo3"}),
              "42|06/05/2024|06/05/2024||06/05/2024|06/05/2024|Porto franco|Pagamento 2|Mittente|"
              "Vettore 1|");
    const char* fields[] = {
        "Bianchi",    "seconda riga", "indirizzo", "06100", "citta",         "CF",
        "IT",         "00000000001",  "amm 1",     "amm 2", "amm indirizzo", "06012",
        "amm citta",  "tel 1",        "tel 2",     "tel 3", "a@example.it",  "corriere 1",
        "corriere 2", "corriere 3",   "nota 1",    "nota 2"};
    const json controls = open({"scroll mirorcx.HScroll1 2", "controls mirorcx"}).back()["value"];
    // The first in the index is the deleted one: without its mark, and all but its name empty.
    const json deleted = open({"controls mirorcx"}).back()["value"];
    for (int i = 0; i < 22; ++i) {
        const std::string name = "Text2(" + std::to_string(i) + ")";
        EXPECT_EQ(controls[name]["text"], fields[i]) << i;
        EXPECT_EQ(deleted[name]["text"], i == 0 ? "CESSATI SRL" : i == 1 ? fields[1] : "") << i;
    }
    EXPECT_EQ(controls["Combo3"]["count"], 40);
    EXPECT_EQ(controls["Combo1(1)"]["count"], 60);
    company.counter(contatori::ordini, 0, 32767);
    EXPECT_EQ(texts({}, {"Text3(0)"}), "|") << "no number is left to propose";
}

TEST_F(mirorcx, FieldsFollowWhatTheUserDoes) {
    const struct {
        std::vector<std::string> commands;
        std::vector<const char*> controls;
        const char* texts;
    } cases[] = {
        {{"set mirorcx.Text3(1) \"1/2/24\""}, {"Text3(1)", "text5(0)"}, "1/2/24|01/02/2024|"},
        {{"set mirorcx.Text3(2) \"29.02.2023\""},
         {"Text3(2)", "text5(1)"},
         "29.02.2023|06/05/2024|"},
        {{"set mirorcx.Text3(1) \"\""}, {"Text3(1)", "text5(0)"}, "|06/05/2024|"},
        {{"date mirorcx.text5(1) \"03/04/2025\""},
         {"Text3(2)", "Text3(1)"},
         "03/04/2025|06/05/2024|"},
        // A line of a carrier marked with an asterisk leaves the customer's own.
        {{"scroll mirorcx.HScroll1 2", "pick mirorcx.Combo3 6"},
         {"Text2(17)", "Text2(18)", "Text2(19)"},
         "Vettore 7|Via 7|corriere 3|"},
        {{"set mirorcx.nome \" ros \"", "key mirorcx.nome Enter"},
         {"Text2(0)", "nome"},
         "ROSSI MARIO||"},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(texts(one.commands, one.controls), one.texts) << one.commands[0];
    }
    // Enter goes to the next field of the kind.
    for (const auto& [from, to] : {std::pair<std::string, std::string>{"Text2(0)", "Text2(1)"},
                                   {"Text2(21)", "Text2(21)"},
                                   {"Text3(4)", "Text3(5)"}}) {
        EXPECT_EQ(open({"key mirorcx." + from + " Enter"}).back()["focus"], to);
    }
}

TEST_F(mirorcx, GoesOnOnlyWithTwoWholeDatesAndALivingCustomer) {
    const std::tuple<const char*, const char*, const char*> wrong[] = {
        {"Text3(1)", "1/2/2024", "La data dell'ordine non è corretta"},
        {"Text3(1)", "30/02/2024", "La data dell'ordine non è corretta"},
        {"Text3(2)", "", "La data presunta di evasione non è corretta"},
    };
    for (const auto& [field, text, complaint] : wrong) {
        const auto replies = open({std::string("set mirorcx.") + field + " \"" + text + "\"",
                                   "click mirorcx.bottone", "answer ok"});
        EXPECT_EQ(replies[2]["box"]["text"], complaint);
        EXPECT_EQ(replies[3]["focus"], field);
    }
    EXPECT_EQ(open({"click mirorcx.bottone"}).back()["screen"], "mirorcx");
    // Without the suite's table the lists are empty, and the screen works.
    std::filesystem::remove(company.file("tab"));
    const auto right = open({"get mirorcx.Combo1(1)", "scroll mirorcx.HScroll1 3",
                             "set mirorcx.Text3(1) \" 01/02/2024 \"", "click mirorcx.bottone"});
    EXPECT_EQ(right[1]["value"]["count"], 0);
    EXPECT_EQ(right.back()["screen"], "mirorcs");
}

TEST_F(mirorcx, ItsPickListIsModalAndSorts) {
    const auto replies = open({"click mirorcx.b_lista", "rows mirsel.elenco 0 1",
                               "click mirsel.srx(0)", "rows mirsel.elenco 4 5", "close mirorcx"});
    EXPECT_EQ(replies[1]["modal"], "mirsel");
    EXPECT_EQ(replies[2]["value"],
              (json{{"Nominativo", "", "Indirizzo", "Città", "Partita iva", ""},
                    {"Bianchi", "seconda riga", "indirizzo", "citta", "00000000001", "2"}}));
    EXPECT_EQ(replies[4]["value"][0][0], "ZETA");
    EXPECT_EQ(replies[4]["value"][1][0], "") << "blank rows stay at the bottom";
    EXPECT_EQ(replies[5]["ok"], false);
}

}  // namespace
}  // namespace vantora::test
