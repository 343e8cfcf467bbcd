#include "reports/report_engine.h"

#include <gtest/gtest.h>

#include <random>

#include "reports/plain_report.h"
#include "support/program_stage.h"

namespace vantora {
namespace {

/// A report with nothing in it left to habit.
class any_report : public testing::Test {
 protected:
    int upto(int most) { return static_cast<int>(random_() % static_cast<unsigned>(most + 1)); }
    std::int16_t some(int least, int most) {
        return static_cast<std::int16_t>(least + upto(most - least));
    }
    template <class T>
    T one_of(std::initializer_list<T> choices) {
        return choices.begin()[upto(static_cast<int>(choices.size()) - 1)];
    }

    std::string any_text() {
        std::string text;
        for (int left = one_of({0, 1, 3, 8, 30, 90}); left > 0; --left) {
            text += one_of<std::string>({"W", "i", " ", "a", "\xE0", "E", "\x01", "1", ".", "\n"});
        }
        return text;
    }
    std::string any_cell() {
        const int kind = upto(3);
        if (kind == 0) return any_text();
        if (kind > 1) return std::to_string(some(-30000, 30000)) + "," + std::to_string(upto(9999));
        return one_of<std::string>({"0", "0,00", "-----", "=====", "---1", "(1,5)", "12 (a", "",
                                    "  ", "x", "1..5", "1.234,56", "-12,005", "2,675",
                                    "999999999999999", "-0,001", "4,0000456", "77"});
    }

    void choose_settings() {
        parametri& all = stage_.app.parameters;
        all.parametri_valuta[valuta_slot::decimali_prezzo] =
            one_of<std::string>({"2", "3", "4", "5", "9"});
        for (auto& line : all.intestazione_ditta) line = any_text();
        for (auto& entry : all.tabella_stampa) {
            const std::string font = one_of<std::string>({"Arial", "Verdana"});
            entry = {0,           0,
                     0,           0,
                     some(0, 2),  font,
                     some(5, 17), some(0, 1),
                     some(0, 1),  0.0 + upto(0xFFFFFF),
                     some(0, 1),  0.0 + one_of({16777215, upto(0xFFFFFF)})};
        }
        voce_stampa& report = all.tabella_stampa[0];
        report.altezza = static_cast<std::int16_t>(165 + 25 * upto(12));
        report.margine_sinistro = some(0, 100);
        report.margine_destro = some(600, 1000);
        report.margine_alto = some(0, 100);
        report.margine_basso = some(600, 1000);
        stage_.paper.set_up(1 + upto(1), 1);
        plain_paper_.set_up(stage_.paper.orientation(), 1);
    }

    foglio_report any_sheet() {
        foglio_report sheet{any_text(), {}, 1 + upto(1), upto(1)};
        for (int columns = 1 + upto(7); columns > 0; --columns) {
            colonna_pagina& column = sheet.colonne.emplace_back();
            column.larghezza = some(1, 31);
            column.formato_cella = one_of<std::int16_t>({0, some(0, 8)});
            for (int line = 0; line < 2; ++line) {
                column.titolo_colonna[line] = any_text();
                column.grassetto_cella[line] = upto(1) == 1;
                column.corsivo_cella[line] = upto(1) == 1;
            }
        }
        return sheet;
    }

    void print_both(uscita_report uscita, int rows) {
        const bool is_file = uscita == uscita_report::pdf;
        const foglio_report sheet = any_sheet();
        test::plain_report plain(stage_.app.parameters, plain_paper_, is_file, sheet, {2024, 5, 6});
        report_on_printer on_paper(stage_.paper);
        print_file_writer file(stage_.files, marca_verticale);
        report_in_print_file in_file(stage_.paper, file);
        report_output& out = is_file ? static_cast<report_output&>(in_file) : on_paper;
        report_engine engine(stage_.app.parameters, stage_.time, out, uscita, sheet);
        bool is_page_open = false;
        for (int row = 0; row < rows; ++row) {
            std::vector<std::string> texts(2 * sheet.colonne.size());
            for (std::string& one : texts) one = any_cell();
            engine.print_row(std::vector<std::string_view>(texts.begin(), texts.end()));
            plain.stampa_riga(texts);
            is_page_open = plain.righe_stampate > 0;
        }
        engine.end_report();
        if (is_page_open) plain.stampa_testata();
        stage_.paper.end_job();
        plain_paper_.end_job();
        ASSERT_TRUE(file.finish());
        plain_file_ = std::string(marca_verticale) + "\r\n" + plain.file;
    }

    std::mt19937 random_;
    test::program_stage<> stage_;
    ui::script::recording_printer plain_paper_;
    std::string plain_file_;
};

TEST_F(any_report, PagesAreThoseOfThePlainDrawing) {
    std::size_t pages = 0;
    for (unsigned seed = 1; seed <= 150; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        random_.seed(seed);
        choose_settings();
        print_both(seed % 2 == 0 ? uscita_report::pdf : uscita_report::stampante, upto(130));
        const auto plain = plain_paper_.take_jobs();
        ASSERT_TRUE(stage_.paper.take_jobs() == plain);
        ASSERT_TRUE(stage_.files.read_whole(file_di_stampa) == plain_file_);
        for (const auto& job : plain) pages += job.pages.size();
    }
    EXPECT_GT(pages, 150U);
}

}  // namespace
}  // namespace vantora
