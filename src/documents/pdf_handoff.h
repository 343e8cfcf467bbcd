#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "documents/document_tables.h"
#include "program/program.h"

namespace vantora {

/// A printed document of which a PDF can be made.
struct documento_stampato {
    tipo_documento tipo;
    std::string numero;      ///< as typed; the number in it names the PDF
    bool invia;              ///< send it by e-mail
    std::string_view email;  ///< address of the customer
    const tabelle_documento& tabelle;
    std::optional<std::string> stampa;  ///< what its print file held, if that was all of it
    /// Writes the print file anew and gives what it holds now, if that is all of it.
    std::function<std::optional<std::string>()> riscrivi;
};

/// The command line of `mirxpdf`: a document's form or "***", the PDF to make of what the print
/// file holds, and where it is sent or "***", with further arguments behind a comma.
std::string mirxpdf_command(std::string_view layout, std::string_view pdf,
                            std::string_view addressee);

/// The command line that has `mirxpdf` make the PDF of what the print file holds.
std::string command_for_pdf(const parametri& parameters, const documento_stampato& document);

/// Asks whether to make the PDF of the document just printed, and to send it; on yes starts
/// `mirxpdf` and goes on. A print file that another print has taken the place of is written anew.
/// Says so if `mirxpdf` can't be started, or must not be because there is no print file of the
/// document.
void offri_pdf(program& app, const documento_stampato& document);

}  // namespace vantora
