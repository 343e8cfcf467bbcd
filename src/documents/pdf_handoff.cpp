#include "documents/pdf_handoff.h"

#include "documents/print_file.h"
#include "store/suite_paths.h"
#include "text/number_text.h"

namespace vantora {

namespace {

constexpr std::string_view nessun_indirizzo = "***";
constexpr std::size_t colonna_argomento = 3;  ///< of a row of the PDF table

}  // namespace

std::string mirxpdf_command(std::string_view layout, std::string_view pdf,
                            std::string_view addressee) {
    std::string command(cartella_generale);
    command.append("mirxpdf ").append(layout).append(",").append(file_di_stampa);
    return command.append(",").append(pdf).append(",").append(addressee);
}

namespace {

void tell_of_no_address(program& app) {
    if (!app.desk.guards().on()) return;
    app.desk.message(
        "Il cliente non ha un indirizzo di posta elettronica: il PDF si genera e non si "
        "spedisce.",
        ui::attention, ui::icon::information);
}

/// Whatever was printed meanwhile, by whatever program, took the print file's place.
bool has_print_file(const program& app, const documento_stampato& document) {
    const auto now = app.files.read_whole(file_di_stampa);
    return document.stampa && now && (now == document.stampa || document.riscrivi());
}

}  // namespace

std::string command_for_pdf(const parametri& parameters, const documento_stampato& document) {
    const nomi_documento names = names_of_kind(document.tipo);
    std::string pdf(trimmed(parameters.parametri_valuta[valuta_slot::cartella_pdf]));
    pdf.append("\\").append(names.prefisso_pdf);
    pdf.append(plain_text(number_at_head(document.numero))).append(".pdf");
    std::string addressee(document.invia ? trimmed(document.email) : nessun_indirizzo);
    const auto& row = document.tabelle.pdf[static_cast<std::size_t>(document.tipo)];
    const std::string_view extra = trimmed(row[colonna_argomento]);
    if (!extra.empty()) addressee.append(",").append(extra);
    return mirxpdf_command(company_path(parameters.numero_azienda, names.layout_pdf), pdf,
                           addressee);
}

void offri_pdf(program& app, const documento_stampato& document) {
    constexpr const char* domanda =
        "Generare il file PDF ed eventualmente inviarlo tramite posta elettronica?";
    if (!app.desk.ask(domanda, ui::attention)) return;
    if (document.invia && trimmed(document.email).empty()) tell_of_no_address(app);
    const bool own = has_print_file(app, document);
    const bool started =
        own && app.desk.launcher().start(command_for_pdf(app.parameters, document));
    app.desk.set_pointer(ui::pointer::normal);
    if (started) return;
    app.desk.message(
        "Non è possibile eseguire il programma invio del documento a mezzo internet."_cp,
        ui::attention, ui::icon::stop);
}

}  // namespace vantora
