#pragma once

#include <string_view>

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

}  // namespace vantora
