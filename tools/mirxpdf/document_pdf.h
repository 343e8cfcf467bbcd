#pragma once

#include <QByteArray>
#include <QString>

#include "documents/document_pictures.h"
#include "documents/print_file_reader.h"

namespace vantora::mirxpdf {

/// Makes the PDF of a document: A4 pages, marks in the order of their records, fonts embedded. A
/// picture that can't be read or is too large is treated as on paper. Empty if the PDF couldn't be
/// made. REQUIRES: a QGuiApplication, and a document with pages.
QByteArray make_pdf(const documento_di_stampa& document, const QString& title,
                    figure_documento& pictures);

}  // namespace vantora::mirxpdf
