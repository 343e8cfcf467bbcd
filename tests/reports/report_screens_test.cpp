// What a user meets on the report screens beside their rows.

#include <gtest/gtest.h>

#include "reports/report_stage.h"
#include "support/file_bytes.h"

namespace vantora::test {
namespace {

/// Three orders of one article and one customer, the second fulfilled.
struct report_screens : testing::Test {
    report_screens() {
        stage.company.customers({customer_named("ROSSI")});
        stage.company.articles({article("A1", "Vite", 2.5)});
        rec_orc row{};
        row.cliente = std::int16_t{1};
        row.data_evasione = "20240701";
        row.descrizione = "";
        for (int i = 1; i <= 3; ++i) {
            row.numero = std::to_string(i);
            std::vector<rec_orc> block(righe_blocco, row);
            block[0].articolo = std::int16_t{1};
            block[0].quantita = 10;
            block[0].prezzo = 2.5;
            block[0].evaso = i == 2 ? 10 : 0;
            stage.company.files.orc.write_block(block_record(i, 1), block);
        }
        stage.company.counter(contatori::ordini, 3);
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
        while (stage.around.desk.focus() != &screen.bottone[report_screen::aggiorna]) {
            chain += stage.around.desk.focus()->address() + " ";
            stage.around.desk.focus()->press_key(ui::key::enter, '\r');
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
        EXPECT_EQ(stage.around.desk.active()->name(), "mirorc");
    }
}

TEST_F(report_screens, TheSelectorsOfTheOrderListAreLinked) {
    report_screen& screen = open(app.mirstoe);
    EXPECT_EQ(column(screen, 0), "1|2|3");
    const std::size_t reads = stage.files.reads;
    screen.Combo1.pick(report_screen::da_evadere);
    EXPECT_EQ(screen.Combo2.text(), "Analitico");
    EXPECT_EQ(column(screen, 0), "1|3");
    EXPECT_EQ(column(screen, 5), "10,00|10,00");
    EXPECT_LE(stage.files.reads - reads, 3U + 3 + 2) << "built once";
    screen.Combo2.pick(0);
    EXPECT_EQ(screen.Combo1.text(), "Tutti gli ordini");
    EXPECT_EQ(column(screen, 5), "");
}

TEST_F(report_screens, ABuildGoesOnUnderTheHandsOfTheUser) {
    report_screen& screen = open(app.mirstov);
    auto& user = stage.around.user;
    user.pending = [&] {
        const std::size_t reads = stage.files.reads;
        build(screen);
        screen.bottone[report_screen::pdf].click();
        EXPECT_EQ(stage.files.reads, reads);
        EXPECT_GE(screen.srt.value(), 1);
        EXPECT_TRUE(screen.srt.visible());
    };
    build(screen);
    EXPECT_EQ(column(screen, 4), "25,00|25,00|25,00|75,00");
    EXPECT_FALSE(screen.srt.visible());
    EXPECT_TRUE(stage.around.programs.take_started().empty());

    user.pending = [&] { screen.Combo1.pick(report_screen::evasi); };
    build(screen);
    EXPECT_EQ(column(screen, 4), "25,00|25,00") << "begins anew with the other choice";

    stage.around.desk.dispatch([&] {
        user.pending = [&] { stage.around.desk.close(screen); };
        build(screen);
        EXPECT_EQ(stage.around.desk.active()->name(), "mirorc");
        EXPECT_EQ(stage.around.desk.pointer_shape(), ui::pointer::normal);
    });
    EXPECT_FALSE(app.mirstov.loaded());
    EXPECT_EQ(column(open(app.mirstov), 4), "25,00|25,00|25,00|75,00");
}

TEST_F(report_screens, ParametersAndCategoriesComeFromTheFilesOfTheMoment) {
    stage.company.text("tb2", std::vector<std::string>(10000, "Categoria"));
    std::vector<std::string> pdf(80, "altrove");
    pdf[5 * 4 + 2] = " C:\\Ordini ";
    stage.company.text("pdf", pdf);
    std::ofstream(stage.company.file("eur").parent_path().parent_path() / "vantora.eur")
        << "0\n1\nITL\nEUR\n2\n";
    EXPECT_EQ(open(app.mirstoa).Combo0.count(), 10001);
    EXPECT_EQ(column(*app.mirstoa, 0),
              "Per visualizzare il prospetto selezionare gli|articoli e/o gli ordini e clic sul "
              "bottone|'Aggiorna lista'");
    const std::string& folder = app.parameters.parametri_valuta[valuta_slot::cartella_pdf];
    EXPECT_EQ(folder, "C:\\Ordini");
    EXPECT_EQ(column(open(app.mirstov), 4), "25|25|25|75") << "whole lire";
    std::filesystem::remove(stage.company.file("pdf"));
    open(app.mirston);
    EXPECT_EQ(folder, "C:");
}

TEST_F(report_screens, PutTheirListOutAndLeaveAllFilesAsTheyWere) {
    open(app.mirstov);  // creates the general parameters, as the first start of a company does
    const auto folder = stage.company.file("orc").parent_path();
    const auto before = files_under(folder);
    for (ui::screen_place* place : std::initializer_list<ui::screen_place*>{
             &app.mirstoe, &app.mirstos, &app.mirstov, &app.mirston, &app.mirstoa}) {
        report_screen& screen = open(*place);
        stage.around.user.answers.keep(ui::answer::ok);
        screen.bottone[report_screen::pdf].click();
        build(screen);
        stage.around.user.answers.keep(ui::answer::yes);
        screen.bottone[report_screen::stampa].click();
        EXPECT_EQ(stage.around.paper.take_jobs().size(), 1U) << screen.name();
        EXPECT_EQ(stage.around.programs.take_started().size(), 1U) << screen.name();
        stage.around.desk.close(screen);
    }
    EXPECT_EQ(files_under(folder), before);
}

}  // namespace
}  // namespace vantora::test
