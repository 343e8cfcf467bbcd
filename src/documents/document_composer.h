#pragma once

#include <functional>

#include "documents/document_output.h"
#include "program/order_lines.h"

namespace vantora {

/// Where a kind of document has its parts in the rows of its layout.
struct forma_documento {
    int campi;          ///< fields around the lines, from row 1
    int riga_alto;      ///< row with the upper limit of the lines
    int riga_basso;     ///< row with the lower limit
    int prima_colonna;  ///< row of the first column of the lines
    int colonne;
};

/// What a document says, field by field and line by line.
class contenuto_documento {
 public:
    virtual ~contenuto_documento() = default;

    virtual testo_posto campo(int number, int page) = 0;
    /// A line's columns are asked for one after the other, from 1.
    virtual testo_posto colonna(int line, int number) = 0;
};

/// How many pages a document has, and how many lines fit on one.
struct paginazione {
    int righe_pagina = 0;
    int pagine = 0;
};

/// Counts the pages up to the last line with a description; none has no page. The descriptions from
/// the last line up to that one lose what may not go on a document.
paginazione impagina(const forma_documento& shape, const tabelle_documento& tables,
                     righe_ordine& lines);

/// Composes all pages in one pass, each with its background if the layout wants one, the fields
/// around it and its lines. The frame is the same on every page. Line 200 has no place.
void componi_pagine(const forma_documento& shape, const tabelle_documento& tables,
                    const paginazione& pages, contenuto_documento& content, document_output& out,
                    const std::function<void()>& draw_background);

}  // namespace vantora
