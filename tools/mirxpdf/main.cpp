#include <QApplication>
#include <QDesktopServices>
#include <QLoggingCategory>
#include <QUrl>
#include <cstdlib>
#include <iostream>
#include <iterator>

#include "command_line/command_line.h"
#include "desktop/look/style.h"
#include "mirxpdf/carry_out.h"
#include "store/drive.h"
#include "text/code_page.h"

namespace {

using namespace vantora;
using namespace vantora::mirxpdf;

struct options {
    std::string drive;
    bool no_window = false;
    notice mail;           ///< instead of a document; without an addressee there is none
    std::string argument;  ///< in the code page
};

/// Empty if the program is to run, else its exit code.
std::optional<int> read_options(options& into, int count, char** arguments) {
    command_line line(
        "mirxpdf",
        "Trasforma in PDF il documento appena stampato e, se c'è un indirizzo, lo invia.\n"
        "ARGOMENTO: modulo o ***, file di stampa, file PDF, indirizzo e-mail o ***, separati da "
        "virgole.");
    std::vector<std::string> words;
    line.folder("--drive", into.drive,
                "cartella che fa da disco della suite; altrimenti quella in cui il programma sta "
                "come mirwin/mirwin/mirxpdf");
    line.text("--avviso", into.mail.addressee,
              "invia a questo indirizzo il testo che legge, invece di un documento");
    line.text("--oggetto", into.mail.subject, "oggetto dell'avviso");
    line.flag("--no-window", into.no_window, "nessuna finestra: i messaggi vanno su stderr");
    // From its first word on, the argument is nobody's option.
    line.rest(words);
    if (const auto code = line.read(count, arguments)) return code;
    for (const std::string& word : words) {
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

}  // namespace

int main(int count, char** arguments) {
    take_file_limits_as_errors();
    options given;
    if (const auto code = read_options(given, count, arguments)) return *code;
    if (given.drive.empty()) {
        given.drive = drive_around(program_file(arguments[0])).value_or("").string();
    }
    const bool is_notice = !given.mail.addressee.empty();
    const auto request = is_notice ? std::nullopt : read_request(given.argument);

    // The next document overwrites the print file at any moment: it is read before all else.
    drive suite(given.drive);
    std::optional<std::string> print_file;
    if (request && !given.drive.empty()) print_file = suite.read_whole(request->print_file);

    choose_platform(given.no_window || is_notice);
    // Who started this shows what it writes here to a person, for whom the toolkit's remarks are
    // none.
    QLoggingCategory::setFilterRules("*.warning=false");
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
    if (is_notice) {
        given.mail.addressee = from_utf8(given.mail.addressee);
        given.mail.text.assign(std::istreambuf_iterator<char>(std::cin), {});
        return send_notice(given.mail, suite, tell);
    }
    if (!request) {
        tell.failure(
            "Argomento errato: servono modulo, file di stampa, file PDF ed eventuale indirizzo "
            "e-mail, separati da virgole.");
        return wrong_arguments;
    }
    return carry_out(*request, print_file, suite, tell);
}
