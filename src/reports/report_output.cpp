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

}  // namespace

ui::font usable_font(const stile_testo& look) {
    const std::string_view face = trimmed(look.carattere);
    return {std::string(face.empty() ? "Arial" : face), look.corpo > 0 ? look.corpo : usual_size,
            look.grassetto != 0, look.corsivo != 0};
}

void report_on_printer::text(const testo_report& one) {
    paper().text(millimetres(one.x), millimetres(one.y), one.testo, usable_font(one.stile),
                 usable_colour(one.stile.colore));
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
    const stile_testo& look = one.stile;
    const double right = one.allineamento == ui::alignment::right ? 1 : 0;
    const std::string clean = without_line_ends(one.testo);
    file_.write_view({tipo_record::testo, one.x, one.y, 0, right, look.corpo, look.colore, clean,
                      look.carattere, look.grassetto, look.corsivo},
                     one.forma);
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
