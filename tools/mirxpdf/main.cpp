#include <CLI/CLI.hpp>
#include <QApplication>
#include <QDesktopServices>
#include <QUrl>
#include <cstdlib>

#include "mirxpdf/document_pdf.h"
#include "mirxpdf/mail.h"
#include "mirxpdf/notices.h"
#include "mirxpdf/pdf_file.h"
#include "mirxpdf/request.h"
#include "store/company.h"
#include "store/drive.h"
#include "store/text/code_page.h"
#include "ui/look/style.h"
#include "ui/paper/toolkit_values.h"
#include "ui/pictures/pixbuf_decoder.h"

namespace {

using namespace vantora;
using namespace vantora::mirxpdf;
using ui::shown;

constexpr int all_done = 0;
constexpr int no_pdf = 1;
constexpr int wrong_arguments = 2;
constexpr int not_sent = 3;

struct options {
    std::filesystem::path drive;
    bool no_window = false;
    std::string argument;  ///< in the code page
};

/// Empty if the program is to run, else its exit code.
std::optional<int> read_options(options& into, int count, char** arguments) {
    CLI::App parser(
        "Trasforma in PDF il documento appena stampato e, se c'è un indirizzo, lo invia.\n"
        "ARGOMENTO: modulo o ***, file di stampa, file PDF, indirizzo e-mail o ***, separati da "
        "virgole.");
    parser
        .add_option("--drive", into.drive,
                    "Cartella che fa da disco della suite; altrimenti quella in cui il programma "
                    "sta come mirwin/mirwin/mirxpdf")
        ->check(CLI::ExistingDirectory);
    parser.add_flag("--no-window", into.no_window, "Nessuna finestra: i messaggi vanno su stderr");
    // From its first word on, the argument is nobody's option.
    parser.prefix_command();
    try {
        parser.parse(count, arguments);
    } catch (const CLI::ParseError& problem) {
        return parser.exit(problem) == 0 ? all_done : wrong_arguments;
    }
    for (const std::string& word : parser.remaining()) {
        into.argument += (into.argument.empty() ? "" : " ") + from_utf8(word);
    }
    return {};
}

bool is_set(const char* variable) {
    const char* value = std::getenv(variable);
    return value && *value;
}

/// Chooses the toolkit's platform; without a screen, or with one that doesn't answer, it needs
/// none.
void choose_platform(bool no_window) {
    const bool wayland = is_set("WAYLAND_DISPLAY");
    const bool x11 = is_set("DISPLAY");
    if (no_window || (!wayland && !x11)) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    } else if (!is_set("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", wayland ? "wayland;xcb;offscreen" : "xcb;offscreen");
    }
}

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

/// Empty if it was sent, else why not.
std::optional<QString> send(drive& suite, const pdf_request& request,
                            const std::filesystem::path& path, const QByteArray& pdf) {
    const std::string configuration = std::string(cartella_generale) + "mirxpdf.conf";
    const QString place = QString::fromStdString(suite.locate(configuration).string());
    const auto addressees = read_addressees(to_utf8(request.addressee));
    if (addressees.empty()) {
        return "indirizzo e-mail non valido: " + shown(request.addressee);
    }
    const auto content = suite.read_whole(configuration);
    std::error_code unknown;
    if (!content && std::filesystem::exists(suite.locate(configuration), unknown)) {
        return "la configurazione della posta non si può leggere: " + place;
    }
    const auto read = read_mail_settings(content.value_or(""));
    if (const auto* error = std::get_if<settings_error>(&read)) {
        return "configurazione della posta errata in " + place + ", " +
               QString::fromStdString(error->what);
    }
    const auto& settings = std::get<mail_settings>(read);
    if (settings.server.empty()) {
        return "la posta elettronica non è configurata: indicare il server in " + place;
    }
    const auto problem = send_pdf(settings, addressees, path.filename().string(), pdf);
    if (!problem) return {};
    return QString::fromStdString("invio tramite " + settings.server +
                                  " non riuscito: " + *problem);
}

int run(drive& suite, const pdf_request& request, const std::optional<std::string>& print_file,
        const notices& tell) {
    const QString source = shown(request.print_file);
    if (!print_file) {
        tell.failure("Il file di stampa " + source + " non si può leggere.");
        return no_pdf;
    }
    const auto read = leggi_file_di_stampa(*print_file);
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
    const std::filesystem::path path = suite.locate(request.pdf);
    const QString place = QString::fromStdString(path.string());
    ui::pixbuf_decoder decoder;
    figure_documento pictures(suite, decoder);
    const QByteArray pdf =
        make_pdf(document, QString::fromStdString(path.stem().string()), pictures);
    const auto refused = pdf.isEmpty() ? "il disegno delle pagine non riesce" : save_pdf(pdf, path);
    if (refused) {
        tell.failure("Il PDF " + place + " non è stato creato: " + *refused + ".");
        return no_pdf;
    }
    QString odd = remark(document);
    if (!pictures.left_out().empty()) odd += " Mancano figure troppo grandi.";
    const QString ready = "Il documento è pronto.";
    if (request.addressee.empty()) {
        tell.done(ready, odd, place);
        return all_done;
    }
    if (const auto problem = send(suite, request, path, pdf)) {
        tell.not_sent("Il documento non è stato inviato: " + *problem + "." + odd, place);
        return not_sent;
    }
    tell.done(ready + " È stato inviato a " + shown(request.addressee) + ".", odd, place);
    return all_done;
}

}  // namespace

int main(int count, char** arguments) {
    take_file_limits_as_errors();
    options given;
    if (const auto code = read_options(given, count, arguments)) return *code;
    if (given.drive.empty()) {
        given.drive = drive_around(program_file(arguments[0])).value_or("");
    }
    const auto request = read_request(given.argument);

    // The next document overwrites the print file at any moment: it is read before all else.
    drive suite(given.drive);
    std::optional<std::string> print_file;
    if (request && !given.drive.empty()) print_file = suite.read_whole(request->print_file);

    choose_platform(given.no_window);
    int toolkit_count = 1;
    QApplication application(toolkit_count, arguments);
    QApplication::setOrganizationName("Vantora");
    QApplication::setApplicationName("mirxpdf");
    notices tell;
    if (QGuiApplication::platformName() != "offscreen") {
        ui::dress_application(application);
        tell = notices(
            [](const QString& file) { QDesktopServices::openUrl(QUrl::fromLocalFile(file)); });
    }
    if (given.drive.empty()) {
        tell.failure("Il programma non sta in mirwin/mirwin: indicare il disco con --drive.");
        return wrong_arguments;
    }
    if (!request) {
        tell.failure(
            "Argomento errato: servono modulo, file di stampa, file PDF ed eventuale indirizzo "
            "e-mail, separati da virgole.");
        return wrong_arguments;
    }
    return run(suite, *request, print_file, tell);
}
