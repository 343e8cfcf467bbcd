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
    sheet_.righe_stampate = 0;
    on_page_ = 0;
}

std::string report_engine::page_note() {
    numero_pagina_ = numero_pagina_ == -1 ? 1 : numero_pagina_ + 1;
    return "Stampato in data " + date_text(time_.now().day) + " - Pagina" +
           plain_text_signed(numero_pagina_);
}

const std::string& report_engine::fitted_title(std::size_t column, std::size_t line,
                                               const look& measured) {
    std::string& title = sheet_.colonne[column].titolo_colonna[line];
    const text_ruler ruler(out_.paper(), font_of(measured), out_.units_per_millimetre());
    title = std::string(cut_to_fit(title, text_ruler::limit(fit_[column]), ruler));
    return title;
}

// Plain look ----------------------------------------------------------------------------------

double report_engine::frame_bottom() const {
    const misure_testata_piana& at = plain_heading_measures(uscita_);
    const double shortest = limits_.alto + at.titoli_a;
    const int kind = entry(0).stile;
    if (kind <= sotto_titoli) return shortest;
    double bottom = limits_.basso;
    if (kind == dietro_righe) {
        bottom = limits_.alto + at.cornice + rows_.passo * (sheet_.righe_stampate + 1);
    }
    return uscita_ == uscita_report::stampante ? std::max(bottom, shortest) : bottom;
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
    for (std::size_t i = 1; i < columns(); ++i) {
        out_.line({left_[i], from, left_[i], bottom, ink}, linea_report::cornice);
    }
}

void report_engine::draw_plain_notes(double bottom) {
    const misure_testata_piana& at = plain_heading_measures(uscita_);
    const look small{"Arial", 5, 0, 0, entry(1).colore};
    const double y = bottom + at.nota_y;
    put(limits_.sinistro + at.nota_x, y, nota_piede, small);
    put_right(limits_.destro - at.pagina, y, page_note(), small);
}

void report_engine::draw_plain_heading() {
    const misure_testata_piana& at = plain_heading_measures(uscita_);
    const double bottom = frame_bottom();
    draw_plain_frame(bottom);
    if (entry(0).stile > sotto_titoli) draw_plain_notes(bottom);
    put(limits_.sinistro + at.titolo_x, limits_.alto + at.titolo_y, sheet_.titolo,
        look_of(entry(1)));
    for (int i = 1; i <= 3; ++i) {
        put_right(limits_.destro - at.ditta, limits_.alto + at.ditta_y + at.ditta_passo * i,
                  parameters_.intestazione_ditta[static_cast<std::size_t>(i)], look_of(entry(2)));
    }
    const look titles = look_of(entry(3));
    for (std::size_t i = 0; i < columns(); ++i) {
        const std::string& title = fitted_title(i, 0, titles);
        put_in_column(i, limits_.alto + at.titoli_y, title, titles, titles);
    }
}

// Grey look -----------------------------------------------------------------------------------

void report_engine::draw_grey_heading() {
    const misure_testata_grigia& at = grey_heading_measures(uscita_);
    const double left = limits_.sinistro;
    const double right = limits_.destro;
    const double top = limits_.alto;
    out_.box({left, top, right, top + at.banda, grigio}, true);
    put(left + at.titolo_x, top + at.titolo_y, sheet_.titolo, {"Verdana", 14, 1, 0, bianco});
    put_right(right - at.destra, top + at.nota_y, nota_piede, {"Verdana", 6, 1, 0, bianco});
    out_.box({left, top + at.cornice_da, right, top + at.cornice_a, entry(5).colore}, false);
    put(left + at.azienda_x, top + at.azienda_y, "Azienda/Studio", {"Verdana", 9, 0, 0, nero});
    for (int i = 1; i <= 3; ++i) {
        put(left + at.ditta_x, top + at.ditta_y + at.ditta_passo * i,
            parameters_.intestazione_ditta[static_cast<std::size_t>(i)],
            {"Verdana", 9, 1, 0, nero});
    }
    put_right(right - at.destra, top + at.pagina_y, page_note(), {"Verdana", 7, 0, 0, nero});
    draw_grey_titles();
    const double under = row_y(sheet_.righe_stampate);
    out_.box({left, under, right, under + at.chiusura, grigio}, true);
}

void report_engine::draw_grey_titles() {
    const misure_testata_grigia& at = grey_heading_measures(uscita_);
    const look measured{"Verdana", 8, 0, 0, nero};
    look titles = measured;
    titles.corpo = at.corpo_titoli;
    const double top = limits_.alto;
    const auto put_title = [&](std::size_t column, std::size_t line, double y) {
        const std::string& title = fitted_title(column, line, measured);
        put_in_column(column, top + y, title, measured, titles);
    };
    for (std::size_t i = 0; i < columns(); ++i) {
        out_.box({left_[i], top + at.titoli_da, box_right(i), top + at.titoli_a, grigio_chiaro},
                 true);
        put_title(i, 0, has_second_line() ? at.titoli_y1 : at.titoli_y);
        if (has_second_line()) put_title(i, 1, at.titoli_y2);
    }
}

}  // namespace vantora
