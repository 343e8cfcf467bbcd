#include "reports/told_report.h"

#include <cmath>

#include "store/text/code_page.h"
#include "store/text/number_text.h"
#include "store/values.h"

namespace vantora::test {

namespace {
constexpr double twip = 56.6929;
const std::string nota_piede = "Vantora Ordini - www.vantora.example";
}  // namespace

double told_report::larga(const std::string& text, const std::string& name, double size, bool bold,
                          bool italic) const {
    return paper.text_width(text, {name, size, bold, italic}) * unita;
}

void told_report::limiti() {
    unita = twip;
    limite_sinistro = std::floor(paper.page_width() * twip * stile(0).margine_sinistro / 1000);
    limite_destro = std::floor(paper.page_width() * twip * stile(0).margine_destro / 1000);
    limite_alto = std::floor(paper.page_height() * twip * stile(0).margine_alto / 1000);
    limite_basso = std::floor(paper.page_height() * twip * stile(0).margine_basso / 1000);
    double somma = 0;
    for (int i = 1; i <= numero_colonne; ++i) somma += tabella[i].larghezza;
    scala_colonne = (limite_destro - limite_sinistro) / somma;
}

void told_report::limiti_file() {
    unita = 1;
    const bool upright = paper.orientation() == 1;
    limite_sinistro = limite_alto = 5;
    limite_destro = upright ? 205 : 280;
    limite_basso = upright ? 280 : 205;
    double somma = 0;
    for (int i = 1; i <= numero_colonne; ++i) somma += tabella[i].larghezza;
    scala_colonne = (limite_destro - limite_sinistro) / somma;
}

void told_report::adatta(std::string& text, double limit, const std::string& name, double size,
                         bool bold, bool italic) const {
    while (larga(std::string(trimmed(text)), name, size, bold, italic) > limit) {
        if (text.size() < 2) return;
        text = std::string(trimmed(text.substr(0, text.size() - 1)));
    }
}

void told_report::prepara(voce& one, double limit, const std::string& name, double size, bool bold,
                          bool italic) const {
    std::string& cella = one.cella;
    const int formato = one.formato_cella;
    if (cella.find('(') == std::string::npos && cella.substr(0, 3) != "---" &&
        cella.substr(0, 3) != "===" && formato >= 1) {
        const double value = testo_a_numero(cella);
        const std::string decimali = parameters.parametri_valuta[5];
        if (value == 0) {
            cella = "";
        } else if (formato <= 2) {
            cella = masked(value, "###,###,###,##0.#0");
        } else if (formato == 3 || (formato == 5 && decimali == "3")) {
            cella = masked(value, "###,###,###,##0.##0");
        } else if (formato == 4) {
            cella = masked(value, "###,###,###,###");
        } else if (formato == 5 && decimali == "4") {
            cella = masked(value, "###,###,###,##0.###0");
        } else if (formato == 5 && decimali == "5") {
            cella = masked(value, "###,###,###,##0.####0");
        } else if (formato == 5) {
            cella = masked(value, "###,###,###,##0.#0");
        } else if (formato == 8) {
            cella = "(" + masked(value, "###,###,###,##0.#0") + ")";
        } else {
            cella = plain_text(value);
        }
    }
    adatta(cella, limit, name, size, bold, italic);
}

std::string told_report::nota() {
    numero_pagina = numero_pagina == -1 ? 1 : numero_pagina + 1;
    return "Stampato in data " + date_text(oggi) + " - Pagina " + std::to_string(numero_pagina);
}

// The printer -----------------------------------------------------------------------------------

void told_report::stampa(double x, double y, const std::string& text, const std::string& name,
                         double size, bool bold, bool italic, double colore) {
    paper.text(x / twip, y / twip, text, {name, size, bold, italic},
               static_cast<ui::colour>(colore));
    current_y = y;
}

void told_report::linea(double x1, double y1, double x2, double y2, double colore) {
    paper.line(x1 / twip, y1 / twip, x2 / twip, y2 / twip, static_cast<ui::colour>(colore));
    current_y = y2;
}

void told_report::riquadro(double x1, double y1, double x2, double y2, double colore, bool pieno) {
    paper.box(x1 / twip, y1 / twip, x2 / twip, y2 / twip, static_cast<ui::colour>(colore), pieno);
    current_y = y2;
}

void told_report::stampa_riga() {
    limiti();
    const bool grigio = stile(1).stile == 1;
    const voce_stampa& carattere = stile(grigio ? 5 : 4);
    const double passo = stile(0).altezza;
    double y = 1300 + passo * righe_stampate + limite_alto;
    double altezza = 0;
    if (grigio && righe_voce == 1) {
        y = 1630 + 250 * righe_stampate + limite_alto;
        altezza = 220;
    } else if (grigio) {
        y = 1630 + 450 * righe_stampate + limite_alto;
        altezza = 420;
    }
    const bool dispari = righe_stampate % 2 == 1;
    if (!grigio && dispari && stile(0).sfondo != 16777215) {
        riquadro(limite_sinistro, y - 0.1 * passo, limite_destro, y + 0.85 * passo, stile(0).sfondo,
                 true);
    }
    double x = limite_sinistro;
    for (int i = 1; i <= numero_colonne; ++i) {
        const bool ultima = i == numero_colonne;
        const double cw = std::floor(scala_colonne * tabella[i].larghezza);
        if (grigio && stile(2).altezza == 1) {
            riquadro(x, y, ultima ? limite_destro : x + cw - 30, y + altezza,
                     stile(dispari ? 1 : 2).sfondo, true);
        }
        for (int riga = 0; riga < (grigio ? righe_voce : 1); ++riga) {
            voce one = tabella[i + riga * numero_colonne];
            one.formato_cella = tabella[i].formato_cella;
            const bool bold = carattere.grassetto != 0 || (grigio && one.grassetto_cella);
            const bool italic = carattere.corsivo != 0 || (grigio && one.corsivo_cella);
            prepara(one, scala_colonne * tabella[i].larghezza, carattere.nome_carattere,
                    carattere.corpo_carattere, bold, italic);
            const double tw = std::floor(larga(one.cella, carattere.nome_carattere,
                                               carattere.corpo_carattere, bold, italic));
            double da = x + 50;
            if (one.formato_cella != 0) da = (ultima ? limite_destro : x + cw) - tw - 50;
            stampa(da, y + (grigio ? 20 + 200 * riga : 0), one.cella, carattere.nome_carattere,
                   carattere.corpo_carattere, bold, italic, carattere.colore);
        }
        x += cw;
    }
    if (stile(1).altezza == 1) {
        const double sotto = grigio ? y + altezza + 5 : y + 0.85 * passo;
        linea(limite_sinistro, sotto, limite_destro, sotto, stile(5).colore);
    }
    ++righe_stampate;
    if (current_y > limite_basso - (grigio ? altezza : passo + 100)) {
        stampa_testata();
        paper.new_page();
    }
}

void told_report::stampa_testata() {
    limiti();
    const double alto = limite_alto;
    const double sx = limite_sinistro;
    const double dx = limite_destro;
    const auto& ditta = parameters.intestazione_ditta;
    const auto a_destra = [&](double right, double y, const std::string& text,
                              const std::string& name, double size, bool bold, bool italic,
                              double colore) {
        stampa(right - larga(text, name, size, bold, italic), y, text, name, size, bold, italic,
               colore);
    };
    if (stile(1).stile == 1) {
        riquadro(sx, alto, dx, alto + 400, 0xaaaaaa, true);
        stampa(sx + 50, alto + 20, titolo, "Verdana", 14, true, false, 0xffffff);
        a_destra(dx - 50, alto + 220, nota_piede, "Verdana", 6, true, false, 0xffffff);
        riquadro(sx, alto + 450, dx, alto + 1150, stile(5).colore, false);
        stampa(sx + 50, alto + 500, "Azienda/Studio", "Verdana", 9, false, false, 0);
        for (int i = 1; i <= 3; ++i) {
            stampa(sx + 1587, alto + 300 + 200 * i, ditta[i], "Verdana", 9, true, false, 0);
        }
        a_destra(dx - 50, alto + 930, nota(), "Verdana", 7, false, false, 0);
    } else {
        const double passo = stile(0).altezza;
        double b = alto + 1200;
        if (stile(0).stile == 1) b = alto + 1000 + passo * (righe_stampate + 1);
        if (stile(0).stile == 2) b = limite_basso;
        if (b < alto + 1200) b = alto + 1200;
        riquadro(sx, alto, dx, b, stile(5).colore, false);
        riquadro(sx, alto + 800, dx, alto + 1200, stile(5).colore, false);
        double x = sx;
        for (int i = 1; i < numero_colonne; ++i) {
            x += std::floor(scala_colonne * tabella[i].larghezza);
            linea(x, alto + 800, x, b, stile(5).colore);
        }
        if (stile(0).stile >= 1) {
            stampa(sx, b + 40, nota_piede, "Arial", 5, false, false, stile(1).colore);
            a_destra(dx, b + 40, nota(), "Arial", 5, false, false, stile(1).colore);
        }
        const voce_stampa& uno = stile(1);
        stampa(sx + 50, alto + 250, titolo, uno.nome_carattere, uno.corpo_carattere,
               uno.grassetto != 0, uno.corsivo != 0, uno.colore);
        const voce_stampa& due = stile(2);
        for (int i = 1; i <= 3; ++i) {
            a_destra(dx - 50, alto - 100 + 200 * i, ditta[i], due.nome_carattere,
                     due.corpo_carattere, due.grassetto != 0, due.corsivo != 0, due.colore);
        }
    }
    const voce_stampa verdana{0, 0, 0, 0, 0, "Verdana", 8, 0, 0, 0, 0, 0};
    const bool grigio = stile(1).stile == 1;
    const voce_stampa& tre = grigio ? verdana : stile(3);
    double x = sx;
    for (int i = 1; i <= numero_colonne; ++i) {
        const bool ultima = i == numero_colonne;
        const double cw = std::floor(scala_colonne * tabella[i].larghezza);
        if (grigio) {
            riquadro(x, alto + 1200, ultima ? dx : x + cw - 30, alto + 1550, 0xdddddd, true);
        }
        for (int riga = 0; riga < (grigio ? righe_voce : 1); ++riga) {
            std::string& text = tabella[i + riga * numero_colonne].titolo_colonna;
            adatta(text, scala_colonne * tabella[i].larghezza, tre.nome_carattere,
                   tre.corpo_carattere, tre.grassetto != 0, tre.corsivo != 0);
            double da = x + 50;
            if (tabella[i].formato_cella != 0) {
                const double tw = std::floor(larga(text, tre.nome_carattere, tre.corpo_carattere,
                                                   tre.grassetto != 0, tre.corsivo != 0));
                da = (ultima ? dx : x + cw) - tw - 50;
            }
            const double y = !grigio ? 900 : righe_voce == 1 ? 1300 : riga == 0 ? 1200 : 1370;
            stampa(da, alto + y, text, tre.nome_carattere, tre.corpo_carattere, tre.grassetto != 0,
                   tre.corsivo != 0, tre.colore);
        }
        x += cw;
    }
    if (grigio) {
        const double y = 1630 + (righe_voce == 1 ? 250 : 450) * righe_stampate + alto;
        riquadro(sx, y, dx, y + 57, 0xaaaaaa, true);
    }
    righe_stampate = 0;
}

// The print file --------------------------------------------------------------------------------

void told_report::numero(double value) {
    file += plain_text_signed(value) + " \r\n";
}

void told_report::testo(double x, double y, int destra, double size, double colore,
                        const std::string& text, const std::string& name, double bold,
                        double italic) {
    for (const double value : {3.0, x, y, 0.0, static_cast<double>(destra), size, colore}) {
        numero(value);
    }
    file += text + "\r\n" + name + "\r\n";
    numero(bold);
    numero(italic);
}

void told_report::forma(int tipo, double x1, double y1, double x2, double y2, double colore,
                        int pieno) {
    for (const double value : {static_cast<double>(tipo), x1, y1, x2, y2, 0.0, colore}) {
        numero(value);
    }
    file += "\r\n\r\n";
    numero(pieno);
    numero(0);
}

void told_report::stampa_riga_file() {
    limiti_file();
    const bool grigio = stile(1).stile == 1;
    const voce_stampa& carattere = stile(grigio ? 5 : 4);
    const bool upright = paper.orientation() == 1;
    int massimo = upright ? 63 : 43;
    double y = 22 + 4 * righe_stampate + limite_alto;
    double altezza = 4;
    if (grigio && righe_voce == 1) {
        massimo = upright ? 50 : 33;
        y = 27 + 5 * righe_stampate + 2 * limite_alto;
    } else if (grigio) {
        massimo = upright ? 31 : 21;
        y = 27 + 8 * righe_stampate + 2 * limite_alto;
        altezza = 7;
    }
    const std::string name = grigio ? carattere.nome_carattere : "Arial";
    const bool bold = grigio && carattere.grassetto != 0;
    const bool italic = grigio && carattere.corsivo != 0;
    const double size = carattere.corpo_carattere;
    double x = limite_sinistro;
    for (int i = 1; i <= numero_colonne; ++i) {
        const bool ultima = i == numero_colonne;
        const double cw = std::floor(scala_colonne * tabella[i].larghezza);
        const double fine = ultima ? limite_destro : x + cw - 1;
        if (grigio && stile(2).altezza == 1) {
            forma(2, x, y, fine, y + altezza, stile(righe_stampate % 2 == 1 ? 1 : 2).sfondo, 1);
        }
        for (int riga = 0; riga < (grigio ? righe_voce : 1); ++riga) {
            voce one = tabella[i + riga * numero_colonne];
            const bool numerica = tabella[i].formato_cella != 0;
            one.formato_cella = tabella[i].formato_cella;
            prepara(one, cw - 2, name, size, bold, italic);
            if (grigio) {
                testo(numerica ? fine : x + 1, y + 3 * riga, numerica ? 1 : 0, size, 0, one.cella,
                      name, one.grassetto_cella ? 1 : 0, one.corsivo_cella ? 1 : 0);
                continue;
            }
            const double tw = std::floor(larga(one.cella, name, size, bold, italic));
            double da = x + 1;
            if (numerica) da = (ultima ? limite_destro : x + cw) - tw - 2;
            testo(da, y, 0, size, carattere.colore, one.cella, "Arial", 0, 0);
            file.resize(file.size() - 10);  // the numbers 0
            file += "0\r\n0\r\n";
        }
        x += cw;
    }
    if (stile(1).altezza == 1) {
        forma(1, limite_sinistro, y + altezza, limite_destro, y + altezza, stile(5).colore, 1);
    }
    ++righe_stampate;
    if (righe_stampate == massimo) stampa_testata_file();
}

void told_report::stampa_testata_file() {
    limiti_file();
    const bool grigio = stile(1).stile == 1;
    const double alto = limite_alto;
    const double sx = limite_sinistro;
    const double dx = limite_destro;
    const auto& ditta = parameters.intestazione_ditta;
    const voce_stampa& uno = stile(1);
    const voce_stampa& due = stile(2);
    if (grigio) {
        forma(2, sx, alto, dx, alto + 8, 0xaaaaaa, 1);
        testo(sx + 1, alto + 2, 0, 14, 0xffffff, titolo, "Verdana", 1, 0);
        testo(dx - 1, alto + 5, 1, 6, 0xffffff, nota_piede, "Verdana", 1, 0);
        forma(2, sx, alto + 9, dx, alto + 23, stile(5).colore, 0);
        testo(sx + 1, alto + 10, 0, 9, 0, "Azienda/Studio", "Verdana", 0, 0);
        for (int i = 1; i <= 3; ++i) {
            testo(sx + 28, alto + 6 + 4 * i, 0, 9, 0, ditta[i], "Verdana", 1, 0);
        }
        testo(dx - 1, alto + 19, 1, 7, 0, nota(), "Verdana", 0, 0);
    } else {
        double b = alto + 20;
        if (stile(0).stile == 1) b = alto + 20 + 4 * (righe_stampate + 1);
        if (stile(0).stile == 2) b = limite_basso;
        forma(2, sx, alto, dx, b, stile(5).colore, 0);
        forma(1, sx, alto + 14, dx, alto + 14, stile(5).colore, 0);
        forma(1, sx, alto + 20, dx, alto + 20, stile(5).colore, 0);
        double x = sx;
        for (int i = 1; i < numero_colonne; ++i) {
            x += std::floor(scala_colonne * tabella[i].larghezza);
            forma(1, x, alto + 14, x, b, stile(5).colore, 0);
        }
        if (stile(0).stile >= 1) {
            testo(sx + 1, b, 0, 5, uno.colore, nota_piede, "Arial", 0, 0);
            const std::string text = nota();
            testo(dx - 1 - larga(text, "Arial", 5, false, false), b, 0, 5, uno.colore, text,
                  "Arial", 0, 0);
        }
        testo(sx + 1, alto + 5, 0, uno.corpo_carattere, uno.colore, titolo, uno.nome_carattere,
              uno.grassetto, uno.corsivo);
        for (int i = 1; i <= 3; ++i) {
            testo(dx - 1 -
                      larga(ditta[i], due.nome_carattere, due.corpo_carattere, due.grassetto != 0,
                            due.corsivo != 0),
                  alto - 3 + 4 * i, 0, due.corpo_carattere, due.colore, ditta[i],
                  due.nome_carattere, due.grassetto, due.corsivo);
        }
    }
    const voce_stampa& tre = stile(3);
    const std::string name = grigio ? "Verdana" : tre.nome_carattere;
    const double size = grigio ? 8 : tre.corpo_carattere;
    const bool bold = !grigio && tre.grassetto != 0;
    const bool italic = !grigio && tre.corsivo != 0;
    double x = sx;
    for (int i = 1; i <= numero_colonne; ++i) {
        const bool ultima = i == numero_colonne;
        const double cw = std::floor(scala_colonne * tabella[i].larghezza);
        const double fine = ultima ? dx : x + cw - 1;
        if (grigio) forma(2, x, alto + 24, fine, alto + 31, 0xdddddd, 1);
        for (int riga = 0; riga < (grigio ? righe_voce : 1); ++riga) {
            std::string& text = tabella[i + riga * numero_colonne].titolo_colonna;
            const bool numerica = tabella[i].formato_cella != 0;
            adatta(text, cw - 2, name, size, bold, italic);
            if (grigio) {
                const int y = righe_voce == 1 ? 26 : 24 + 3 * riga;
                testo(numerica ? fine : x + 1, alto + y, numerica ? 1 : 0, 9, 0, text, name, 0, 0);
                continue;
            }
            const double tw = std::floor(larga(text, name, size, bold, italic));
            testo(numerica ? (ultima ? dx : x + cw) - tw - 2 : x + 1, alto + 15, 0, size,
                  tre.colore, text, name, tre.grassetto, tre.corsivo);
        }
        x += cw;
    }
    if (grigio) {
        const double y = 27 + (righe_voce == 1 ? 5 : 8) * righe_stampate + 2 * alto;
        forma(2, sx, y, dx, y + 1, 0xaaaaaa, 1);
    }
    numero(9);
    for (int i = 0; i < 10; ++i) file += "\r\n";
    righe_stampate = 0;
}

}  // namespace vantora::test
