#include "mirxpdf/pdf_file.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "store/why_not_written.h"
#include "text/code_page.h"
#include "ui/paper/toolkit_values.h"

namespace vantora::mirxpdf {

std::optional<QString> save_pdf(const QByteArray& pdf, std::string_view path, file_port& files) {
    const std::filesystem::path place = files.locate(path);
    if (upper(place.extension().string()) != ".PDF") return "il nome non finisce in .pdf";
    std::error_code refused;
    std::filesystem::create_directories(place.parent_path(), refused);
    if (put_whole(files, path, std::as_bytes(std::span(pdf.data(), std::size_t(pdf.size()))))) {
        return {};
    }
    return ui::to_qt(why_not_written(errno, place.parent_path()));
}

}  // namespace vantora::mirxpdf
