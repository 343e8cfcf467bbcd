#include "mirxpdf/carry_out.h"

#include <QFileInfo>

#include "documents/print_file_reader.h"
#include "mirxpdf/document_pdf.h"
#include "mirxpdf/mail.h"
#include "store/suite_paths.h"
#include "text/code_page.h"
#include "ui/paper/toolkit_values.h"
#include "ui/pictures/pixbuf_decoder.h"

namespace vantora::mirxpdf {

namespace {

using ui::to_qt;

QString explained(const errore_di_stampa& error) {
    const QString line = QString(" (riga %1)").arg(error.riga);
    switch (error.difetto) {
        case difetto_di_stampa::senza_marca:
            return "non è un file di stampa";
        case difetto_di_stampa::troncato:
            return "è incompleto" + line;
        case difetto_di_stampa::tipo_sconosciuto:
            return "contiene un elemento sconosciuto" + line;
        case difetto_di_stampa::numero_illeggibile:
            return "contiene un numero illeggibile" + line;
        case difetto_di_stampa::numero_fuori_campo:
            return "contiene un numero troppo grande" + line;
    }
    return {};
}

/// What the user is to know of a document whose file had odd values; empty for all others.
QString remark(const documento_di_stampa& document) {
    if (document.anomalie == 0) return {};
    return QString(" Attenzione: il file di stampa %1; elementi corretti o saltati: %2.")
        .arg(explained(document.prima_anomalia))
        .arg(document.anomalie);
}

/// The settings of the mail, or why nothing can be sent. `odd` gets what the user is to know
/// besides.
std::variant<mail_settings, QString> settings_on(file_port& files, QString& odd) {
    const std::string configuration = std::string(cartella_generale).append("mirxpdf.conf");
    const QString place = QString::fromStdString(files.locate(configuration).string());
    const auto content = files.read_whole(configuration);
    if (!content && files.exists(configuration)) {
        const QString owner = QFileInfo(place).owner();
        return "la configurazione della posta non si può leggere: " + place +
               (owner.isEmpty() ? "" : ", che è di " + owner);
    }
    const auto read = read_mail_settings(content.value_or(""));
    if (const auto* error = std::get_if<settings_error>(&read)) {
        return "configurazione della posta errata in " + place + ", " +
               QString::fromStdString(error->what);
    }
    const auto& read_settings = std::get<mail_settings>(read);
    if (read_settings.server.empty()) {
        return "la posta elettronica non è configurata: indicare il server in " + place;
    }
    if (!read_settings.password.empty() && QFileInfo(place).permission(QFile::ReadOther)) {
        odd += " Attenzione: tutti possono leggere la password che sta in " + place + ".";
    }
    return read_settings;
}

/// A PDF, or the notice alone. Empty if it was sent, else why not.
std::optional<QString> send(file_port& files, const std::string& addressee,
                            const std::string& file_name, const QByteArray& pdf, QString& odd,
                            const notice* instead = nullptr) {
    const auto addressees = read_addressees(to_utf8(addressee));
    if (addressees.empty()) return "indirizzo e-mail non valido: " + to_qt(addressee);
    const auto found = settings_on(files, odd);
    if (const auto* why = std::get_if<QString>(&found)) return *why;
    auto settings = std::get<mail_settings>(found);
    if (instead) {
        settings.oggetto = instead->subject;
        settings.testo = instead->text;
    }
    const auto problem = send_pdf(settings, addressees, file_name, pdf);
    if (!problem) return {};
    return QString::fromStdString("invio tramite " + settings.server +
                                  " non riuscito: " + *problem);
}

}  // namespace

int carry_out(const pdf_request& request, const std::optional<std::string>& print_file,
              file_port& files, const notices& tell) {
    const QString source = to_qt(request.print_file);
    if (!print_file) {
        tell.failure("Il file di stampa " + source + " non si può leggere.");
        return no_pdf;
    }
    const auto read = read_print_file(*print_file);
    if (const auto* error = std::get_if<errore_di_stampa>(&read)) {
        tell.failure("Il PDF non è stato creato: il file di stampa " + source + " " +
                     explained(*error) + ".");
        return no_pdf;
    }

    const auto& document = std::get<documento_di_stampa>(read);
    if (document.pagine.empty()) {
        tell.failure("Il PDF non è stato creato: il documento non ha pagine." + remark(document));
        return no_pdf;
    }
    const std::filesystem::path path = files.locate(request.pdf);
    const QString place = QString::fromStdString(path.string());
    ui::pixbuf_decoder decoder;
    figure_documento pictures(files, decoder);
    const QByteArray pdf =
        make_pdf(document, QString::fromStdString(path.stem().string()), pictures);
    const auto refused =
        pdf.isEmpty() ? "il disegno delle pagine non riesce" : save_pdf(pdf, request.pdf, files);
    if (refused) {
        tell.failure("Il PDF " + place + " non è stato creato: " + *refused + ".");
        return no_pdf;
    }
    QString odd = remark(document);
    if (!pictures.left_out().empty()) odd += " Mancano figure troppo grandi.";
    if (!pictures.other_kinds().empty()) {
        odd += " Si leggono solo figure BMP, PNG, JPEG e GIF, non queste: " +
               to_qt(picture_names(pictures.other_kinds())) + ".";
    }
    const QString ready = "Il documento è pronto.";
    if (request.addressee.empty()) {
        tell.done(ready, odd, place);
        return all_done;
    }
    if (const auto problem = send(files, request.addressee, path.filename().string(), pdf, odd)) {
        tell.not_sent("Il documento non è stato inviato: " + *problem + "." + odd, place);
        return not_sent;
    }
    tell.done(ready + " È stato inviato a " + to_qt(request.addressee) + ".", odd, place);
    return all_done;
}

int send_notice(const notice& one, file_port& files, const notices& tell) {
    QString odd;
    const auto problem = send(files, one.addressee, "", {}, odd, &one);
    if (!problem) return all_done;
    tell.failure("L'avviso non è stato inviato: " + *problem + "." + odd);
    return not_sent;
}

}  // namespace vantora::mirxpdf
