#pragma once

#include <cmath>

#include "reports/report_engine.h"
#include "text/dates.h"
#include "text/number_text.h"

namespace vantora::test {

/// The pages of a report, made step by step as a person would tell it, on the printer in twips or
/// into the print file in millimetres. What the engine makes of its figures is held against it.
struct plain_report {
    plain_report(const parametri& by, ui::printer& on, bool into_file, foglio_report of, date today)
        : parameters(by),
          paper(on),
          in_file(into_file),
          foglio(std::move(of)),
          oggi(today),
          grigio(stile(1).stile == 1),
          righe_stampate(foglio.righe_stampate) {}

    const parametri& parameters;
    ui::printer& paper;
    bool in_file;
    foglio_report foglio;
    date oggi;
    bool grigio;
    int righe_stampate;
    int numero_pagina = 0;
    std::string file;  ///< the records of the print file

    void stampa_riga(const std::vector<std::string>& celle) {
        limiti();
        const bool dispari = righe_stampate % 2 == 1;
        const voce_stampa& entry = stile(grigio ? 5 : 4);
        const ui::font in =
            in_file && !grigio ? ui::font{"Arial", 0.0 + entry.corpo_carattere} : carattere(entry);
        const double passo = stile(0).altezza;
        const double altezza = foglio.righe_voce == 1 || !grigio ? o(220, 4) : o(420, 7);
        const double y = riga_y();
        if (!in_file && !grigio && dispari && stile(0).sfondo != 16777215) {
            riquadro(sx, y - 0.1 * passo, dx, y + 0.85 * passo, stile(0).sfondo, true);
        }
        for (colonna& c : colonne()) {
            if (grigio && stile(2).altezza == 1) {
                riquadro(c.x, y, c.fine, y + altezza, stile(dispari ? 1 : 2).sfondo, true);
            }
            for (std::size_t linea = 0; linea < linee(); ++linea) {
                ui::font scritta = in;
                if (grigio) scritta.bold = c.di.grassetto_cella[linea] || (!in_file && in.bold);
                if (grigio) scritta.italic = c.di.corsivo_cella[linea] || (!in_file && in.italic);
                const ui::font& misura = in_file ? in : scritta;
                std::string cella =
                    formatted(celle[c.i + linea * foglio.colonne.size()], c.di.formato_cella);
                adatta(cella, c.spazio, misura);
                const double scende = linea == 0 ? o(20, 0) : o(220, 3);
                in_colonna(c, y + (grigio ? scende : 0), cella, misura, scritta,
                           grigio && in_file ? 0 : entry.colore);
                if (in_file && !grigio) file.replace(file.size() - 10, 10, "0\r\n0\r\n");
            }
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
        limiti();
        grigio ? testata_grigia() : testata_piana();
        const ui::font in = grigio ? ui::font{"Verdana", 8} : carattere(stile(3));
        const double due[] = {o(1200, 24), o(1370, 27)};
        for (colonna& c : colonne()) {
            if (grigio) riquadro(c.x, alto + due[0], c.fine, alto + o(1550, 31), 0xdddddd, true);
            for (std::size_t linea = 0; linea < linee(); ++linea) {
                std::string& text = c.di.titolo_colonna[linea];
                adatta(text, c.spazio, in);
                const double y = !grigio                  ? o(900, 15)
                                 : foglio.righe_voce == 1 ? o(1300, 26)
                                                          : due[linea];
                in_colonna(c, alto + y, text, in, grigio ? ui::font{"Verdana", o(8, 9)} : in,
                           grigio ? 0 : stile(3).colore);
            }
        }
        if (grigio) riquadro(sx, riga_y(), dx, riga_y() + o(57, 1), 0xaaaaaa, true);
        if (in_file) file += " 9 \r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n";
        righe_stampate = 0;
    }

 private:
    static constexpr double twip = 56.6929;
    inline static const std::string nota_piede = "Vantora Ordini - www.vantora.example";

    struct colonna {
        colonna_pagina& di;
        std::size_t i;
        double x;       ///< left edge
        double bordo;   ///< right edge
        double fine;    ///< right edge of its box
        double spazio;  ///< that a text may take
    };

    /// One figure for the printer, one for the file.
    double o(double twips, double millimetres) const { return in_file ? millimetres : twips; }
    const voce_stampa& stile(int i) const {
        return parameters.tabella_stampa[static_cast<std::size_t>(i)];
    }
    static ui::font carattere(const voce_stampa& one) {
        return {one.nome_carattere, 0.0 + one.corpo_carattere, one.grassetto != 0,
                one.corsivo != 0};
    }
    std::size_t linee() const { return grigio && foglio.righe_voce == 2 ? 2 : 1; }
    double larga(const std::string& text, const ui::font& in) const {
        return paper.text_width(text, in) * o(twip, 1);
    }
    double riga_y() const {
        const double passo = stile(0).altezza;
        if (!grigio) return o(1300 + passo * righe_stampate, 22 + 4 * righe_stampate) + alto;
        const bool una = foglio.righe_voce == 1;
        return o(1630 + (una ? 250 : 450) * righe_stampate,
                 27 + (una ? 5 : 8) * righe_stampate + alto) +
               alto;
    }
    int massimo() const {
        const bool upright = paper.orientation() == 1;
        if (!grigio) return upright ? 63 : 43;
        return foglio.righe_voce == 1 ? (upright ? 50 : 33) : (upright ? 31 : 21);
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

    std::vector<colonna> colonne() {
        double somma = 0;
        for (const colonna_pagina& one : foglio.colonne) somma += one.larghezza;
        std::vector<colonna> all;
        double x = sx;
        for (colonna_pagina& one : foglio.colonne) {
            const double intera = (dx - sx) / somma * one.larghezza;
            const double cw = std::floor(intera);
            all.push_back({one, all.size(), x, x + cw, x + cw - o(30, 1), o(intera, cw - 2)});
            x += cw;
        }
        all.back().bordo = all.back().fine = dx;
        return all;
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
        if (formato == 4) return masked(value, "###,###,###,###");
        if (formato == 6 || formato == 7) return plain_text(value);
        const std::string decimali = formato == 5 ? parameters.parametri_valuta[5] : "";
        if (formato == 3 || decimali == "3") return masked(value, "###,###,###,##0.##0");
        if (decimali == "4") return masked(value, "###,###,###,##0.###0");
        if (decimali == "5") return masked(value, "###,###,###,##0.####0");
        const std::string due = masked(value, "###,###,###,##0.#0");
        return formato == 8 ? "(" + due + ")" : due;
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
        for (const colonna& c : colonne()) {
            if (c.i == 0) continue;
            forma(1, c.x, alto + o(800, 14), c.x, b, inchiostro, 0);
        }
        if (cornice >= 1) {
            scrivi(sx + o(0, 1), b + o(40, 0), nota_piede, {"Arial", 5}, stile(1).colore);
            a_destra(dx - o(0, 1), b + o(40, 0), nota(), {"Arial", 5}, stile(1).colore);
        }
        scrivi(sx + o(50, 1), alto + o(250, 5), foglio.titolo, carattere(stile(1)),
               stile(1).colore);
        for (int i = 1; i <= 3; ++i) {
            a_destra(dx - o(50, 1), alto + o(-100 + 200 * i, -3 + 4 * i),
                     parameters.intestazione_ditta[i], carattere(stile(2)), stile(2).colore);
        }
    }

    void testata_grigia() {
        riquadro(sx, alto, dx, alto + o(400, 8), 0xaaaaaa, true);
        scrivi(sx + o(50, 1), alto + o(20, 2), foglio.titolo, {"Verdana", 14, true}, 0xffffff);
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
        if (c.di.formato_cella == 0) return scrivi(c.x + o(50, 1), y, text, in, colore);
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

}  // namespace vantora::test
