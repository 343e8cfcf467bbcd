#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <string_view>

#include "documents/document_pictures.h"
#include "documents/print_file_reader.h"
#include "store/file_port.h"

namespace vantora::mirxpdf {

/// Makes the PDF of a document: A4 pages, marks in the order of their records, fonts embedded. A
/// picture that can't be read or is too large is treated as on paper. Empty if the PDF couldn't be
/// made. REQUIRES: a QGuiApplication, and a document with pages.
QByteArray make_pdf(const documento_di_stampa& document, const QString& title,
                    figure_documento& pictures);

/// Puts a PDF in its place in one step, when all of it is on the disk; until then a file of that
/// name stays as it is. Folders on the way are made. Only a plain file whose name ends in ".pdf" is
/// written. `path` is the suite's. The answer is what went wrong, for the user; empty if nothing
/// did.
std::optional<QString> save_pdf(const QByteArray& pdf, std::string_view path, file_port& files);

}  // namespace vantora::mirxpdf
