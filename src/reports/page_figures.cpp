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
     .titoli_y1 = 1200,
     .titoli_y2 = 1370,
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
     .titoli_y1 = 24,
     .titoli_y2 = 27,
     .corpo_titoli = 9,
     .chiusura = 1},
};

std::size_t which(uscita_report uscita) {
    return static_cast<std::size_t>(uscita);
}

misure_righe righe_su_stampante(const aspetto_report& look) {
    const double passo = look.grigio ? (look.due_linee ? 450 : 250) : look.passo;
    const double altezza = look.due_linee ? 420 : 220;
    misure_righe figures{};
    figures.prima = look.grigio ? 1630 : 1300;
    figures.volte_alto = 1;
    figures.passo = passo;
    figures.altezza = altezza;
    figures.testo = look.grigio ? 20 : 0;
    figures.secondo = 220;
    figures.linea = look.grigio ? altezza + 5 : 0.85 * passo;
    figures.fascia_da = look.grigio ? 0 : -0.1 * passo;
    figures.fascia_a = look.grigio ? 0 : 0.85 * passo;
    figures.fondo = look.grigio ? altezza : passo + 100;
    return figures;
}

int righe_massime_in_file(const aspetto_report& look) {
    if (!look.grigio) return look.orizzontale ? 43 : 63;
    if (look.due_linee) return look.orizzontale ? 21 : 31;
    return look.orizzontale ? 33 : 50;
}

misure_righe righe_in_file(const aspetto_report& look) {
    misure_righe figures{};
    figures.prima = look.grigio ? 27 : 22;
    // Deliberate: rows of the grey look stand a top margin lower.
    figures.volte_alto = look.grigio ? 2 : 1;
    figures.passo = look.grigio ? (look.due_linee ? 8 : 5) : 4;
    figures.altezza = look.due_linee ? 7 : 4;
    figures.secondo = 3;
    figures.linea = look.grigio ? figures.altezza : 4;
    figures.righe_massime = righe_massime_in_file(look);
    figures.fine_a_destra = look.grigio;
    return figures;
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
    return uscita == uscita_report::stampante ? righe_su_stampante(look) : righe_in_file(look);
}

const misure_testata_piana& plain_heading_measures(uscita_report uscita) {
    return testate_piane[which(uscita)];
}

const misure_testata_grigia& grey_heading_measures(uscita_report uscita) {
    return testate_grigie[which(uscita)];
}

}  // namespace vantora
