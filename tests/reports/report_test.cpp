#include "reports/report.h"

#include <gtest/gtest.h>

#include "documents/print_file_reader.h"
#include "support/program_stage.h"

namespace vantora {
namespace {

constexpr colonna_report colonne[] = {{"Numero", 10, 0}, {"Cliente", 23, 0}, {"Valore", 10, 1}};
const descrizione_report report{"Stampa valorizzazione ordini", "Valorizzazione ordini",
                                "valoreordini.pdf", colonne};

/// A list of so many rows on its way out, on files that can fail.
struct report_road : testing::Test {
    report_road() {
        carica_parametri(app.parameters, disk);
        list.set_columns({{"Ordine"}, {"Cliente"}, {"Valore"}, {""}});
    }
    /// Tells the boxes that were shown.
    std::vector<ui::script::answered_box> print(int rows, uscita_report to) {
        list.set_rows(rows + 1);
        for (int row = 1; row <= rows; ++row) {
            list.set_text(row, 0, "n. " + std::to_string(row) + "\r\n9");
        }
        const bool asks = to == uscita_report::stampante;
        stage.front.answers.keep(asks ? ui::answer::yes : ui::answer::ok);
        stampa_report(app, report, list, list.rows(), to);
        EXPECT_EQ(stage.desk.pointer_shape(), ui::pointer::normal);
        return stage.front.answers.take_answered();
    }
    /// Rows of the list on each page of the print file.
    std::vector<int> rows_in_file() {
        std::vector<int> counts;
        const auto read = read_print_file(stage.files.read_whole(file_di_stampa).value_or(""));
        for (const auto& page : std::get<documento_di_stampa>(read).pagine) {
            counts.push_back(0);
            for (const auto& one : page) counts.back() += one.testo.starts_with("n. ");
        }
        return counts;
    }

    test::program_stage<> stage;
    test::faulty_files disk{stage.files};
    program app{disk, stage.desk, stage.pictures};
    ui::grid list;
};

/// Nor does a line end in a text break a record.
TEST_F(report_road, TheFirstPageHasOneRowLessAndNoRowLosesItsPage) {
    const std::pair<int, std::vector<int>> cases[] = {
        {0, {}}, {1, {1}}, {62, {62}}, {63, {62, 1}}, {125, {62, 63}}, {126, {62, 63, 1}}};
    for (const auto& [rows, pages] : cases) {
        print(rows, uscita_report::pdf);
        EXPECT_EQ(rows_in_file(), pages) << rows;
    }
}

TEST_F(report_road, ThePdfIsNamedOrRefused) {
    const std::string made =
        "Il file VALOREORDINI.PDF è stato creato all'interno della cartella "_cp;
    const std::string refused =
        "Non è possibile eseguire il programma di generazione dei files PDF."_cp;
    constexpr int never = 1 << 30;
    const struct {
        std::string folder;
        bool can_start;
        int failing_from;  ///< offset of the first write that fails
        std::string pdf;   ///< empty: refused
    } cases[] = {{"C:\\PDF", true, never, "C:\\PDF\\valoreordini.pdf"},
                 {"C:\\PDF\\ ", true, never, "C:\\PDF\\valoreordini.pdf"},
                 {"C:", false, never, ""},
                 {"C:", true, 0, ""},
                 {"C:", true, 65000, ""}};
    for (const auto& one : cases) {
        app.parameters.parametri_valuta[valuta_slot::cartella_pdf] = one.folder;
        stage.programs.allow(one.can_start);
        disk.write_fails = [&](auto&, std::int64_t at) { return at >= one.failing_from; };
        const ui::message_box box = print(5000, uscita_report::pdf).at(0).box;
        const bool refuses = one.pdf.empty();
        EXPECT_EQ(box.text, refuses ? refused : made + one.folder);
        EXPECT_EQ(box.icon, refuses ? ui::icon::stop : ui::icon::warning);
        const auto started = stage.programs.take_started();
        ASSERT_EQ(started.size(), refuses ? 0U : 1U);
        if (refuses) continue;
        EXPECT_EQ(started[0], "\\mirwin\\mirwin\\mirxpdf ***,c:\\mirdoc.rto," + one.pdf + ", ***");
    }
    disk.write_fails = nullptr;
    std::filesystem::remove(stage.files.locate(file_di_stampa));
    std::filesystem::create_directory(stage.files.locate(file_di_stampa));
    EXPECT_EQ(print(3, uscita_report::pdf).at(0).box.text, refused);
}

/// A launcher that waits for its programs, as a window does.
TEST_F(report_road, AWindowTellsWhatCameOfThePdf) {
    struct waiting_launcher final : ui::launcher {
        bool start(const std::string&) override { return false; }
        ui::started_program run(const std::string&) override { return end; }
        void open(const std::string& path) override { opened = path; }
        ui::started_program end;
        std::string opened;
    } programs;
    using enum ui::started_program::how;
    ui::desk window{stage.front, stage.time, stage.paper, programs};
    program watched{disk, window, stage.pictures};
    watched.parameters.parametri_valuta[valuta_slot::cartella_pdf] = "C:";
    const std::pair<ui::started_program, std::string> cases[] = {
        {{well, ""}, "Il file VALOREORDINI.PDF è stato creato all'interno della cartella C:"_cp},
        {{well, "Ma."},
         "Il file VALOREORDINI.PDF è stato creato all'interno della cartella C:\n\nMa."_cp},
        {{failed, "Il disco è pieno."_cp}, "Il disco è pieno."_cp},
        {{failed, ""}, "Il file VALOREORDINI.PDF non è stato creato."_cp},
        {{late, ""},
         "Il file VALOREORDINI.PDF è ancora in preparazione all'interno della cartella C:"_cp}};
    for (const auto& [end, told] : cases) {
        programs.end = end;
        programs.opened.clear();
        stage.front.answers.keep(end.is == well ? ui::answer::choice_1 : ui::answer::ok);
        stampa_report(watched, report, list, list.rows(), uscita_report::pdf);
        const auto boxes = stage.front.answers.take_answered();
        ASSERT_EQ(boxes.size(), 1U);
        EXPECT_EQ(boxes[0].box.text, told);
        EXPECT_EQ(programs.opened, end.is == well ? "C:\\valoreordini.pdf" : "");
    }
}

TEST_F(report_road, NoSettingStopsAReportOrLosesARow) {
    const std::int16_t cases[][6] = {
        // left, right, top, bottom, height, size
        {30, 950, 30, 950, 0, 0},     {950, 30, 950, 30, 240, 9},
        {0, 0, 0, 0, 240, 32767},     {30, 950, 30, 950, -32768, 9},
        {30, 950, 30, 32767, 240, 9}, {-32768, 32767, -32768, 32767, 0, -1}};
    for (const auto& [left, right, top, bottom, height, size] : cases) {
        for (const std::int16_t look : std::initializer_list<std::int16_t>{0, 1, 7}) {
            app.parameters.tabella_stampa.fill(
                {left, right, top, bottom, look, "", size, 0, 0, -1e300, height, -1e300});
            print(1200, uscita_report::stampante);
            const auto jobs = stage.paper.take_jobs();
            ASSERT_EQ(jobs.size(), 1U);
            EXPECT_GE(jobs[0].pages.size(), 2U);
            EXPECT_LE(jobs[0].pages.size(), 1200U);
            print(1200, uscita_report::pdf);
            EXPECT_GE(rows_in_file().size(), 19U);
        }
    }
}

}  // namespace
}  // namespace vantora
