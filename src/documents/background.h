#pragma once

#include "documents/document_output.h"
#include "documents/document_pictures.h"
#include "documents/printed_document.h"

namespace vantora {

/// Characters of a background's texts on one page: far more than can be read on it.
inline constexpr std::size_t caratteri_sfondo = 20'000;

/// Draws what a pre-printed form would carry, at the head of a page: pictures lie undermost, then
/// filled boxes, then lines, outlines and texts in the order of the list. Values that lie off an A4
/// page are pulled to its edges in the document's list itself, for the pages to come. A text that
/// is too long is cut, one that the page has no room for is left out; the beginnings of these go
/// into `shortened`, each once.
void disegna_sfondo(program& app, document_output& out, const documento_da_stampare& document,
                    figure_documento& pictures, std::vector<std::string>& shortened);

}  // namespace vantora
