#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "store/parameters.h"
#include "store/suite_table.h"

namespace vantora {

/// The kinds of document that this module makes, as the suite numbers them.
enum class tipo_documento { documento_trasporto = 5, ordine = 6 };

/// What belongs to a kind of document outside its pages.
struct nomi_documento {
    std::string_view layout;        ///< extension of the file that places its fields
    std::string_view disegno;       ///< extension of its drawing list
    std::string_view layout_pdf;    ///< extension of the PDF program's own layout
    std::string_view prefisso_pdf;  ///< of the PDF's name, before the document's number
    const char* titolo_stampa;      ///< over the questions while it is printed
};

constexpr nomi_documento names_of_kind(tipo_documento kind) {
    if (kind == tipo_documento::ordine) return {"lyo", "lko", "lxo", "orc", "Stampa ordine"};
    return {"lyb", "lkb", "lxb", "bll", "Stampa documento di trasporto"};
}

/// Texts of layouts, drawings and headings end here: no page has room for more.
inline constexpr std::size_t testo_piu_lungo = 2000;

/// One placed item of a document's layout, all as texts of the layout file.
struct voce_layout {
    std::string posizione;  ///< xxxyyy in millimetres from the page's upper left corner
    std::string corpo;      ///< points
    std::string carattere;  ///< font name
    std::string grassetto;  ///< "0": normal, anything else: bold
    std::string corsivo;    ///< "0": upright, anything else: italic
    std::string colore;     ///< 24 bits as a decimal number, red in the low byte
};

/// One element of a page's background: nine values and two texts.
struct elemento_disegno {
    std::array<double, 9> valori{};
    std::array<std::string, 2> testi;
};

/// The drawing list of a page's background.
struct disegno {
    static constexpr std::size_t massimo = 500;

    double elementi = 0;  ///< elements in use, as the file says
    /// From 1. A text that is too long has one character more than a document takes.
    std::array<elemento_disegno, massimo + 1> elenco;
    bool illeggibile = false;  ///< its file is there and can't be read
};

/// One row of "vantora.pdf".
using voce_pdf = std::array<std::string, 4>;

/// How a company wants its PDF files, by kind of document: rows 1 to 20.
using tabella_pdf = std::array<voce_pdf, 21>;

/// Everything that a company's files say of one kind of document.
struct tabelle_documento {
    std::array<std::string, 21> testi_intestazione;  ///< from 1
    tabella_iva iva;
    std::array<voce_layout, 101> tabella_layout;  ///< from 1
    tabella_pdf pdf;
    std::vector<std::string> illeggibili;  ///< files that are there and can't be read
};

/// Loads the tables of a document, and its PDF settings into their slots of
/// `parameters.parametri_valuta`. A layout that is missing or short becomes one that places
/// nothing; what else is missing stays empty.
void carica_documento(tabelle_documento& into, tipo_documento kind, parametri& parameters,
                      file_port& files);

/// Reads "vantora.pdf" of the company and puts the row of `kind` into the PDF slots of
/// `parametri_valuta`; the folder is "C:" where the file names none. Reports are made as orders
/// are. What is missing stays as it was.
void load_pdf_settings(tabella_pdf& into, tipo_documento kind, parametri& parameters,
                       file_port& files);

/// Loads the drawing list of a document. A missing file leaves a list without elements; one that
/// ends early leaves the values behind its end as they were.
void carica_disegno(disegno& into, tipo_documento kind, int numero_azienda, file_port& files);

}  // namespace vantora
