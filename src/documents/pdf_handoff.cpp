#include "documents/pdf_handoff.h"

#include "documents/print_file.h"
#include "store/suite_paths.h"
#include "text/number_text.h"

namespace vantora {

namespace {

constexpr const char* titolo = "Attenzione";
constexpr std::string_view nessun_indirizzo = "***";
constexpr std::size_t colonna_argomento = 3;  ///< of a row of the PDF table

}  // namespace

std::string comando_pdf(const parametri& parameters, const documento_stampato& document) {
    const nomi_documento names = nomi_di(document.tipo);
    std::string command(cartella_generale);
    command.append("mirxpdf ").append(file_azienda(parameters.numero_azienda, names.layout_pdf));
    command.append(",").append(file_di_stampa);
    command.append(",").append(trimmed(parameters.parametri_valuta[valuta_slot::cartella_pdf]));
    command.append("\\").append(names.prefisso_pdf);
    command.append(plain_text(number_at_head(document.numero)));
    command.append(".pdf,").append(document.invia ? trimmed(document.email) : nessun_indirizzo);
    const auto& row = document.tabelle.pdf[static_cast<std::size_t>(document.tipo)];
    const std::string_view extra = trimmed(row[colonna_argomento]);
    if (!extra.empty()) command.append(",").append(extra);
    return command;
}

void offri_pdf(program& app, const documento_stampato& document) {
    constexpr const char* domanda =
        "Generare il file PDF ed eventualmente inviarlo tramite posta elettronica?";
    if (!app.desk.ask(domanda, titolo)) return;
    // Whatever was printed meanwhile, by whatever program, took the print file's place.
    const bool own = document.stampa && app.files.read_whole(file_di_stampa) == document.stampa;
    const bool started = own && app.desk.launcher().start(comando_pdf(app.parameters, document));
    app.desk.set_pointer(ui::pointer::normal);
    if (started) return;
    app.desk.message(
        "Non è possibile eseguire il programma invio del documento a mezzo internet."_cp, titolo,
        ui::icon::stop);
}

}  // namespace vantora
