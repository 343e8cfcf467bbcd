#include "reports/report_engine.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "text/number_text.h"

namespace vantora {

namespace {

constexpr double nessuna_fascia = 16777215;

/// No list has rows so low that more of them would stand on a sheet; without a bound, rows of no
/// height would all go onto one page.
constexpr int rows_on_page_max = 1000;

constexpr std::size_t columns_max = 30;

}  // namespace

report_engine::report_engine(const parametri& parameters, const ui::clock& time, report_output& out,
                             uscita_report uscita, foglio_report sheet)
    : parameters_(parameters),
      time_(time),
      out_(out),
      uscita_(uscita),
      sheet_(std::move(sheet)),
      insets_(column_measures(uscita)) {
    if (columns() > columns_max) sheet_.colonne.resize(columns_max);
    aspect_.grigio = entry(1).stile == 1;
    aspect_.due_linee = sheet_.righe_voce == 2;
    aspect_.orizzontale = out.paper().orientation() != ui::printer::upright;
    aspect_.passo = entry(0).altezza;
    rows_ = row_measures(uscita, aspect_);
    set_limits();
    set_columns();
}

const voce_stampa& report_engine::entry(std::size_t number) const {
    return parameters_.tabella_stampa[number];
}

void report_engine::set_limits() {
    const ui::printer& paper = out_.paper();
    if (uscita_ == uscita_report::pdf) {
        limits_ = page_limits_in_file(paper.orientation());
        return;
    }
    const double units = out_.units_per_millimetre();
    limits_ =
        page_limits_on_printer(entry(0), paper.page_width() * units, paper.page_height() * units);
}

void report_engine::set_columns() {
    double shares = 0;
    for (const colonna_pagina& one : sheet_.colonne) shares += one.larghezza;
    const double scale = shares != 0 ? (limits_.destro - limits_.sinistro) / shares : 0;
    double x = limits_.sinistro;
    for (const colonna_pagina& one : sheet_.colonne) {
        const double width = scale * one.larghezza;
        left_.push_back(x);
        width_.push_back(integer_part(width));
        fit_.push_back((insets_.larghezza_intera ? width_.back() : width) - insets_.gioco);
        x += width_.back();
    }
    const std::size_t lines = has_second_line() ? 2 : 1;
    for (std::size_t line = 0; line < lines; ++line) {
        for (std::size_t i = 0; i < columns(); ++i) {
            text_ruler ruler(out_.paper(), font_of(measured_look(i, line)),
                             out_.units_per_millimetre());
            testo_report text = text_in(row_look(i, line));
            if (!aspect_.grigio) text.forma = forma_stile::zeri_come_testo;
            place_in_column(text, i, 0);
            cells_.push_back({{std::move(ruler), fit_[i], sheet_.colonne[i].formato_cella,
                               valuta(parameters_), placed_by_width(i)},
                              text,
                              placed_by_width(i)});
        }
    }
}

report_engine::look report_engine::look_of(const voce_stampa& entry) {
    return {entry.nome_carattere, static_cast<double>(entry.corpo_carattere),
            static_cast<double>(entry.grassetto), static_cast<double>(entry.corsivo), entry.colore};
}

ui::font report_engine::font_of(const look& as) {
    return usable_font(as.carattere, as.corpo, as.grassetto != 0, as.corsivo != 0);
}

report_engine::look report_engine::row_look(std::size_t column, std::size_t line) const {
    look as = look_of(entry(aspect_.grigio ? 5 : 4));
    const bool in_file = uscita_ == uscita_report::pdf;
    if (!aspect_.grigio) {
        if (in_file) as = {"Arial", as.corpo, 0, 0, as.colore};
        return as;
    }
    const colonna_pagina& one = sheet_.colonne[column];
    if (in_file) as = {as.carattere, as.corpo, 0, 0, 0};
    if (one.grassetto_cella[line]) as.grassetto = 1;
    if (one.corsivo_cella[line]) as.corsivo = 1;
    return as;
}

report_engine::look report_engine::measured_look(std::size_t column, std::size_t line) const {
    const bool by_table = aspect_.grigio && uscita_ == uscita_report::pdf;
    return by_table ? look_of(entry(5)) : row_look(column, line);
}

double report_engine::box_right(std::size_t column) const {
    return is_last(column) ? limits_.destro : left_[column] + width_[column] - insets_.stacco;
}

double report_engine::row_y(int number) const {
    return rows_.prima + rows_.passo * number + rows_.volte_alto * limits_.alto;
}

double report_engine::width_of(std::string_view text, const look& as) const {
    return out_.paper().text_width(text, font_of(as)) * out_.units_per_millimetre();
}

testo_report report_engine::text_in(const look& as) {
    return {0,          0,        ui::alignment::left, {}, as.carattere, as.corpo, as.grassetto,
            as.corsivo, as.colore};
}

void report_engine::put(double x, double y, std::string_view text, const look& as) {
    testo_report one = text_in(as);
    one.x = x;
    one.y = y;
    one.testo = text;
    out_.text(one);
}

void report_engine::put_right(double right, double y, std::string_view text, const look& as) {
    if (!rows_.fine_a_destra) {
        put(right - width_of(text, as), y, text, as);
        return;
    }
    testo_report one = text_in(as);
    one.x = right;
    one.y = y;
    one.allineamento = ui::alignment::right;
    one.testo = text;
    out_.text(one);
}

void report_engine::put_in_column(std::size_t column, double y, std::string_view text,
                                  const look& measured, const look& as) {
    testo_report one = text_in(as);
    one.y = y;
    one.testo = text;
    place_in_column(one, column, width_of(text, measured));
    out_.text(one);
}

bool report_engine::placed_by_width(std::size_t column) const {
    return sheet_.colonne[column].formato_cella != 0 && !rows_.fine_a_destra;
}

void report_engine::place_in_column(testo_report& one, std::size_t column, double width) const {
    const bool is_text = sheet_.colonne[column].formato_cella == 0;
    if (!is_text && rows_.fine_a_destra) one.allineamento = ui::alignment::right;
    one.x = x_in_column(column, width);
}

double report_engine::x_in_column(std::size_t column, double width) const {
    if (sheet_.colonne[column].formato_cella == 0) {
        return integer_part(left_[column]) + insets_.rientro_sinistro;
    }
    if (rows_.fine_a_destra) return box_right(column);
    const double right = is_last(column) ? limits_.destro : left_[column] + width_[column];
    return integer_part(right - integer_part(width)) - insets_.rientro_destro;
}

// Rows --------------------------------------------------------------------------------------

void report_engine::draw_stripe(double y) {
    if (rows_.fascia_da == rows_.fascia_a || entry(0).sfondo == nessuna_fascia) return;
    if (sheet_.righe_stampate % 2 == 0) return;
    out_.box({limits_.sinistro, y + rows_.fascia_da, limits_.destro, y + rows_.fascia_a,
              entry(0).sfondo},
             true);
}

void report_engine::draw_boxes_of(std::size_t column, double y) {
    if (!aspect_.grigio || entry(2).altezza != 1) return;
    const double shade = entry(sheet_.righe_stampate % 2 != 0 ? 1 : 2).sfondo;
    out_.box({left_[column], y, box_right(column), y + rows_.altezza, shade}, true);
}

void report_engine::draw_cell(std::size_t column, std::size_t line, std::string_view cell,
                              double y) {
    linea_celle& cells = cells_[line * columns() + column];
    const cella_pronta ready = cells.prepara(cell);
    testo_report text = cells.come;
    if (cells.per_larghezza) text.x = x_in_column(column, ready.larghezza);
    text.y = y;
    text.testo = ready.testo;
    out_.text(text);
}

void report_engine::print_row(std::span<const std::string_view> cells) {
    const auto cell = [&](std::size_t i) {
        return i < cells.size() ? cells[i] : std::string_view();
    };
    const double y = row_y(sheet_.righe_stampate);
    draw_stripe(y);
    for (std::size_t i = 0; i < columns(); ++i) {
        draw_boxes_of(i, y);
        draw_cell(i, 0, cell(i), y + rows_.testo);
        if (has_second_line()) draw_cell(i, 1, cell(i + columns()), y + rows_.secondo);
    }
    // Where the printer stands now.
    double position = y + (has_second_line() ? rows_.secondo : rows_.testo);
    if (entry(1).altezza == 1) {
        position = y + rows_.linea;
        out_.line({limits_.sinistro, position, limits_.destro, position, entry(5).colore},
                  linea_report::riga);
    }
    ++sheet_.righe_stampate;
    ++on_page_;
    if (is_full(position)) end_page();
}

bool report_engine::is_full(double position) const {
    if (rows_.righe_massime > 0) return sheet_.righe_stampate >= rows_.righe_massime;
    return position > limits_.basso - rows_.fondo || on_page_ >= rows_on_page_max;
}

}  // namespace vantora
