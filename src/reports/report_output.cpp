#include "reports/report_output.h"

#include "text/code_page.h"

namespace vantora {

namespace {

constexpr double usual_size = 9;

ui::colour usable_colour(double value) {
    return ui::colour_of(value).value_or(ui::black);
}

double millimetres(double twips) {
    return twips / report_on_printer::twips_per_millimetre;
}

std::string without_line_ends(std::string_view text) {
    std::string made(text);
    for (std::size_t at = 0; (at = made.find("\r\n", at)) != std::string::npos;) made.erase(at, 1);
    return made;
}

vista_di_record record_of(const testo_report& one) {
    vista_di_record record{tipo_record::testo, one.x, one.y, 0, 0};
    record.y2 = one.allineamento == ui::alignment::right ? 1 : 0;
    record.corpo = one.corpo;
    record.colore = one.colore;
    record.testo = one.testo;
    record.carattere = one.carattere;
    record.grassetto = one.grassetto;
    record.corsivo = one.corsivo;
    return record;
}

}  // namespace

ui::font usable_font(std::string_view name, double size, bool bold, bool italic) {
    const std::string_view face = trimmed(name);
    return {std::string(face.empty() ? "Arial" : face), size > 0 ? size : usual_size, bold, italic};
}

void report_on_printer::text(const testo_report& one) {
    const ui::font font =
        usable_font(one.carattere, one.corpo, one.grassetto != 0, one.corsivo != 0);
    paper().text(millimetres(one.x), millimetres(one.y), one.testo, font,
                 usable_colour(one.colore));
}

void report_on_printer::line(const forma_report& one, linea_report) {
    paper().line(millimetres(one.x1), millimetres(one.y1), millimetres(one.x2), millimetres(one.y2),
                 usable_colour(one.colore));
}

void report_on_printer::box(const forma_report& one, bool filled) {
    paper().box(millimetres(one.x1), millimetres(one.y1), millimetres(one.x2), millimetres(one.y2),
                usable_colour(one.colore), filled);
}

void report_on_printer::end_page() {
    paper().new_page();
}

void report_in_print_file::text(const testo_report& one) {
    vista_di_record record = record_of(one);
    if (one.testo.find('\r') == std::string_view::npos) return file_.write_view(record, one.forma);
    const std::string cleaned = without_line_ends(one.testo);
    record.testo = cleaned;
    file_.write_view(record, one.forma);
}

void report_in_print_file::line(const forma_report& one, linea_report kind) {
    const double mark = kind == linea_report::riga ? 1 : 0;
    file_.write_view(
        {tipo_record::linea, one.x1, one.y1, one.x2, one.y2, 0, one.colore, "", "", mark, 0});
}

void report_in_print_file::box(const forma_report& one, bool filled) {
    file_.write_view({tipo_record::riquadro, one.x1, one.y1, one.x2, one.y2, 0, one.colore, "", "",
                      filled ? 1.0 : 0.0, 0});
}

void report_in_print_file::end_page() {
    file_.end_page();
}

}  // namespace vantora
