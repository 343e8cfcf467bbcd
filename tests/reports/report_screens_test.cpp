// What a user meets on the report screens beside their rows.

#include <gtest/gtest.h>

#include "reports/report_stage.h"
#include "support/file_bytes.h"
#include "text/code_page.h"

namespace vantora::test {
namespace {

/// Three orders of one article, the second fulfilled.
struct report_screens : testing::Test {
    report_screens() {
        for (const int number : {1, 2, 3}) {
            stage.company.order(number, 1, {{1, 10, number == 2 ? 10.0 : 0, ""}});
        }
    }
    report_screen& open(ui::screen_place& place) {
        place.use().show();
        return static_cast<report_screen&>(place.use());
    }
    static std::string column(const report_screen& screen, int col) {
        std::string texts;
        for (int row = 1; row < screen.elenco.rows(); ++row) {
            texts.append(screen.elenco.text(row, col)).append("|");
        }
        return texts.substr(0, texts.find_last_not_of('|') + 1);
    }
    static void build(report_screen& screen) { screen.bottone[report_screen::aggiorna].click(); }
    /// Presses Enter in one field after the other, and tells them.
    std::string enter_chain(report_screen& screen) {
        std::string chain;
        while (stage.desk.focus() != &screen.bottone[report_screen::aggiorna]) {
            chain += stage.desk.focus()->address() + " ";
            stage.desk.focus()->press_key(ui::key::enter, '\r');
        }
        return chain;
    }

