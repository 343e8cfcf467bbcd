#pragma once

#include <span>
#include <string_view>

#include "program/program.h"
#include "reports/page_figures.h"
#include "ui/grid.h"

namespace vantora {

/// How the list of one screen goes out. All texts are of the code page and outlive the report.
struct descrizione_report {
    std::string_view titolo_domanda;  ///< over "Iniziare la stampa?": "Stampa schede articoli"
    std::string_view titolo;          ///< on every page: "Schede articoli"
    std::string_view file_pdf;        ///< in small letters: "schedearticoli.pdf"
    std::span<const colonna_report> colonne;  ///< grid columns 0 to n - 1, at most 30
};

/// Outputs a screen's list as it stands: rows 1 to `righe` - 1, where `righe` counts the rows in
/// use with the head; blank rows that only fill the window aren't among them. To the printer it
/// goes after a question; for a PDF into the print file, which `mirxpdf` is then started on, with a
/// message that names the PDF's folder (slot `cartella_pdf`, already filled) or says why it can't
/// be made; a window shows it when the PDF is there.
void stampa_report(program& app, const descrizione_report& report, const ui::grid& elenco,
                   int righe, uscita_report uscita);

}  // namespace vantora
