#include <gtest/gtest.h>

#include "scripted/scripted_run.h"
#include "scripted/small_company.h"

namespace vantora::test {
namespace {

using nlohmann::json;

class mirsel : public testing::Test {
 protected:
    mirsel() {
        auto deleted = customer_named("*ROSSI VECCHI");
        deleted.eliminato = 1;
        company.customers({customer_named("ROSSI SPA"), customer_named("Bianchi e Rossi srl"),
                           deleted, customer_named("ZETA"), customer_named("ROSSI SPA")});
    }

    /// Opens the pick list with a text in the search field of the caller.
    std::vector<json> open(const std::string& wanted, std::vector<std::string> commands) {
        commands.insert(commands.begin(),
                        {"click mirorc.bottone(2)", "set mirorcx.nome \"" + wanted + "\"",
                         "click mirorcx.b_lista"});
        return run_script(company.drive(), commands);
    }
    std::vector<std::string> listed(const std::string& wanted) {
        std::vector<std::string> names;
        const json rows = open(wanted, {"rows mirsel.elenco 1 30"}).back()["value"];
        for (const json& row : rows) {
            if (row[5] != "") names.push_back(row[0]);
        }
        return names;
    }

    small_company company;
};

TEST_F(mirsel, ListsTheLivingCustomersThatHoldTheTextAnywhere) {
    using names = std::vector<std::string>;
    EXPECT_EQ(listed(""), (names{"Bianchi e Rossi srl", "ROSSI SPA", "ROSSI SPA", "ZETA"}));
    EXPECT_EQ(listed(" rossi "), (names{"Bianchi e Rossi srl", "ROSSI SPA", "ROSSI SPA"}));
    EXPECT_EQ(listed("vecchi"), names{});
}

TEST_F(mirsel, IsModalAndShowsItsColumns) {
    const auto replies =
        open("z", {"get mirsel.elenco", "rows mirsel.elenco 0 1", "click mirorcx.b_cerca",
                   "close mirorcx", "colors mirsel.elenco 1 3"});
    EXPECT_EQ(replies[2]["modal"], "mirsel");
    EXPECT_EQ(replies[2]["screen"], "mirsel");
    EXPECT_EQ(replies[3]["value"]["rows"], 26);
    EXPECT_EQ(replies[7]["value"], (json{16777215, 16579315, 16777215}));
    EXPECT_EQ(replies[4]["value"],
              (json{{"Nominativo", "", "Indirizzo", "Città", "Partita iva", ""},
                    {"ZETA", "seconda riga", "indirizzo", "citta", "00000000001", "4"}}));
    EXPECT_EQ(replies[5]["ok"], false);
    EXPECT_EQ(replies[6]["ok"], false);
}

TEST_F(mirsel, APickedRowIsLookedUpByItsName) {
    const auto replies =
        open("bian", {"cell mirsel.elenco 1 3", "get mirorcx.Text2(0)", "get mirorcx.nome"});
    EXPECT_EQ(replies[3]["screen"], "mirorcx");
    EXPECT_FALSE(replies[3].contains("modal"));
    EXPECT_EQ(replies[4]["value"]["text"], "Bianchi e Rossi srl");
    EXPECT_EQ(replies[5]["value"]["text"], "");
}

TEST_F(mirsel, OfTwoEqualNamesTheSearchDecides) {
    // Whichever of the two was picked, the bisection lands on the same one.
    for (const char* pick : {"cell mirsel.elenco 2 0", "cell mirsel.elenco 3 0"}) {
        const auto replies = open("", {pick, "get mirorcx.HScroll1"});
        EXPECT_EQ(replies.back()["value"]["value"], 3) << pick;
    }
}

TEST_F(mirsel, LeavesWithoutAChoice) {
    // The button empties the search field; closing leaves its text for another try.
    for (const auto& [leave, text] :
         {std::pair{"click mirsel.indice", ""}, {"close mirsel", "ro"}}) {
        const auto replies = open(
            "ro", {"cell mirsel.elenco 20 0", leave, "get mirorcx.nome", "get mirorcx.HScroll1"});
        EXPECT_EQ(replies[3]["screen"], "mirsel") << "a blank row chooses nothing";
        EXPECT_EQ(replies[4]["screen"], "mirorcx");
        EXPECT_FALSE(replies[4].contains("modal"));
        EXPECT_EQ(replies[5]["value"]["text"], text);
        EXPECT_EQ(replies[6]["value"]["value"], 1);
    }
}

TEST_F(mirsel, SortsWithItsBlankRowsAtTheBottom) {
    const auto replies =
        open("", {"click mirsel.srx(0)", "rows mirsel.elenco 1 5", "colors mirsel.elenco 24 25"});
    EXPECT_EQ(replies[3]["focus"], "elenco");
    EXPECT_EQ(replies[5]["value"], (json{16579315, 16777215}));
    EXPECT_EQ(replies[4]["value"][0][0], "Bianchi e Rossi srl");
    EXPECT_EQ(replies[4]["value"][3][0], "ZETA");
    EXPECT_EQ(replies[4]["value"][4][0], "");
}

}  // namespace
}  // namespace vantora::test
