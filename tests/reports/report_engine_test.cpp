#include "reports/report_engine.h"

#include <gtest/gtest.h>

#include <cmath>
#include <deque>
#include <random>

#include "support/program_stage.h"
#include "text/dates.h"
#include "text/number_text.h"

namespace vantora {
namespace {

/// The pages of a report, made step by step as a person would tell it, on the printer in twips or
/// into the print file in millimetres. What the engine makes of its figures is held against it.
struct plain_report {
    plain_report(const parametri& by, ui::printer& on, bool into_file, std::string name,
                 std::span<const colonna_report> columns, date today)
        : parameters(by),
          paper(on),
          in_file(into_file),
          titolo(std::move(name)),
          oggi(today),
          grigio(stile(1).stile == 1) {
        limiti();
        double somma = 0;
        for (const colonna_report& one : columns) somma += one.larghezza;
        double x = sx;
        for (const colonna_report& one : columns) {
            const double intera = (dx - sx) / somma * one.larghezza;
            const double cw = std::floor(intera);
            colonne.push_back({std::string(one.titolo_colonna), one.formato_cella, x, x + cw,
                               x + cw - o(30, 1), o(intera, cw - 2)});
            x += cw;
        }
        colonne.back().bordo = colonne.back().fine = dx;
    }

    struct colonna {
        std::string titolo;
        int formato;
        double x;       ///< left edge
        double bordo;   ///< right edge
        double fine;    ///< right edge of its box
        double spazio;  ///< that a text may take
    };

    const parametri& parameters;
    ui::printer& paper;
    bool in_file;
    std::string titolo;
    date oggi;
    bool grigio;
    std::vector<colonna> colonne;
    int righe_stampate = 1;
    int numero_pagina = 0;
    std::string file;  ///< the records of the print file

    void stampa_riga(const std::vector<std::string>& celle) {
        const bool dispari = righe_stampate % 2 == 1;
        const voce_stampa& entry = stile(grigio ? 5 : 4);
        const ui::font in =
            in_file && !grigio ? ui::font{"Arial", 0.0 + entry.corpo_carattere} : carattere(entry);
        const double passo = stile(0).altezza;
        const double altezza = o(220, 4);
        const double y = riga_y();
        if (!in_file && !grigio && dispari && stile(0).sfondo != 16777215) {
            riquadro(sx, y - 0.1 * passo, dx, y + 0.85 * passo, stile(0).sfondo, true);
        }
        for (std::size_t i = 0; i < colonne.size(); ++i) {
            const colonna& c = colonne[i];
            if (grigio && stile(2).altezza == 1) {
                riquadro(c.x, y, c.fine, y + altezza, stile(dispari ? 1 : 2).sfondo, true);
            }
            ui::font scritta = in;
            if (grigio && in_file) scritta.bold = scritta.italic = false;
            std::string cella = formatted(celle[i], c.formato);
            adatta(cella, c.spazio, in);
            in_colonna(c, y + (grigio ? o(20, 0) : 0), cella, in, scritta,
                       grigio && in_file ? 0 : entry.colore);
            if (in_file && !grigio) file.replace(file.size() - 10, 10, "0\r\n0\r\n");
        }
        if (stile(1).altezza == 1) {
            linea(sx, y + (grigio ? altezza + o(5, 0) : o(0.85 * passo, 4)), dx, 1);
        }
        ++righe_stampate;
        const double fondo = basso - (grigio ? altezza : passo + 100);
        if (in_file ? righe_stampate == massimo() : current_y > fondo) {
            stampa_testata();
            if (!in_file) paper.new_page();
        }
    }

    void stampa_testata() {
        grigio ? testata_grigia() : testata_piana();
        const ui::font in = grigio ? ui::font{"Verdana", 8} : carattere(stile(3));
        for (colonna& c : colonne) {
            if (grigio) {
                riquadro(c.x, alto + o(1200, 24), c.fine, alto + o(1550, 31), 0xdddddd, true);
            }
            adatta(c.titolo, c.spazio, in);
            in_colonna(c, alto + (grigio ? o(1300, 26) : o(900, 15)), c.titolo, in,
                       grigio ? ui::font{"Verdana", o(8, 9)} : in, grigio ? 0 : stile(3).colore);
        }
        if (grigio) riquadro(sx, riga_y(), dx, riga_y() + o(57, 1), 0xaaaaaa, true);
        if (in_file) file += " 9 \r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n";
        righe_stampate = 0;
    }

