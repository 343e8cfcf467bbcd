// The headings of a report's pages: frame, titles, company, notes.

#include <algorithm>

#include "reports/report_engine.h"
#include "text/dates.h"
#include "text/number_text.h"

namespace vantora {

namespace {

constexpr std::string_view nota_piede = "Vantora Ordini - www.vantora.example";

constexpr double nero = 0;
constexpr double bianco = 0xFFFFFF;
constexpr double grigio = 0xAAAAAA;
constexpr double grigio_chiaro = 0xDDDDDD;

/// How far down the frame of the plain look goes.
enum cornice { sotto_titoli = 0, dietro_righe = 1 };

}  // namespace

void report_engine::end_report() {
    if (on_page_ > 0) end_page();
}

void report_engine::end_page() {
    if (aspect_.grigio) {
        draw_grey_heading();
    } else {
        draw_plain_heading();
    }
    out_.end_page();
    righe_stampate_ = 0;
    on_page_ = 0;
}

std::string report_engine::page_note() {
    return "Stampato in data " + date_text(time_.now().day) + " - Pagina " +
           std::to_string(++numero_pagina_);
}

void report_engine::draw_title(colonna& of, double y, const text_ruler& measured,
                               const stile_testo& look) {
    of.titolo = cut_to_fit(of.titolo, of.spazio, measured);
    put_in_column(of, y, of.titolo, measured, look, forma_stile::numeri);
}

// Plain look ----------------------------------------------------------------------------------

double report_engine::frame_bottom() const {
    const misure_testata_piana& at = plain_heading_measures(uscita_);
    const double shortest = limits_.alto + at.titoli_a;
    const int kind = entry(0).stile;
    if (kind <= sotto_titoli) return shortest;
    double bottom = limits_.basso;
    if (kind == dietro_righe) {
        bottom = limits_.alto + at.cornice + rows_.passo * (righe_stampate_ + 1);
    }
    return in_file() ? bottom : std::max(bottom, shortest);
}

void report_engine::draw_plain_frame(double bottom) {
    const misure_testata_piana& at = plain_heading_measures(uscita_);
    const double ink = entry(5).colore;
    const double from = limits_.alto + at.titoli_da;
    const double to = limits_.alto + at.titoli_a;
    out_.box({limits_.sinistro, limits_.alto, limits_.destro, bottom, ink}, false);
    if (at.banda_chiusa) {
        out_.box({limits_.sinistro, from, limits_.destro, to, ink}, false);
    } else {
        for (const double y : {from, to}) {
            out_.line({limits_.sinistro, y, limits_.destro, y, ink}, linea_report::cornice);
        }
    }
    for (std::size_t i = 1; i < columns_.size(); ++i) {
        const double x = columns_[i].sinistra;
        out_.line({x, from, x, bottom, ink}, linea_report::cornice);
    }
}

void report_engine::draw_plain_notes(double bottom) {
    const misure_testata_piana& at = plain_heading_measures(uscita_);
    const stile_testo small{"Arial", 5, 0, 0, entry(1).colore};
    const double y = bottom + at.nota_y;
    put(limits_.sinistro + at.nota_x, y, nota_piede, small);
    put_right(limits_.destro - at.pagina, y, page_note(), small);
}

void report_engine::draw_plain_heading() {
    const misure_testata_piana& at = plain_heading_measures(uscita_);
    const double bottom = frame_bottom();
    draw_plain_frame(bottom);
    if (entry(0).stile > sotto_titoli) draw_plain_notes(bottom);
    put(limits_.sinistro + at.titolo_x, limits_.alto + at.titolo_y, title_, look_of(entry(1)));
    for (int i = 1; i <= 3; ++i) {
        put_right(limits_.destro - at.ditta, limits_.alto + at.ditta_y + at.ditta_passo * i,
                  parameters_.intestazione_ditta[static_cast<std::size_t>(i)], look_of(entry(2)));
    }
    const stile_testo titles = look_of(entry(3));
    const text_ruler ruler = ruler_of(titles);
    for (colonna& one : columns_) draw_title(one, limits_.alto + at.titoli_y, ruler, titles);
}

// Grey look -----------------------------------------------------------------------------------

void report_engine::draw_grey_heading() {
    const misure_testata_grigia& at = grey_heading_measures(uscita_);
    const double left = limits_.sinistro;
    const double right = limits_.destro;
    const double top = limits_.alto;
    out_.box({left, top, right, top + at.banda, grigio}, true);
    put(left + at.titolo_x, top + at.titolo_y, title_, {"Verdana", 14, 1, 0, bianco});
    put_right(right - at.destra, top + at.nota_y, nota_piede, {"Verdana", 6, 1, 0, bianco});
    out_.box({left, top + at.cornice_da, right, top + at.cornice_a, entry(5).colore}, false);
    put(left + at.azienda_x, top + at.azienda_y, "Azienda/Studio", {"Verdana", 9, 0, 0, nero});
    for (int i = 1; i <= 3; ++i) {
        put(left + at.ditta_x, top + at.ditta_y + at.ditta_passo * i,
            parameters_.intestazione_ditta[static_cast<std::size_t>(i)],
            {"Verdana", 9, 1, 0, nero});
    }
    put_right(right - at.destra, top + at.pagina_y, page_note(), {"Verdana", 7, 0, 0, nero});
    const text_ruler ruler = ruler_of({"Verdana", 8, 0, 0, nero});
    for (colonna& one : columns_) {
        out_.box({one.sinistra, top + at.titoli_da, one.fine, top + at.titoli_a, grigio_chiaro},
                 true);
        draw_title(one, top + at.titoli_y, ruler, {"Verdana", at.corpo_titoli, 0, 0, nero});
    }
    const double under = row_y(righe_stampate_);
    out_.box({left, under, right, under + at.chiusura, grigio}, true);
}

}  // namespace vantora
