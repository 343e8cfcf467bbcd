#include <gtest/gtest.h>

#include "scripted/scripted_run.h"
#include "scripted/small_company.h"

namespace vantora::test {
namespace {

using json = nlohmann::json;

class transport_data : public testing::Test {
 protected:
    transport_data() {
        company.table_file();
        rec_cli gone = customer_named("*BIANCHI");
        gone.eliminato = 1;
        company.customers({gone, customer_named("ROSSI SPA"), customer_named("VERDI SRL")});
        company.counter(contatori::documenti_trasporto, 3, 41);
    }
    /// The texts of some controls of the screen behind the commands.
    std::vector<std::string> after(std::vector<std::string> commands,
                                   const std::vector<std::string>& controls) {
        commands.insert(commands.begin(), "click mirorc.bottone(8)");
        commands.emplace_back("controls mirorcc");
        const json state = run_script(company.drive(), commands).back().at("value");
        std::vector<std::string> texts;
        for (const auto& control : controls) texts.push_back(state.at(control).at("text"));
        return texts;
    }
    small_company company;
};

using texts = std::vector<std::string>;

TEST_F(transport_data, ComesUpWithItsDefaultsAndKeepsOnlyPortAndTransport) {
    const texts fields = {"Text3(0)",  "Text3(1)", "Text3(2)",  "Text3(4)", "Text3(5)",
                          "Combo1(1)", "Combo2",   "Combo1(0)", "Combo1(2)"};
    EXPECT_EQ(after({}, fields), (texts{"42", "06/05/2024", "", "06/05/2024", "10:20", "Causale 1",
                                        "Aspetto 1", "Porto franco", "Mittente"}));
    EXPECT_EQ(
        after(
            {"pick mirorcc.Combo1(1) 4", "pick mirorcc.Combo2 4", "pick mirorcc.Combo1(0) 1",
             "pick mirorcc.Combo1(2) 2", "set mirorcc.Text3(2) \"7\"", "scroll mirorcc.HScroll1 2",
             "click mirorcc.bottone", "click mirorcr.bottone(0)", "click mirorc.bottone(8)"},
            fields),
        (texts{"42", "06/05/2024", "", "06/05/2024", "10:20", "Causale 1", "Aspetto 1",
               "Porto assegnato", "Vettore"}));
    company.counter(contatori::documenti_trasporto, 3, 32767);
    EXPECT_EQ(after({}, {"Text3(0)", "Text3(1)"}), (texts{"", "06/05/2024"}));
}

TEST_F(transport_data, DatesGoBesideTheirPickersAndAWrongOneStopsNothing) {
    EXPECT_EQ(after({"date mirorcc.text5(1) \"07/08/2024\"", "set mirorcc.Text3(1) \"boh\"",
                     "clock \"2024-05-09 10:20:30\""},
                    {"Text3(4)", "text5(0)"}),
              (texts{"07/08/2024", "06/05/2024"}));
    const auto replies =
        run_script(company.drive(), {"click mirorc.bottone(8)", "scroll mirorcc.HScroll1 2",
                                     "set mirorcc.Text3(1) \"boh\"", "click mirorcc.bottone"});
    EXPECT_EQ(replies.back()["screen"], "mirorcr");
}

}  // namespace
}  // namespace vantora::test