 private:
    static constexpr double twip = 56.6929;
    inline static const std::string nota_piede = "Vantora Ordini - www.vantora.example";

    /// One figure for the printer, one for the file.
    double o(double twips, double millimetres) const { return in_file ? millimetres : twips; }
    const voce_stampa& stile(int i) const {
        return parameters.tabella_stampa[static_cast<std::size_t>(i)];
    }
    static ui::font carattere(const voce_stampa& one) {
        return {one.nome_carattere, 0.0 + one.corpo_carattere, one.grassetto != 0,
                one.corsivo != 0};
    }
    double larga(const std::string& text, const ui::font& in) const {
        return paper.text_width(text, in) * o(twip, 1);
    }
    double riga_y() const {
        const double passo = stile(0).altezza;
        if (!grigio) return o(1300 + passo * righe_stampate, 22 + 4 * righe_stampate) + alto;
        return o(1630 + 250 * righe_stampate, 27 + 5 * righe_stampate + alto) + alto;
    }
    int massimo() const {
        const bool upright = paper.orientation() == 1;
        if (!grigio) return upright ? 63 : 43;
        return upright ? 50 : 33;
    }

    void limiti() {
        const bool upright = paper.orientation() == 1;
        const auto parte = [](double size, double margin) {
            return std::floor(size * twip * margin / 1000);
        };
        sx = o(parte(paper.page_width(), stile(0).margine_sinistro), 5);
        dx = o(parte(paper.page_width(), stile(0).margine_destro), upright ? 205 : 280);
        alto = o(parte(paper.page_height(), stile(0).margine_alto), 5);
        basso = o(parte(paper.page_height(), stile(0).margine_basso), upright ? 280 : 205);
    }

    void adatta(std::string& text, double limit, const ui::font& in) const {
        while (larga(std::string(trimmed(text)), in) > limit) {
            if (text.size() < 2) return;
            text = std::string(trimmed(text.substr(0, text.size() - 1)));
        }
    }

    std::string formatted(const std::string& cella, int formato) const {
        if (formato < 1 || cella.find('(') != std::string::npos || cella.substr(0, 3) == "---" ||
            cella.substr(0, 3) == "===") {
            return cella;
        }
        const double value = testo_a_numero(cella);
        if (value == 0) return "";
        const std::string decimali = formato == 5 ? parameters.parametri_valuta[5] : "";
        if (decimali == "3") return masked(value, "###,###,###,##0.##0");
        if (decimali == "4") return masked(value, "###,###,###,##0.###0");
        if (decimali == "5") return masked(value, "###,###,###,##0.####0");
        return masked(value, "###,###,###,##0.#0");
    }

    void testata_piana() {
        const int cornice = stile(0).stile;
        const double passo = o(stile(0).altezza, 4);
        const double minimo = alto + o(1200, 20);
        double b = minimo;
        if (cornice == 1) b = alto + o(1000, 20) + passo * (righe_stampate + 1);
        if (cornice == 2) b = basso;
        if (!in_file && b < minimo) b = minimo;
        const double inchiostro = stile(5).colore;
        riquadro(sx, alto, dx, b, inchiostro, false);
        if (in_file) {
            linea(sx, alto + 14, dx, 0);
            linea(sx, alto + 20, dx, 0);
        } else {
            riquadro(sx, alto + 800, dx, alto + 1200, inchiostro, false);
        }
        for (std::size_t i = 1; i < colonne.size(); ++i) {
            forma(1, colonne[i].x, alto + o(800, 14), colonne[i].x, b, inchiostro, 0);
        }
        if (cornice >= 1) {
            scrivi(sx + o(0, 1), b + o(40, 0), nota_piede, {"Arial", 5}, stile(1).colore);
            a_destra(dx - o(0, 1), b + o(40, 0), nota(), {"Arial", 5}, stile(1).colore);
        }
        scrivi(sx + o(50, 1), alto + o(250, 5), titolo, carattere(stile(1)), stile(1).colore);
        for (int i = 1; i <= 3; ++i) {
            a_destra(dx - o(50, 1), alto + o(-100 + 200 * i, -3 + 4 * i),
                     parameters.intestazione_ditta[i], carattere(stile(2)), stile(2).colore);
        }
    }

