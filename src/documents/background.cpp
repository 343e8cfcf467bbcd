#include "documents/background.h"

#include <algorithm>

#include "text/code_page.h"

namespace vantora {

namespace {

/// Kinds of drawing elements, in the first of their values; what is none of them isn't drawn.
constexpr double linea = 1;
constexpr double riquadro = 2;
constexpr double testo = 3;
constexpr double figura = 4;

/// Columns of an element's values; what they mean beyond the position turns on its kind.
namespace colonna {
enum : std::size_t {
    tipo,
    sinistra,
    alto,
    destra,
    basso,
    colore,
    riempito,
    corpo = riempito,
    grassetto,
    corsivo
};
}  // namespace colonna

constexpr double larghezza_pagina = 210;
constexpr double altezza_pagina = 297;

constexpr double corpo_minimo = 2;

std::span<elemento_disegno> elements_in_use(disegno& drawing) {
    const double count = std::clamp(drawing.elementi, 0.0, static_cast<double>(disegno::massimo));
    return std::span(drawing.elenco).subspan(1, static_cast<std::size_t>(count));
}

/// The user sees each picture while it goes to the paper.
void disegna_immagine(program& app, ui::printer& paper, const elemento_disegno& one,
                      figure_documento& pictures, ui::picture& figure) {
    const double x = one.valori[colonna::sinistra];
    const double y = one.valori[colonna::alto];
    const auto image = pictures.at(one.testi[0], x, y, paper.page_width(), paper.page_height());
    if (!image) return;
    figure.set_bitmap(image);
    figure.set_visible(true);
    paper.picture(x * scala_posto_figura, y * scala_posto_figura, lato_punto_figura, image);
    app.desk.let_events_run();
    figure.set_visible(false);
    app.desk.let_events_run();
}

void pull_into_page(elemento_disegno& one) {
    auto& values = one.valori;
    values[colonna::sinistra] = std::max(values[colonna::sinistra], 0.0);
    values[colonna::alto] = std::max(values[colonna::alto], 0.0);
    values[colonna::destra] = std::min(values[colonna::destra], larghezza_pagina);
    values[colonna::basso] = std::min(values[colonna::basso], altezza_pagina);
}

/// The record of what lies between two corners; a line or a box has its mark in line 10.
record_di_stampa shape_record(tipo_record kind, const elemento_disegno& one, double mark) {
    record_di_stampa record;
    record.tipo = kind;
    record.x1 = one.valori[colonna::sinistra];
    record.y1 = one.valori[colonna::alto];
    record.x2 = one.valori[colonna::destra];
    record.y2 = one.valori[colonna::basso];
    record.colore = one.valori[colonna::colore];
    record.grassetto = mark;
    return record;
}

void draw_picture(program& app, document_output& out, const elemento_disegno& one,
                  figure_documento& pictures, ui::picture& figure) {
    disegna_immagine(app, out.paper(), one, pictures, figure);
    record_di_stampa record = shape_record(tipo_record::figura, one, 0);
    record.testo = one.testi[0];
    out.file().write(record);
}

void draw_box(document_output& out, const elemento_disegno& one, bool filled) {
    const auto& values = one.valori;
    out.paper().box(values[colonna::sinistra], values[colonna::alto], values[colonna::destra],
                    values[colonna::basso], out.ink(values[colonna::colore]), filled);
    out.file().write(shape_record(tipo_record::riquadro, one, filled ? 1 : 0));
}

void draw_line(document_output& out, const elemento_disegno& one) {
    const auto& values = one.valori;
    out.paper().line(values[colonna::sinistra], values[colonna::alto], values[colonna::destra],
                     values[colonna::basso], out.ink(values[colonna::colore]));
    out.file().write(shape_record(tipo_record::linea, one, 1));
}

void draw_text(document_output& out, const elemento_disegno& one, std::int16_t selezione_2) {
    const auto& values = one.valori;
    std::string text = one.testi[0].substr(0, testo_piu_lungo);
    // The drawing lists are shared with the suite's invoices, which turn into credit notes.
    const bool credit_note = selezione_2 == 1 && upper(trimmed(text)) == "FATTURA NUMERO";
    if (credit_note) text = "Nota credito numero";
    out.print(
        values[colonna::sinistra], values[colonna::alto], text,
        {std::max(values[colonna::corpo], corpo_minimo), one.testi[1],
         values[colonna::grassetto] != 0, values[colonna::corsivo] != 0, values[colonna::colore]});
    out.file().write({tipo_record::testo, values[colonna::sinistra], values[colonna::alto], 0, 0,
                      values[colonna::corpo], values[colonna::colore], std::move(text),
                      one.testi[1], values[colonna::grassetto], values[colonna::corsivo]});
}

/// Draws a text as far as it and those before it on the page aren't too long.
class text_budget {
 public:
    explicit text_budget(std::vector<std::string>& shortened) : shortened_(shortened) {}

    bool takes(const std::string& text) {
        const bool whole = text.size() <= testo_piu_lungo;
        const std::size_t drawn = std::min(text.size(), testo_piu_lungo);
        const bool fits = drawn <= left_;
        if (fits) left_ -= drawn;
        if (!whole || !fits) note(text);
        return fits;
    }

 private:
    void note(const std::string& text) {
        constexpr std::size_t told = 30;
        const std::string beginning = filtra_stampa(text.substr(0, told));
        if (std::ranges::find(shortened_, beginning) == shortened_.end()) {
            shortened_.push_back(beginning);
        }
    }

    std::vector<std::string>& shortened_;
    std::size_t left_ = caratteri_sfondo;
};

}  // namespace

void disegna_sfondo(program& app, document_output& out, const documento_da_stampare& document,
                    figure_documento& pictures, std::vector<std::string>& shortened) {
    const auto elements = elements_in_use(document.sfondo);
    pictures.begin_page();
    for (const auto& one : elements) {
        if (one.valori[colonna::tipo] == figura)
            draw_picture(app, out, one, pictures, document.figura);
    }
    std::ranges::for_each(elements, pull_into_page);
    for (const auto& one : elements) {
        if (one.valori[colonna::tipo] == riquadro && one.valori[colonna::riempito] == 1)
            draw_box(out, one, true);
    }
    text_budget budget(shortened);
    for (const auto& one : elements) {
        if (one.valori[colonna::tipo] == riquadro && one.valori[colonna::riempito] == 0)
            draw_box(out, one, false);
        if (one.valori[colonna::tipo] == linea) draw_line(out, one);
        if (one.valori[colonna::tipo] != testo) continue;
        if (budget.takes(one.testi[0])) draw_text(out, one, app.selezione_2);
    }
}

}  // namespace vantora
