#include "fulfil/mirorca.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "fulfil/fulfil_stage.h"
#include "fulfil/mirorcc.h"
#include "register/mirorc.h"
#include "scripted/order_company.h"
#include "scripted/scripted_run.h"
#include "scripted/station.h"
#include "text/code_page.h"

namespace vantora::test {
namespace {

/// The lines of a document's snapshot.
std::vector<std::string> snapshot(const small_company& company, const std::string& name) {
    std::ifstream in(company.file("x").parent_path() / name, std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) {
        EXPECT_TRUE(line.ends_with('\r'));
        line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

/// A document of all five pieces of A1, a text and 200 pieces of A2, more than there are.
struct document_stage : fulfil_stage {
    explicit document_stage(int automatic_weight = 1) {
        order(1, 1, {{1, 5}, {0, 0, 0, "fragile"}, {2, 200}});
        change_stored(files.art, 1, [](rec_art& one) { one.giacenza = 5; });
        change_stored(gnr, 1, [&](rec_gnr& general) {
            general.peso_automatico = static_cast<std::int16_t>(automatic_weight);
        });
        counter(contatori::documenti_trasporto, 7, 41);
        counter(contatori::magazzino, 9);
        run();
        open_worklist(1);
        click(1, mirorcr::ordine);
        book();
    }
    mirorca& screen() { return *app.mirorca; }
};

TEST(mirorca, OpensOnTheRowsThatLeave) {
    document_stage stage;
    mirorca& screen = stage.screen();
    const std::pair<std::string, const char*> shown[] = {
        {screen.artic[0].text(), "A1"},
        {screen.quantita[2].text(), "200"},
        {screen.artic[1].text() + screen.ds[1].text(), "fragile"},
        {screen.text1[1].text(), "DDT n.42"},
        {screen.Text.text(), "06/05/2024"},
        {screen.tota[0].text(), "205 "},
        // The text has a price of its own, which counts once.
        {screen.tota[1].text(), "1.854,00 "},
        {stage.app.mirorcc->Text3[3].text(), "51,25"},
        {document_stage(0).app.mirorcc->Text3[3].text(), ""}};
    for (const auto& [text, expected] : shown) EXPECT_EQ(text, expected);
    EXPECT_TRUE(screen.prezz[1].on() && screen.scarica.on());
    const std::string& weight = stage.app.mirorcc->Text3[3].text();
    stage.desk.dispatch([&] { screen.quantita[0].set_text("0.0001"); });
    EXPECT_EQ(weight, "50,");
    // It goes with its article: another one's, none for a text.
    change_stored(stage.files.art, 3, [](rec_art& one) { one.peso = 2; });
    stage.desk.dispatch([&] {
        screen.artic[2].set_focus();
        screen.lookup().List1.pick(2);
    });
    EXPECT_EQ(weight, "400,");
    stage.desk.dispatch([&] { screen.ds[2].set_focus(); });
    EXPECT_EQ(weight, "0,");
    EXPECT_EQ(screen.quantita[2].text(), "200");
}

TEST(mirorca, MovementRecordAndSnapshotSayWhatLeft) {
    document_stage stage;
    stage.desk.dispatch([&] {
        stage.screen().sc2[0].set_text("5");
        stage.screen().text1[0].set_text("rif. 7");
        stage.screen().Text.choose({2024, 5, 7});
    });
    stage.confirm({false, true, false, false});
    const rec_mag moved = stored(stage.files.mag, 10);
    EXPECT_EQ(moved.data.full(), "20240507");
    EXPECT_EQ(moved.documento.trimmed(), "rif. 7");
    EXPECT_EQ(moved.prezzo, 8.55);
    EXPECT_EQ(stored(stage.files.bol, 8).data.full(), "20240506");
    EXPECT_EQ(stage.app.mirorc->elenco.text(1, mirorc::evasione), "EVASO");

    const auto lines = snapshot(stage, "b1");
    ASSERT_EQ(lines.size(), 2020U);
    std::string head;
    for (int i = 0; i < 20; ++i)
        head += std::string(trimmed(lines[static_cast<std::size_t>(i)])) + "|";
    EXPECT_EQ(head, "1|42|06/05/2024||1,25|06/05/2024|10:20|0|0|00|1||A1|merce|PZ|10|5|4|5|10|");
    EXPECT_EQ(lines[11].size() + lines[12].size() + lines[13].size(), 15U + 15 + 60);
    EXPECT_EQ(lines[10 + 20], "0") << "the line that was refused is gone";
    EXPECT_EQ(lines[10 + 25], "10") << "its discount stays";
    EXPECT_EQ(lines[10 + 28], "0");
    EXPECT_EQ(
        (std::vector(lines.end() - 10, lines.end())),
        (std::vector<std::string>{"amm 1", "amm 2", "amm indirizzo", "06012", "amm citta",
                                  "corriere 1", "corriere 2", "corriere 3", "nota 1", "nota 2"}));
}

TEST(mirorca, DocumentCountersAtTheirLimits) {
    const struct {
        float progressive;
        float next;
        const char* file;
    } cases[] = {{16777216, 16777216, "b16777216"},
                 {1.0001e9F, 1, "b1"},
                 {-3, -2, "b-2"},
                 {std::numeric_limits<float>::quiet_NaN(), 0, "b0"}};
    for (const auto& one : cases) {
        document_stage stage;
        const auto file = stage.file("x").replace_filename(one.file);
        const auto others = stage.file("altrui");
        put(others, "altrui");
        std::filesystem::create_symlink(others, file);
        rec_tot counter{};
        counter.quanti = 32766;
        counter.ultimo_numero = 41;
        counter.progressivo = one.progressive;
        stage.files.tot.write(contatori::documenti_trasporto, counter);
        stage.app.mirorcc->Text3[0].set_text("40000");
        stage.desk.dispatch([&] { stage.screen().scarica.toggle(); });
        stage.confirm({true, false, false});
        counter = stage.counter_now(contatori::documenti_trasporto);
        EXPECT_EQ(counter.quanti, 32767);
        EXPECT_EQ(counter.ultimo_numero, 41);
        EXPECT_TRUE(counter.progressivo == one.next || one.next == 0) << counter.progressivo;
        EXPECT_EQ(snapshot(stage, one.file).size(), 2020U) << one.progressive;
        EXPECT_EQ(stage.content("altrui"), "altrui") << "not written through a link";
        EXPECT_EQ(std::filesystem::file_size(stage.file("bol")), 32767U * 97);
    }
}

TEST(mirorca, ADocumentIsCountedWithoutTheCopyThatCantBeMade) {
    document_stage stage;
    std::filesystem::create_directory(stage.file("x").replace_filename("b1"));
    stage.confirm({false, true, false, false});
    EXPECT_FALSE(stage.desk.ended());
    EXPECT_EQ(stage.counter_now(contatori::documenti_trasporto).quanti, 8);
}

TEST(mirorca, WhatIsStoredElsewhereDuringAQuestionStays) {
    document_stage stage;
    stage.desk.dispatch([&] { stage.screen().ds[1].set_text("a mano"); });
    stage.front.decide = [&] {
        stage.screen().comando[0].click();
        stage.app.mirorcc->show();
        stage.screen().show();
        EXPECT_EQ(stage.screen().ds[1].text(), "a mano") << "nothing else happens meanwhile";
        const bool asked = stage.front.told.back().starts_with("La giacenza");
        EXPECT_TRUE(!asked || stage.front.told.back().ends_with("ugualmente?"));
        if (asked) change_stored(stage.files.art, 2, [](rec_art& one) { one.prezzo1 = 7; });
        return asked;
    };
    stage.confirm({});
    EXPECT_EQ(stage.article_now(2).giacenza, -100);
    EXPECT_EQ(stage.article_now(2).prezzo1, 7);
}

/// Numbers given in the year already, texts that are none, dates that are none.
TEST(mirorca, DoubtfulNumbersAndDatesAreAskedAboutBeforeTheyAreStored) {
    constexpr int nothing = -1;
    const struct {
        const char* number;
        const char* date;
        std::vector<bool> answers;  ///< behind that on the document
        int stored;
        const char* day;
    } cases[] = {{"7", "06/05/2024", {true}, 7, "20240506"},
                 {"7", "06/05/2024", {false, false}, nothing, ""},
                 {"7", "06/05/2024", {false, true}, 9, "20240506"},
                 {"7", "06/05/2023", {}, 7, "20230506"},
                 {"8", "06/05/2024", {}, 8, "20240506"},
                 {"A12/26", "06/05/2024", {true}, 0, "20240506"},
                 {"8", "31/02/2024", {false, false}, nothing, ""},
                 {"7", "", {false, true, false, true}, 9, "20240506"},
                 {"A1", "x", {false, true}, 9, "20240506"}};
    for (const auto& one : cases) {
        SCOPED_TRACE(std::string(one.number) + " " + one.date);
        fulfil_stage stage;
        stage.order(1, 1, {{1, 5}});
        rec_bol given;
        given.numero = 7;
        given.data = "20240102";
        given.cliente = 2;
        stage.files.bol.write(1, given);
        stage.counter(contatori::documenti_trasporto, 1, 8);
        stage.run();
        stage.desk.guards().switch_to(true);
        stage.open_worklist(1);
        stage.app.mirorcc->Text3[campo_ddt::numero].set_text(one.number);
        stage.app.mirorcc->Text3[campo_ddt::data].set_text(one.date);
        stage.click(1, mirorcr::da_evadere);
        stage.book();
        stage.app.mirorca->scarica.set_on(false);
        std::vector<bool> answers{true};
        answers.insert(answers.end(), one.answers.begin(), one.answers.end());
        stage.confirm(answers);
        EXPECT_EQ(stage.desk.active()->name(), one.stored == nothing ? "mirorca" : "mirorc");
        EXPECT_EQ(stage.counter_now(contatori::documenti_trasporto).quanti,
                  one.stored == nothing ? 1 : 2);
        if (one.stored == nothing) continue;
        EXPECT_EQ(stored(stage.files.bol, 2).numero, one.stored);
        EXPECT_EQ(stored(stage.files.bol, 2).data.full(), one.day);
    }
}

TEST(mirorca, NoGoodsLeaveWithoutRoomForTheirDocument) {
    document_stage stage;
    stage.counter(contatori::documenti_trasporto, 32767);
    const std::string before = stage.content("art") + stage.content("mag") + stage.content("tot");
    stage.confirm({});
    EXPECT_EQ(stage.content("art") + stage.content("mag") + stage.content("tot"), before);
    EXPECT_EQ(stage.desk.active()->name(), "mirorca");
    EXPECT_TRUE(stage.front.told.back().starts_with("L'archivio vantora.bol è pieno"_cp));
}

TEST(mirorca, AWindowsQuestionTellsHowTheStockStands) {
    document_stage stage;
    stage.desk.guards().switch_to(true);
    stage.confirm({});
    const auto& told = stage.front.told;
    const auto asked = std::ranges::find_if(
        told, [](const std::string& text) { return text.starts_with("La giacenza"); });
    ASSERT_NE(asked, told.end());
    EXPECT_NE(asked->find("\nA2:  in magazzino 104,00"), std::string::npos) << *asked;
    EXPECT_NE(asked->find("da scaricare 200,00\n"), std::string::npos) << *asked;
}

TEST(mirorca, ClosingWritesNothingAndBoxesStayTickedUntilThen) {
    document_stage stage;
    stage.desk.dispatch([&] { stage.screen().scarica.toggle(); });
    stage.confirm({false});
    const auto writes = stage.faults.writes;
    stage.open_worklist(1);
    stage.book();
    EXPECT_FALSE(stage.screen().scarica.on());
    EXPECT_EQ(stage.screen().artic[0].text(), "");
    stage.desk.dispatch([&] { stage.desk.close(stage.screen()); });
    EXPECT_EQ(stage.faults.writes, writes);
    EXPECT_EQ(stage.desk.active()->name(), "mirorc");
    EXPECT_FALSE(stage.app.mirorca.loaded());

    document_stage guarded;
    guarded.desk.guards().switch_to(true);
    guarded.front.decide = [] { return false; };
    guarded.desk.dispatch([&] { guarded.desk.close(guarded.screen()); });
    EXPECT_TRUE(guarded.front.told.back().ends_with("senza movimento e senza documento."));
    EXPECT_TRUE(guarded.screen().visible());
}

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