    void testata_grigia() {
        riquadro(sx, alto, dx, alto + o(400, 8), 0xaaaaaa, true);
        scrivi(sx + o(50, 1), alto + o(20, 2), titolo, {"Verdana", 14, true}, 0xffffff);
        a_destra(dx - o(50, 1), alto + o(220, 5), nota_piede, {"Verdana", 6, true}, 0xffffff);
        riquadro(sx, alto + o(450, 9), dx, alto + o(1150, 23), stile(5).colore, false);
        scrivi(sx + o(50, 1), alto + o(500, 10), "Azienda/Studio", {"Verdana", 9}, 0);
        for (int i = 1; i <= 3; ++i) {
            scrivi(sx + o(1587, 28), alto + o(300 + 200 * i, 6 + 4 * i),
                   parameters.intestazione_ditta[i], {"Verdana", 9, true}, 0);
        }
        a_destra(dx - o(50, 1), alto + o(930, 19), nota(), {"Verdana", 7}, 0);
    }

    std::string nota() {
        return "Stampato in data " + date_text(oggi) + " - Pagina " +
               std::to_string(++numero_pagina);
    }

    void in_colonna(const colonna& c, double y, const std::string& text, const ui::font& misura,
                    const ui::font& in, double colore) {
        if (c.formato == 0) return scrivi(c.x + o(50, 1), y, text, in, colore);
        if (grigio && in_file) return scrivi(c.fine, y, text, in, colore, 1);
        scrivi(c.bordo - std::floor(larga(text, misura)) - o(50, 2), y, text, in, colore);
    }
    void a_destra(double right, double y, const std::string& text, const ui::font& in,
                  double colore) {
        if (grigio && in_file) return scrivi(right, y, text, in, colore, 1);
        scrivi(right - larga(text, in), y, text, in, colore);
    }

    void scrivi(double x, double y, const std::string& text, const ui::font& in, double colore,
                double destra = 0) {
        current_y = y;
        if (in_file) {
            return record({3, x, y, 0, destra, in.size, colore}, text, in.name, in.bold, in.italic);
        }
        paper.text(x / twip, y / twip, text, in, static_cast<ui::colour>(colore));
    }
    void riquadro(double x1, double y1, double x2, double y2, double colore, bool pieno) {
        forma(2, x1, y1, x2, y2, colore, pieno);
    }
    void linea(double x1, double y, double x2, int segno) {
        forma(1, x1, y, x2, y, stile(5).colore, segno);
        current_y = y;
    }
    void forma(int tipo, double x1, double y1, double x2, double y2, double colore, int pieno) {
        if (in_file) return record({0.0 + tipo, x1, y1, x2, y2, 0, colore}, "", "", pieno, 0);
        const auto ink = static_cast<ui::colour>(colore);
        if (tipo == 1) return paper.line(x1 / twip, y1 / twip, x2 / twip, y2 / twip, ink);
        paper.box(x1 / twip, y1 / twip, x2 / twip, y2 / twip, ink, pieno == 1);
    }
    void record(std::initializer_list<double> sette, const std::string& text,
                const std::string& name, double dieci, double undici) {
        for (const double value : sette) file += plain_text_signed(value) + " \r\n";
        file += text + "\r\n" + name + "\r\n";
        for (const double value : {dieci, undici}) file += plain_text_signed(value) + " \r\n";
    }

    double sx = 0, dx = 0, alto = 0, basso = 0;  ///< limits of the page
    double current_y = 0;                        ///< of the printer, in twips
};

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

    std::vector<colonna_report> any_columns() {
        std::vector<colonna_report> all(1 + static_cast<std::size_t>(upto(7)));
        for (colonna_report& column : all) {
            column.titolo_colonna = titles_.emplace_back(any_text());
            column.larghezza = some(1, 31);
            column.formato_cella = one_of<std::int16_t>({0, 0, 1, 2, 5});
        }
        return all;
    }

    void print_both(uscita_report uscita, int rows) {
        const bool is_file = uscita == uscita_report::pdf;
        const std::string title = any_text();
        const auto columns = any_columns();
        plain_report plain(stage_.app.parameters, plain_paper_, is_file, title, columns,
                           {2024, 5, 6});
        report_on_printer on_paper(stage_.paper);
        print_file_writer file(stage_.files, marca_verticale);
        report_in_print_file in_file(stage_.paper, file);
        report_output& out = is_file ? static_cast<report_output&>(in_file) : on_paper;
        report_engine engine(stage_.app.parameters, stage_.time, out, uscita, title, columns);
        bool is_page_open = false;
        for (int row = 0; row < rows; ++row) {
            std::vector<std::string> texts(columns.size());
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
    std::deque<std::string> titles_;
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
