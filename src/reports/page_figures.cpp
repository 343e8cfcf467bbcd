#include "reports/page_figures.h"

#include "text/number_text.h"
#include "ui/printer.h"

namespace vantora {

namespace {

// Each pair: printer, print file.

constexpr misure_colonne colonne[] = {
    {.rientro_sinistro = 50,
     .rientro_destro = 50,
     .stacco = 30,
     .gioco = 0,
     .larghezza_intera = false},
    {.rientro_sinistro = 1, .rientro_destro = 2, .stacco = 1, .gioco = 2, .larghezza_intera = true},
};

constexpr misure_testata_piana testate_piane[] = {
    {.titoli_da = 800,
     .titoli_a = 1200,
     .banda_chiusa = true,
     .cornice = 1000,
     .nota_x = 0,
     .nota_y = 40,
     .pagina = 0,
     .titolo_x = 50,
     .titolo_y = 250,
     .ditta = 50,
     .ditta_y = -100,
     .ditta_passo = 200,
     .titoli_y = 900},
    {.titoli_da = 14,
     .titoli_a = 20,
     .banda_chiusa = false,
     .cornice = 20,
     .nota_x = 1,
     .nota_y = 0,
     .pagina = 1,
     .titolo_x = 1,
     .titolo_y = 5,
     .ditta = 1,
     .ditta_y = -3,
     .ditta_passo = 4,
     .titoli_y = 15},
};

constexpr misure_testata_grigia testate_grigie[] = {
    {.banda = 400,
     .titolo_x = 50,
     .titolo_y = 20,
     .destra = 50,
     .nota_y = 220,
     .pagina_y = 930,
     .cornice_da = 450,
     .cornice_a = 1150,
     .azienda_x = 50,
     .azienda_y = 500,
     .ditta_x = 1587,
     .ditta_y = 300,
     .ditta_passo = 200,
     .titoli_da = 1200,
     .titoli_a = 1550,
     .titoli_y = 1300,
     .corpo_titoli = 8,
     .chiusura = 57},
    {.banda = 8,
     .titolo_x = 1,
     .titolo_y = 2,
     .destra = 1,
     .nota_y = 5,
     .pagina_y = 19,
     .cornice_da = 9,
     .cornice_a = 23,
     .azienda_x = 1,
     .azienda_y = 10,
     .ditta_x = 28,
     .ditta_y = 6,
     .ditta_passo = 4,
     .titoli_da = 24,
     .titoli_a = 31,
     .titoli_y = 26,
     .corpo_titoli = 9,
     .chiusura = 1},
};

std::size_t which(uscita_report uscita) {
    return static_cast<std::size_t>(uscita);
}

}  // namespace

limiti_pagina page_limits_in_file(int orientamento) {
    const bool upright = orientamento == ui::printer::upright;
    return {5, upright ? 205.0 : 280.0, 5, upright ? 280.0 : 205.0};
}

limiti_pagina page_limits_on_printer(const voce_stampa& margini, double width, double height) {
    const auto limit = [](double size, std::int16_t thousandths) {
        return integer_part(size * thousandths / 1000);
    };
    return {limit(width, margini.margine_sinistro), limit(width, margini.margine_destro),
            limit(height, margini.margine_alto), limit(height, margini.margine_basso)};
}

const misure_colonne& column_measures(uscita_report uscita) {
    return colonne[which(uscita)];
}

misure_righe row_measures(uscita_report uscita, const aspetto_report& look) {
    const bool in_file = uscita == uscita_report::pdf;
    if (look.grigio && in_file) {
        // Deliberate: rows of the grey look stand a top margin lower.
        return {.prima = 27,
                .volte_alto = 2,
                .passo = 5,
                .altezza = 4,
                .linea = 4,
                .righe_massime = look.orizzontale ? 33 : 50,
                .fine_a_destra = true};
    }
    if (look.grigio) {
        return {
            .prima = 1630, .passo = 250, .altezza = 220, .testo = 20, .linea = 225, .fondo = 220};
    }
    if (in_file) {
        return {.prima = 22, .passo = 4, .linea = 4, .righe_massime = look.orizzontale ? 43 : 63};
    }
    return {.prima = 1300,
            .passo = look.passo,
            .linea = 0.85 * look.passo,
            .fascia_da = -0.1 * look.passo,
            .fascia_a = 0.85 * look.passo,
            .fondo = look.passo + 100};
}

const misure_testata_piana& plain_heading_measures(uscita_report uscita) {
    return testate_piane[which(uscita)];
}

const misure_testata_grigia& grey_heading_measures(uscita_report uscita) {
    return testate_grigie[which(uscita)];
}

}  // namespace vantora
