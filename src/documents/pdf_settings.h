#pragma once

#include <array>
#include <string>

#include "documents/document_kind.h"
#include "store/parameters.h"

namespace vantora {

/// One row of "vantora.pdf".
using voce_pdf = std::array<std::string, 4>;

/// How a company wants its PDF files, by kind of document: rows 1 to 20.
using tabella_pdf = std::array<voce_pdf, 21>;

/// Reads "vantora.pdf" of the company and puts the row of `kind` into the PDF slots of
/// `parametri_valuta`; the folder is "C:" where the file names none. Reports are made as orders
/// are. What is missing stays as it was.
void load_pdf_settings(tabella_pdf& into, tipo_documento kind, parametri& parameters,
                       file_port& files);

}  // namespace vantora
