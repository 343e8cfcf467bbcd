#include "reports/report.h"

#include <gtest/gtest.h>

#include "documents/print_file_reader.h"
#include "support/faulty_files.h"
#include "support/program_stage.h"

namespace vantora {
namespace {

constexpr colonna_report colonne[] = {{"Numero", 10, 0}, {"Cliente", 23, 0}, {"Valore", 10, 1}};
const descrizione_report report{"Stampa valorizzazione ordini", "Valorizzazione ordini",
                                "valoreordini.pdf", colonne};

/// A list of so many rows on its way out, on files that can fail.
struct report_road : testing::Test {
    report_road() {
        carica_parametri(app.parameters, files);
        app.parameters.parametri_valuta[valuta_slot::cartella_pdf] = "C:\\PDF";
        list.set_columns({{"Ordine"}, {"Cliente"}, {"Valore"}, {""}});
    }

    void print(int rows, uscita_report to) {
        list.set_rows(rows + 1);
        for (int row = 1; row <= rows; ++row) list.set_text(row, 0, "n. " + std::to_string(row));
        stampa_report(app, report, list, list.rows(), to);
    }
    std::vector<ui::answered_box> boxes() { return stage.desk.take_answered(); }
    /// Rows of the list on each page of the print file.
    std::vector<int> rows_in_file() {
        std::vector<int> counts;
        const auto read = leggi_file_di_stampa(files.read_whole(file_di_stampa).value_or(""));
        for (const auto& page : std::get<documento_di_stampa>(read).pagine) {
            counts.push_back(0);
            for (const auto& one : page) counts.back() += one.testo.starts_with("n. ");
        }
        return counts;
    }

