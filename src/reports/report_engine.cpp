#include "reports/report_engine.h"

#include "text/number_text.h"

namespace vantora {

namespace {

constexpr double nessuna_fascia = 16777215;

/// No list has rows so low that more of them would stand on a sheet; without a bound, rows of no
/// height would all go onto one page.
constexpr int rows_on_page_max = 1000;

}  // namespace

report_engine::report_engine(const parametri& parameters, const ui::clock& time, report_output& out,
                             uscita_report uscita, std::string_view title,
                             std::span<const colonna_report> columns)
    : parameters_(parameters),
      time_(time),
      out_(out),
      uscita_(uscita),
      title_(title),
      aspect_{entry(1).stile == 1, out.paper().orientation() != ui::printer::upright,
              static_cast<double>(entry(0).altezza)},
      rows_(row_measures(uscita, aspect_)),
      insets_(column_measures(uscita)),
      currency_(parameters),
      row_look_(row_look()),
      // In the print file a grey row is measured as the report table has it, and looks otherwise.
      row_ruler_(ruler_of(aspect_.grigio ? look_of(entry(5)) : row_look_)) {
    set_limits();
    set_columns(columns);
}

const voce_stampa& report_engine::entry(std::size_t number) const {
    return parameters_.tabella_stampa[number];
}

void report_engine::set_limits() {
    const ui::printer& paper = out_.paper();
    if (in_file()) {
        limits_ = page_limits_in_file(paper.orientation());
        return;
    }
    const double units = out_.units_per_millimetre();
    limits_ =
        page_limits_on_printer(entry(0), paper.page_width() * units, paper.page_height() * units);
}

void report_engine::set_columns(std::span<const colonna_report> columns) {
    double shares = 0;
    for (const colonna_report& one : columns) shares += one.larghezza;
    const double scale = (limits_.destro - limits_.sinistro) / shares;
    double x = limits_.sinistro;
    for (const colonna_report& one : columns) {
        const double width = scale * one.larghezza;
        const double whole = integer_part(width);
        const double room = (insets_.larghezza_intera ? whole : width) - insets_.gioco;
        columns_.push_back({one.titolo_colonna, one.formato_cella, x, x + whole,
                            x + whole - insets_.stacco, room});
        x += whole;
    }
    columns_.back().destra = columns_.back().fine = limits_.destro;
}

stile_testo report_engine::look_of(const voce_stampa& entry) {
    return {entry.nome_carattere, static_cast<double>(entry.corpo_carattere),
            static_cast<double>(entry.grassetto), static_cast<double>(entry.corsivo), entry.colore};
}

stile_testo report_engine::row_look() const {
    const stile_testo table = look_of(entry(aspect_.grigio ? 5 : 4));
    if (!in_file()) return table;
    if (aspect_.grigio) return {table.carattere, table.corpo, 0, 0, 0};
    return {"Arial", table.corpo, 0, 0, table.colore};
}

text_ruler report_engine::ruler_of(const stile_testo& look) const {
    return {out_.paper(), usable_font(look), out_.units_per_millimetre()};
}

double report_engine::row_y(int number) const {
    return rows_.prima + rows_.passo * number + rows_.volte_alto * limits_.alto;
}

void report_engine::put(double x, double y, std::string_view text, const stile_testo& look,
                        ui::alignment as) {
    out_.text({x, y, text, look, as});
}

void report_engine::put_right(double right, double y, std::string_view text,
                              const stile_testo& look) {
    if (rows_.fine_a_destra) return put(right, y, text, look, ui::alignment::right);
    put(right - ruler_of(look).width(text), y, text, look);
}

void report_engine::put_in_column(const colonna& in, double y, std::string_view text,
                                  const text_ruler& measured, const stile_testo& look,
                                  forma_stile form) {
    testo_report one{0, y, text, look, ui::alignment::left, form};
    if (in.formato == 0) {
        one.x = integer_part(in.sinistra) + insets_.rientro_sinistro;
    } else if (rows_.fine_a_destra) {
        one.x = in.fine;
        one.allineamento = ui::alignment::right;
    } else {
        const double width = integer_part(measured.width(text));
        one.x = integer_part(in.destra - width) - insets_.rientro_destro;
    }
    out_.text(one);
}

// Rows --------------------------------------------------------------------------------------

void report_engine::draw_stripe(double y) {
    if (rows_.fascia_da == rows_.fascia_a || entry(0).sfondo == nessuna_fascia) return;
    if (righe_stampate_ % 2 == 0) return;
    out_.box({limits_.sinistro, y + rows_.fascia_da, limits_.destro, y + rows_.fascia_a,
              entry(0).sfondo},
             true);
}

void report_engine::draw_box_of(const colonna& in, double y) {
    if (!aspect_.grigio || entry(2).altezza != 1) return;
    const double shade = entry(righe_stampate_ % 2 != 0 ? 1 : 2).sfondo;
    out_.box({in.sinistra, y, in.fine, y + rows_.altezza, shade}, true);
}

void report_engine::print_row(std::span<const std::string_view> cells) {
    const auto form = aspect_.grigio ? forma_stile::numeri : forma_stile::zeri_come_testo;
    const double y = row_y(righe_stampate_);
    draw_stripe(y);
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        const colonna& column = columns_[i];
        draw_box_of(column, y);
        const std::string text = formatted(cells[i], column.formato, currency_);
        put_in_column(column, y + rows_.testo, cut_to_fit(text, column.spazio, row_ruler_),
                      row_ruler_, row_look_, form);
    }
    // Where the printer stands now.
    double position = y + rows_.testo;
    if (entry(1).altezza == 1) {
        position = y + rows_.linea;
        out_.line({limits_.sinistro, position, limits_.destro, position, entry(5).colore},
                  linea_report::riga);
    }
    ++righe_stampate_;
    ++on_page_;
    if (is_full(position)) end_page();
}

bool report_engine::is_full(double position) const {
    if (rows_.righe_massime > 0) return righe_stampate_ >= rows_.righe_massime;
    return position > limits_.basso - rows_.fondo || on_page_ >= rows_on_page_max;
}

}  // namespace vantora
