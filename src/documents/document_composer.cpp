#include "documents/document_composer.h"

#include <cmath>

#include "documents/document_content.h"
#include "text/int16.h"
#include "text/number_text.h"

namespace vantora {

namespace {

constexpr double passo_righe = 4;  ///< millimetres from line to line, whatever the font
constexpr int ultima_riga_stampata = 199;
constexpr std::size_t riga_sfondo = 99;  ///< of every layout: 1 switches the background on

const voce_layout& row_of(const tabelle_documento& tables, int row) {
    return tables.tabella_layout[static_cast<std::size_t>(row)];
}

double first_three(const voce_layout& row) {
    return number_at_head(std::string_view(row.posizione).substr(0, 3));
}

double last_three(const voce_layout& row) {
    const std::string_view position = row.posizione;
    return number_at_head(position.size() > 3 ? position.substr(position.size() - 3) : position);
}

int whole_millimetres(double value) {
    return to_int16(value).value_or(0);
}

int last_line_with_description(righe_ordine& lines) {
    for (int number = righe_ordine::massimo; number >= 1; --number) {
        auto& description = lines[number].descrizione;
        description = filtra_stampa(description.full());
        if (!description.trimmed().empty()) return number;
    }
    return 0;
}

}  // namespace

paginazione paginate(const forma_documento& shape, const tabelle_documento& tables,
                     righe_ordine& lines) {
    const int last_line = last_line_with_description(lines);
    const double height = std::abs(first_three(row_of(tables, shape.riga_alto)) -
                                   first_three(row_of(tables, shape.riga_basso)));
    paginazione pages;
    pages.righe_pagina = to_int16(integer_part(std::max(height, 1.0) / passo_righe)).value_or(0);
    if (shape.pagine_di_una_riga) pages.righe_pagina = std::max(pages.righe_pagina, 1);
    if (pages.righe_pagina > 0) pages.pagine = last_line / pages.righe_pagina;
    pages.righe_pagina = std::max(pages.righe_pagina, 1);
    if (last_line != pages.righe_pagina * pages.pagine) ++pages.pagine;
    return pages;
}

void compose_pages(const documento_da_stampare& document, const paginazione& pages,
                   document_output& out, const std::function<void()>& draw_background) {
    const forma_documento& shape = document_form(document.tipo);
    const tabelle_documento& tables = document.tabelle;
    const contenuto_documento content(document);
    const bool has_background = number_at_head(tables.tabella_layout[riga_sfondo].posizione) == 1;
    const double body_top = first_three(row_of(tables, shape.riga_alto));
    for (int page = 1; page <= pages.pagine; ++page) {
        out.begin_page();
        if (has_background) draw_background();
        for (std::size_t number = 1; number < shape.campi.size(); ++number) {
            const voce_layout& look = tables.tabella_layout[number];
            const int x = whole_millimetres(first_three(look));
            const int y = whole_millimetres(last_three(look));
            if (x > 0 && y > 0) out.place(x, y, content.campo(shape.campi[number], page), look);
        }
        for (int place = 1; place <= pages.righe_pagina; ++place) {
            const int line = place + pages.righe_pagina * (page - 1);
            if (line > ultima_riga_stampata) break;
            int row = shape.prima_colonna;
            for (const testo_posto& item : content.riga(line, shape.colonne)) {
                const voce_layout& look = row_of(tables, row++);
                const double x = first_three(look);
                if (x > 0) out.place(x, body_top + passo_righe * (place - 1), item, look);
            }
        }
        out.end_page();
    }
}

}  // namespace vantora
