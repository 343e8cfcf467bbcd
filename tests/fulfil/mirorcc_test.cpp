#include <gtest/gtest.h>

#include "scripted/order_company.h"
#include "scripted/scripted_run.h"

namespace vantora::test {
namespace {

TEST(transport_data, ControlsShowTheirDefaultsAndWhatFollows) {
    order_company company;
    rec_cli gone = customer_named("*BIANCHI");
    gone.eliminato = 1;
    company.customers({gone, customer_named("ROSSI SPA"), customer_named("VERDI SRL")});
    company.counter(contatori::documenti_trasporto, 3, 41);
    using texts = std::vector<std::string>;
    const struct {
        texts commands;
        texts shown;
    } cases[] = {
        {{},
         {"Text3(0)=42", "Text3(1)=06/05/2024", "Text3(2)=", "Text3(4)=06/05/2024",
          "Text3(5)=10:20", "Combo1(1)=Causale 1", "Combo2=Aspetto 1", "Combo1(0)=Porto franco",
          "Combo1(2)=Mittente"}},
        // Port and transport outlast a showing.
        {{"pick mirorcc.Combo1(1) 4", "pick mirorcc.Combo2 4", "pick mirorcc.Combo1(0) 1",
          "pick mirorcc.Combo1(2) 2", "set mirorcc.Text3(2) \"7\"", "scroll mirorcc.HScroll1 2",
          "click mirorcc.bottone", "click mirorcr.bottone(0)", "click mirorc.bottone(8)"},
         {"Text3(0)=42", "Text3(2)=", "Combo1(1)=Causale 1", "Combo2=Aspetto 1",
          "Combo1(0)=Porto assegnato", "Combo1(2)=Vettore"}},
        {{"date mirorcc.text5(1) \"07/08/2024\"", "set mirorcc.Text3(1) \"boh\"",
          "clock \"2024-05-09 10:20:30\""},
         {"Text3(4)=07/08/2024", "text5(0)=06/05/2024"}},
        // A wrong date stops nothing, a deleted customer does.
        {{"set mirorcc.Text3(1) \"boh\"", "click mirorcc.bottone"}, {"screen=mirorcc"}},
        {{"scroll mirorcc.HScroll1 2", "set mirorcc.Text3(1) \"boh\"", "click mirorcc.bottone"},
         {"screen=mirorcr"}},
        {{"set mirorcc.nome \" verdi \"", "click mirorcc.b_lista", "get mirsel.selnome"},
         {"value=verdi"}},
    };
    for (const auto& one : cases) {
        texts commands = one.commands;
        commands.insert(commands.begin(), "click mirorc.bottone(8)");
        commands.emplace_back("controls mirorcc");
        const auto replies = run_script(company.drive(), commands);
        for (const std::string& shown : one.shown) {
            const std::string place = shown.substr(0, shown.find('='));
            const auto& told = place == "value"    ? replies[replies.size() - 2]["value"]["text"]
                               : place == "screen" ? replies.back()["screen"]
                                                   : replies.back()["value"][place]["text"];
            EXPECT_EQ(place + "=" + told.get<std::string>(), shown);
        }
    }
    company.counter(contatori::documenti_trasporto, 3, 32767);
    EXPECT_EQ(
        value_after(company.drive(), {"click mirorc.bottone(8)", "get mirorcc.Text3(0)"})["text"],
        "");
}

}  // namespace
}  // namespace vantora::test