    report_stage stage;
    program& app = stage.app;
};

TEST_F(report_screens, EnterGoesThroughTheFiltersAndBringsTheBoundsBack) {
    const struct {
        ui::screen_place& place;
        const char* title;
        const char* chain;
    } screens[] = {
        {app.mirstoe, "Elenco ordini", "Combo1 Combo2 text1(0) text1(1) "},
        {app.mirstos, "Scadenziario ordini", "Combo2 text1(0) text1(1) text2(0) text2(1) "},
        {app.mirstov, "Valorizzazione ordini", "Combo1 text1(0) text1(1) "},
        {app.mirston, "Schede clienti", "t_inizio t_fine text1(0) text1(1) "},
        {app.mirstoa, "Schede articoli", "t_inizio t_fine Combo0 Text(1) Text3 text1(0) text1(1) "},
    };
    const char* bounds[][3] = {
        {"0", "99999", "1-3"}, {"3", "2", "2-2"}, {"abc", "-4", "-4--4"}, {" 2x", "2.6", "2-3"}};
    for (const auto& one : screens) {
        report_screen& screen = open(one.place);
        const auto shown = [&] { return screen.text1[0].text() + "-" + screen.text1[1].text(); };
        EXPECT_EQ(screen.title(), one.title);
        EXPECT_EQ(shown(), "1-3");
        EXPECT_EQ(enter_chain(screen), one.chain);
        for (const auto& [from, to, right] : bounds) {
            screen.text1[0].set_text(from);
            screen.text1[1].set_text(to);
            screen.text1[1].set_focus();
            screen.text1[1].press_key(ui::key::enter, '\r');
            EXPECT_EQ(shown(), right);
        }
        screen.bottone[report_screen::uscita].click();
        EXPECT_FALSE(one.place.loaded());
        EXPECT_EQ(stage.desk.active()->name(), "mirorc");
    }
}

TEST_F(report_screens, TheSelectorsOfTheOrderListAreLinked) {
    report_screen& screen = open(app.mirstoe);
    EXPECT_EQ(column(screen, 0), "10|20|30");
    const std::size_t reads = stage.faults.reads;
    screen.Combo1.pick(report_screen::da_evadere);
    EXPECT_EQ(screen.Combo2.text(), "Analitico");
    EXPECT_EQ(column(screen, 0), "10|30");
    EXPECT_EQ(column(screen, 5), "10,00|10,00");
    EXPECT_LE(stage.faults.reads - reads, 3U + 3 + 2) << "built once";
    screen.Combo2.pick(0);
    EXPECT_EQ(screen.Combo1.text(), "Tutti gli ordini");
    EXPECT_EQ(column(screen, 5), "");
}

TEST_F(report_screens, TheScheduleIsBuiltFromDaysWhereAPersonTypesThem) {
    report_screen& screen = open(app.mirstos);
    for (const char* typed : {"1/3/2024", "010324"}) {
        screen.text2[0].set_text(typed);
        build(screen);
        EXPECT_EQ(column(screen, 0), "") << "read as it stands";
        EXPECT_EQ(screen.text2[0].text(), typed);
    }
    app.mirstos->text5[1].choose({2024, 3, 1});
    EXPECT_EQ(screen.text2[1].text(), "01/03/2024");
    stage.desk.guards().switch_to(true);
    build(screen);
    EXPECT_EQ(column(screen, 0), "10|30");
    EXPECT_EQ(screen.text2[0].text(), "01/03/2024");
    std::string told;
    screen.text2[1].set_text("boh");
    stage.front.actions = {[&] {
        told = stage.desk.open_box()->text;
        stage.desk.answer_box(ui::answer::ok);
    }};
    build(screen);
    EXPECT_EQ(told, "La data non è corretta: boh"_cp);
    EXPECT_TRUE(screen.text2[1].has_focus());
    EXPECT_EQ(column(screen, 0), "10|30") << "the list stays";
}

TEST_F(report_screens, ABuildGoesOnUnderTheHandsOfTheUser) {
    report_screen& screen = open(app.mirstov);
    auto& user = stage.front;
    user.pending = [&] {
        const std::size_t reads = stage.faults.reads;
        build(screen);
        screen.bottone[report_screen::pdf].click();
        EXPECT_EQ(stage.faults.reads, reads);
        EXPECT_GE(screen.srt.value(), 1);
        EXPECT_TRUE(screen.srt.visible());
    };
    build(screen);
    EXPECT_EQ(column(screen, 4), "90,00|90,00|90,00|270,00");
    EXPECT_FALSE(screen.srt.visible());
    EXPECT_EQ(stage.desk.pointer_shape(), ui::pointer::normal);
    EXPECT_TRUE(stage.programs.take_started().empty());

    user.pending = [&] { screen.Combo1.pick(report_screen::evasi); };
    build(screen);
    EXPECT_EQ(column(screen, 4), "90,00|90,00") << "begins anew with the other choice";

    stage.desk.dispatch([&] {
        user.pending = [&] { stage.desk.close(screen); };
        build(screen);
        EXPECT_EQ(stage.desk.active()->name(), "mirorc");
    });
    EXPECT_FALSE(app.mirstov.loaded());
    EXPECT_EQ(column(open(app.mirstov), 4), "90,00|90,00|90,00|270,00");
}

TEST_F(report_screens, PutTheirListOutAndLeaveAllFilesAsTheyWere) {
    open(app.mirstov);  // creates the general parameters, as the first start of a company does
    const auto folder = stage.company.file("orc").parent_path();
    const auto before = files_under(folder);
    for (ui::screen_place* place : std::initializer_list<ui::screen_place*>{
             &app.mirstoe, &app.mirstos, &app.mirstov, &app.mirston, &app.mirstoa}) {
        report_screen& screen = open(*place);
        screen.text2[0].set_text("01/01/2024");
        stage.front.answers.keep(ui::answer::ok);
        screen.bottone[report_screen::pdf].click();
        build(screen);
        for (const bool prints : {false, true}) {
            stage.front.answers.keep(prints ? ui::answer::yes : ui::answer::no);
            screen.bottone[report_screen::stampa].click();
            EXPECT_EQ(stage.paper.take_jobs().size(), prints ? 1U : 0U) << screen.name();
        }
        EXPECT_EQ(stage.programs.take_started().size(), 1U) << screen.name();
        stage.desk.close(screen);
    }
    EXPECT_EQ(files_under(folder), before);
}

}  // namespace
}  // namespace vantora::test
