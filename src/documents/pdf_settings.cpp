#include "documents/pdf_settings.h"

#include "store/suite_paths.h"
#include "store/text_reader.h"
#include "text/code_page.h"

namespace vantora {

void load_pdf_settings(tabella_pdf& into, tipo_documento kind, parametri& parameters,
                       file_port& files) {
    const std::string path = company_path(parameters.numero_azienda, "pdf");
    text_reader lines(files.read_whole(path).value_or(""));
    for (std::size_t row = 1; row < into.size(); ++row) {
        for (auto& column : into[row]) lines.line(column);
    }
    const voce_pdf& settings = into[static_cast<std::size_t>(kind)];
    auto& slots = parameters.parametri_valuta;
    slots[valuta_slot::riservato_pdf] = trimmed(settings[0]);
    slots[valuta_slot::invio_email] = trimmed(settings[1]);
    slots[valuta_slot::cartella_pdf] = trimmed(settings[2]);
    if (slots[valuta_slot::cartella_pdf].empty()) slots[valuta_slot::cartella_pdf] = "C:";
}

}  // namespace vantora