    test::program_stage<> stage;
    test::faulty_files files{stage.files};
    program app{files, stage.desk, stage.pictures};
    ui::grid list;
};

TEST_F(report_road, PrintsAfterAYes) {
    stage.desk.queue_answer(ui::answer::no);
    print(3, uscita_report::stampante);
    EXPECT_TRUE(stage.paper.take_jobs().empty());
    stage.desk.queue_answer(ui::answer::yes);
    print(3, uscita_report::stampante);
    EXPECT_EQ(stage.paper.take_jobs().size(), 1U);
    const auto asked = boxes();
    ASSERT_EQ(asked.size(), 2U);
    EXPECT_EQ(asked[1].box.text, "Iniziare la stampa?");
    EXPECT_EQ(asked[1].box.title, "Stampa valorizzazione ordini");
    EXPECT_FALSE(stage.files.read_whole(file_di_stampa));
    EXPECT_EQ(stage.desk.pointer_shape(), ui::pointer::normal);
}

TEST_F(report_road, TheFirstPageHasOneRowLessAndNoRowLosesItsPage) {
    const std::pair<int, std::vector<int>> cases[] = {
        {0, {}}, {1, {1}}, {62, {62}}, {63, {62, 1}}, {125, {62, 63}}, {126, {62, 63, 1}}};
    for (const auto& [rows, pages] : cases) {
        stage.desk.queue_answer(ui::answer::ok);
        print(rows, uscita_report::pdf);
        EXPECT_EQ(rows_in_file(), pages) << rows;
    }
}

TEST_F(report_road, ThePdfIsNamedOrRefused) {
    const std::string made =
        "Il file VALOREORDINI.PDF è stato creato all'interno della cartella "_cp;
    const std::string refused =
        "Non è possibile eseguire il programma di generazione dei files PDF."_cp;
    const std::string command = "\\mirwin\\mirwin\\mirxpdf ***,c:\\mirdoc.rto,";
    struct {
        const char* folder;
        bool can_start;
        int failing_from;  ///< offset of the first write that fails
        std::string text;
        std::string started;
    } const cases[] = {
        {"C:\\PDF", true, 1 << 30, made + "C:\\PDF", command + "C:\\PDF\\valoreordini.pdf, ***"},
        {"C:\\PDF\\ ", true, 1 << 30, made + "C:\\PDF\\ ",
         command + "C:\\PDF\\valoreordini.pdf, ***"},
        {"C:", false, 1 << 30, refused, ""},
        {"C:", true, 0, refused, ""},
        {"C:", true, 65000, refused, ""},
    };
    for (const auto& one : cases) {
        app.parameters.parametri_valuta[valuta_slot::cartella_pdf] = one.folder;
        stage.programs.allow(one.can_start);
        files.write_fails = [&](const std::string&, std::int64_t at) {
            return at >= one.failing_from;
        };
        stage.desk.queue_answer(ui::answer::ok);
        print(1000, uscita_report::pdf);
        const auto shown = boxes();
        ASSERT_EQ(shown.size(), 1U);
        EXPECT_EQ(shown[0].box.text, one.text);
        EXPECT_EQ(shown[0].box.title, "Attenzione");
        EXPECT_EQ(shown[0].box.icon, one.text == refused ? ui::icon::stop : ui::icon::warning);
        const auto started = stage.programs.take_started();
        EXPECT_EQ(started, one.started.empty() ? std::vector<std::string>{}
                                               : std::vector<std::string>{one.started});
    }
    files.write_fails = nullptr;
    std::filesystem::remove(stage.files.locate(file_di_stampa));
    std::filesystem::create_directory(stage.files.locate(file_di_stampa));
    stage.programs.allow(true);
    stage.desk.queue_answer(ui::answer::ok);
    print(3, uscita_report::pdf);
    EXPECT_EQ(boxes().at(0).box.text, refused);
}

TEST_F(report_road, NoSettingStopsAReportOrLosesARow) {
    struct {
        int left, right, top, bottom, height, size;
    } const cases[] = {{30, 950, 30, 950, 0, 0},     {950, 30, 950, 30, 240, 9},
                       {0, 0, 0, 0, 240, 32767},     {30, 950, 30, 950, -32768, 9},
                       {30, 950, 30, 32767, 240, 9}, {-32768, 32767, -32768, 32767, 0, -1}};
    for (const auto& one : cases) {
        for (const int look : {0, 1, 7}) {
            for (auto& entry : app.parameters.tabella_stampa) {
                entry = {};
                entry.corpo_carattere = static_cast<std::int16_t>(one.size);
                entry.colore = entry.sfondo = -1e300;
            }
            voce_stampa& sheet = app.parameters.tabella_stampa[0];
            sheet.margine_sinistro = static_cast<std::int16_t>(one.left);
            sheet.margine_destro = static_cast<std::int16_t>(one.right);
            sheet.margine_alto = static_cast<std::int16_t>(one.top);
            sheet.margine_basso = static_cast<std::int16_t>(one.bottom);
            sheet.altezza = static_cast<std::int16_t>(one.height);
            app.parameters.tabella_stampa[1].stile = static_cast<std::int16_t>(look);
            stage.desk.queue_answer(ui::answer::yes);
            print(1200, uscita_report::stampante);
            const auto jobs = stage.paper.take_jobs();
            ASSERT_EQ(jobs.size(), 1U);
            EXPECT_GE(jobs[0].pages.size(), 2U);
            EXPECT_LE(jobs[0].pages.size(), 1200U);
            stage.desk.queue_answer(ui::answer::ok);
            print(1200, uscita_report::pdf);
            EXPECT_GE(rows_in_file().size(), 19U);
        }
    }
}

TEST_F(report_road, ALineEndInATextBreaksNoRecord) {
    list.set_rows(2);
    list.set_text(1, 0, "n. 1\r\n9\r\n");
    stage.desk.queue_answer(ui::answer::ok);
    stampa_report(app, report, list, list.rows(), uscita_report::pdf);
    EXPECT_EQ(rows_in_file(), std::vector{1});
}

}  // namespace
}  // namespace vantora
