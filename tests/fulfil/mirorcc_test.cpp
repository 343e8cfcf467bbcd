#include <gtest/gtest.h>

#include "fulfil/mirorcc.h"
#include "register/mirorc.h"
#include "scripted/order_company.h"
#include "scripted/scripted_run.h"
#include "scripted/station.h"

namespace vantora::test {
namespace {

TEST(transport_data, ControlsShowTheirDefaultsAndWhatFollows) {
    order_company company;
    rec_cli gone = customer_named("*BIANCHI");
    gone.eliminato = 1;
    company.customers({gone, customer_named("ROSSI SPA"), customer_named("VERDI SRL")});
    company.counter(contatori::documenti_trasporto, 3, 41);
    using texts = std::vector<std::string>;
    const auto replies = [&](texts commands) {
        commands.insert(commands.begin(), "click mirorc.bottone(8)");
        commands.emplace_back("controls mirorcc");
        return run_script(company.drive(), commands);
    };
    const texts left_list = {"scroll mirorcc.HScroll1 2", "set mirorcc.Text3(2) \"7\"",
                             "pick mirorcc.Combo2 4", "click mirorcc.b_lista",
                             "click mirsel.indice"};
    texts guarded = left_list;
    guarded.insert(guarded.begin(), "guards on");
    const std::pair<texts, texts> cases[] = {
        // Who leaves the list without a choice begins anew, unless what was typed is guarded.
        {left_list, {"Text3(2)=", "Combo2=Aspetto 1", "Text2(0)=BIANCHI"}},
        {guarded, {"Text3(2)=7", "Combo2=Aspetto 5", "Text2(0)=ROSSI SPA"}},
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
    };
    for (const auto& [commands, shown] : cases) {
        const auto last = replies(commands).back();
        for (const std::string& one : shown) {
            const std::string place = one.substr(0, one.find('='));
            const auto& told = place == "screen" ? last["screen"] : last["value"][place]["text"];
            EXPECT_EQ(place + "=" + told.get<std::string>(), one);
        }
    }
    const auto list =
        replies({"set mirorcc.nome \" verdi \"", "click mirorcc.b_lista", "get mirsel.selnome"});
    EXPECT_EQ(list.at(3)["value"]["text"], "verdi");
    // Another station's new customers move the one that stands there, or lie behind all.
    for (const char* added : {"NERI", "ZETA"}) {
        station at(company.drive());
        at.run();
        at.desk.dispatch([&] { at.app.mirorc->bottone[8].click(); });
        mirorcc& screen = *at.app.mirorcc;
        at.desk.dispatch([&] { screen.HScroll1.drag(2); });
        company.customers({gone, customer_named("ROSSI SPA"), customer_named("VERDI SRL"),
                           customer_named(added)});
        at.desk.dispatch([&] {
            screen.nome.set_text(added);
            screen.b_cerca.click();
        });
        EXPECT_EQ(screen.Text2[0].text(), added);
        company.customers({gone, customer_named("ROSSI SPA"), customer_named("VERDI SRL")});
    }
    company.counter(contatori::documenti_trasporto, 3, 32767);
    EXPECT_EQ(replies({}).back()["value"]["Text3(0)"]["text"], "");
}

}  // namespace
}  // namespace vantora::test
