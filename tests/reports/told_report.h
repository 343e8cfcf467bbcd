#pragma once

#include <array>
#include <string>
#include <vector>

#include "reports/page_figures.h"
#include "store/text/dates.h"
#include "ui/printer.h"

namespace vantora::test {

/// The pages of a report, made step by step as a person would tell it, for each output and look on
/// its own. What the engine makes of one description is held against it.
struct told_report {
    struct voce {
        std::string titolo_colonna;
        std::string cella;
        int larghezza = 0;
        int formato_cella = 0;
        bool grassetto_cella = false;
        bool corsivo_cella = false;
    };

    told_report(const parametri& by, ui::printer& on) : parameters(by), paper(on) {}

    const parametri& parameters;
    ui::printer& paper;
    std::string file;  ///< the records of the print file
    std::string titolo;
    date oggi;
    int numero_colonne = 0;
    int righe_voce = 1;
    std::array<voce, 61> tabella{};
    int righe_stampate = 0;
    int numero_pagina = -1;

    void stampa_riga();
    void stampa_testata();
    void stampa_riga_file();
    void stampa_testata_file();

 private:
    const voce_stampa& stile(int i) const {
        return parameters.tabella_stampa[static_cast<std::size_t>(i)];
    }
    double larga(const std::string& text, const std::string& name, double size, bool bold,
                 bool italic) const;
    void limiti();
    void limiti_file();
    void prepara(voce& one, double limit, const std::string& name, double size, bool bold,
                 bool italic) const;
    void adatta(std::string& text, double limit, const std::string& name, double size, bool bold,
                bool italic) const;
    std::string nota();

    void stampa(double x, double y, const std::string& text, const std::string& name, double size,
                bool bold, bool italic, double colore);
    void linea(double x1, double y1, double x2, double y2, double colore);
    void riquadro(double x1, double y1, double x2, double y2, double colore, bool pieno);
    void numero(double value);
    void testo(double x, double y, int destra, double size, double colore, const std::string& text,
               const std::string& name, double bold, double italic);
    void forma(int tipo, double x1, double y1, double x2, double y2, double colore, int pieno);

    double limite_sinistro = 0, limite_destro = 0, limite_alto = 0, limite_basso = 0;
    double scala_colonne = 0;
    double unita = 1;      ///< in a millimetre
    double current_y = 0;  ///< of the printer, in twips
};

}  // namespace vantora::test
