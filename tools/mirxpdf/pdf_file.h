#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <string_view>

#include "store/file_port.h"

namespace vantora::mirxpdf {

/// Puts a PDF in its place in one step, when all of it is on the disk; until then a file of that
/// name stays as it is. Folders on the way are made. Only a plain file whose name ends in ".pdf" is
/// written. `path` is the suite's. The answer is what went wrong, for the user; empty if nothing
/// did.
std::optional<QString> save_pdf(const QByteArray& pdf, std::string_view path, file_port& files);

}  // namespace vantora::mirxpdf
