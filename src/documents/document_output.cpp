#include "documents/document_output.h"

#include "text/number_text.h"

namespace vantora {

document_output::document_output(ui::printer& paper, file_port& files)
    : paper_(paper), file_(files, marca_verticale) {}

void document_output::begin_page() {
    font_.name = "arial";
    font_.bold = false;
}

void document_output::end_page() {
    paper_.new_page();
    file_.end_page();
}

bool document_output::end() {
    const bool whole = file_.finish();
    paper_.end_job();
    return whole;
}

void document_output::set_look(const aspetto_testo& look) {
    if (look.corpo > 0) font_.size = look.corpo;
    if (!look.carattere.empty()) font_.name = look.carattere;
    font_.bold = look.grassetto;
    font_.italic = look.corsivo;
    ink_ = ink(look.colore);
}

void document_output::print(double x, double y, std::string_view text, const aspetto_testo& look) {
    set_look(look);
    paper_.text(x, y, text, font_, ink_);
}

void document_output::place(double x, double y, const testo_posto& item, const voce_layout& look) {
    const double size = number_at_head(look.corpo);
    const double colour = number_at_head(look.colore);
    set_look({size, look.carattere, look.grassetto != "0", look.corsivo != "0", colour});
    if (item.allineamento == ui::alignment::right) x -= paper_.text_width(item.testo, font_);
    paper_.text(x, y, item.testo, font_, ink_);
    file_.write({tipo_record::testo, x, y, 0, 0, size, colour, item.testo, look.carattere,
                 number_at_head(look.grassetto), number_at_head(look.corsivo)});
}

}  // namespace vantora
