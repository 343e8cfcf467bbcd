#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <optional>

#include "documents/print_file_reader.h"
#include "ui/bitmap.h"

namespace vantora::mirxpdf {

/// The picture of a file named in a print file; empty if there is none that can be read.
using picture_source = std::function<std::optional<ui::bitmap>(std::string_view path)>;

/// Makes the PDF of a document: A4 pages, marks in the order of their records, fonts embedded. A
/// document without pages gives a PDF without pages. A picture that can't be read is left out.
/// Empty if the PDF couldn't be made. REQUIRES: a QGuiApplication.
QByteArray make_pdf(const documento_di_stampa& document, const QString& title,
                    const picture_source& pictures);

}  // namespace vantora::mirxpdf
