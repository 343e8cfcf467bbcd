#include "mirxpdf/pdf_file.h"

#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "text/code_page.h"

namespace vantora::mirxpdf {

namespace {

QString reason_of(int error, const std::filesystem::path& folder) {
    switch (error) {
        case EBUSY:
        case ETXTBSY:
        case EAGAIN:
            return "il file è aperto in un altro programma";
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return "il disco è pieno";
        case EACCES:
        case EPERM:
        case EROFS:
            return ::access(folder.c_str(), W_OK) == 0
                       ? "il file è protetto o aperto in un altro programma"
                       : "la cartella non si può scrivere";
        case EINVAL:
            return "con quel nome non c'è un file normale";
        case ENOENT:
        case ENOTDIR:
            return "la cartella manca";
        case EIO:
            return "errore del disco";
        default:
            return "errore del sistema: " +
                   QString::fromStdString(std::generic_category().message(error));
    }
}

}  // namespace

std::optional<QString> save_pdf(const QByteArray& pdf, std::string_view path, file_port& files) {
    const std::filesystem::path place = files.locate(path);
    if (upper(place.extension().string()) != ".PDF") return "il nome non finisce in .pdf";
    std::error_code refused;
    std::filesystem::create_directories(place.parent_path(), refused);
    if (put_whole(files, path, std::as_bytes(std::span(pdf.data(), std::size_t(pdf.size()))))) {
        return {};
    }
    return reason_of(errno, place.parent_path());
}

}  // namespace vantora::mirxpdf
