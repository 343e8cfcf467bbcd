#pragma once

#include <functional>

#include "documents/document_output.h"
#include "documents/document_shape.h"
#include "documents/printed_document.h"

namespace vantora {

/// How many pages a document has, and how many lines fit on one.
struct paginazione {
    int righe_pagina = 0;
    int pagine = 0;
};

/// Counts the pages up to the last line with a description; none has no page. The descriptions from
/// the last line up to that one lose what may not go on a document.
paginazione paginate(const forma_documento& shape, const tabelle_documento& tables,
                     righe_ordine& lines);

/// Composes all pages in one pass, each with its background if the layout wants one, the fields
/// around it and its lines. The frame is the same on every page. Line 200 has no place.
void compose_pages(const documento_da_stampare& document, const paginazione& pages,
                   document_output& out, const std::function<void()>& draw_background);

}  // namespace vantora
