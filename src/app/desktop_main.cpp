#include <QApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iostream>
#include <optional>

#include "app/desktop_company_choice.h"
#include "app/options.h"
#include "app/start.h"
#include "desktop/desktop_front_end.h"
#include "desktop/keys/early_keys.h"
#include "desktop/keys/keys.h"
#include "desktop/look/style.h"
#include "desktop/outside_end.h"
#include "desktop/printing/system_printer.h"
#include "desktop/system_launcher.h"
#include "store/drive.h"
#include "store/suite_paths.h"
#include "ui/pictures/pixbuf_decoder.h"
#include "ui/script/script_front_end.h"
#include "windows/layouts.h"

namespace {

bool has_display() {
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        const char* value = std::getenv(name);
        if (value && *value) return true;
    }
    return false;
}

/// What a run by script has in place of the machine's printer and programs, and its commands.
struct scripted_run {
    explicit scripted_run(const std::string& file) : from_input(file == "-") {
        if (!from_input) script.open(file);
    }

    bool from_input;
    std::ifstream script;
    vantora::ui::script::recording_printer paper;
    vantora::ui::script::recording_launcher programs;

    std::istream& commands() { return from_input ? std::cin : script; }
};

/// Started without the menu program's argument: the user says what it would have said. The dialog
/// keeps what is typed until the first window is there.
class choice_of_company {
 public:
    /// False if nothing is to be opened.
    bool made(vantora::program_options& options) {
        std::filesystem::path drive = options.drive;
        if (drive == drive.root_path()) drive = vantora::company_choice::last_drive();
        dialog_.emplace(drive, QApplication::applicationDirPath() + "/vantora-demo");
        if (!dialog_->answered()) return false;
        options.drive = dialog_->drive().string();
        options.argument = dialog_->argument();
        keys_.emplace(*dialog_);
        return true;
    }
    /// As soon as there is a window that the window system has brought forward.
    void give_keys_to(const std::function<QWidget*()>& front_window) {
        if (!keys_) return;
        QObject::connect(&look_, &QTimer::timeout, &look_, [this, front_window] {
            constexpr int looks_max = 100;  // a window system may bring none forward
            QWidget* window = front_window();
            if (!window || (!window->isActiveWindow() && ++looks_ < looks_max)) return;
            look_.stop();
            keys_->give_to(*window);
            keys_.reset();
            dialog_.reset();
        });
        look_.start(20);
    }

 private:
    QTimer look_;
    int looks_ = 0;
    std::optional<vantora::company_choice> dialog_;
    std::optional<vantora::ui::desktop::early_keys> keys_;
};

/// The folder of what belongs to the person; a run by script has none unless it is named.
std::optional<vantora::drive> folder_of_person(const vantora::program_options& options) {
    std::filesystem::path folder = options.data;
    if (folder.empty() && options.script.empty()) {
        folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation).toStdString();
    }
    std::error_code refused;
    if (folder.empty() || !(std::filesystem::create_directories(folder, refused), !refused)) {
        return {};
    }
    return std::optional<vantora::drive>(std::in_place, folder);
}

/// What somebody who helps from afar asks for first.
QStringList facts_of(const vantora::program_options& options,
                     const vantora::ui::desktop::system_launcher& programs) {
    const auto pdf = programs.copy_of(std::string(vantora::cartella_generale) + "mirxpdf");
    QStringList lines{"Disco della suite: " + QString::fromStdString(options.drive),
                      "Ditta: " + QString::number(vantora::company_number_in(options.argument)),
                      "PDF: " + QString::fromStdString(pdf.file.string())};
    if (!pdf.why_not_suite.empty()) {
        lines.back() += " (" + QString::fromStdString(pdf.why_not_suite) + ")";
    }
    lines << "Impostazioni: " + QSettings().fileName();
    return lines;
}

/// Where the nightly copies of this drive go; empty if nobody set them up.
std::filesystem::path folder_of_copies(const std::filesystem::path& drive) {
    const auto settings = vantora::settings_file("notte.conf");
    std::error_code failed;
    const bool of_this =
        std::filesystem::equivalent(vantora::setting_in(settings, "CARTELLA"), drive, failed);
    return of_this && !failed ? vantora::setting_in(settings, "COPIE") : std::string();
}

}  // namespace

int main(int count, char** arguments) {
    using namespace vantora;
    take_file_limits_as_errors();
    program_options options{"vantora-ordini", "Gli ordini dei clienti", true};
    if (const auto code = options.read(count, arguments)) return *code;
    if (!has_display()) {
        std::cerr << "Vantora Ordini: non c'è uno schermo su cui aprire la finestra.\n";
        return 1;
    }

    // Under GLib's loop a key pressed while a list is only painted would lie there until the window
    // system has something else to say.
    qputenv("QT_NO_GLIB", "1");
    QApplication application(count, arguments);
    qunsetenv("QT_NO_GLIB");
    QApplication::setOrganizationName("Vantora");
    QApplication::setApplicationName("Ordini");
    QApplication::setApplicationVersion(VANTORA_VERSION);
    QApplication::setQuitOnLastWindowClosed(false);
    QGuiApplication::setDesktopFileName("example.vantora.Ordini");
    if (!options.data.empty()) {  // sizes and widths lie there too
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                           QString::fromStdString(options.data));
    }
    ui::dress_application(application);

    choice_of_company company;
    if (options.argument.empty() && options.script.empty() && !company.made(options)) return 0;

    drive files(options.drive);
    std::optional<drive> person = folder_of_person(options);
    ui::local_clock time;
    if (options.clock) time.stop_at(*options.clock);
    ui::pixbuf_decoder pictures;
    ui::desktop::desktop_front_end front(ui::desktop::lay_out_screen);

    if (!options.script.empty()) {
        scripted_run script(options.script);
        if (!script.commands()) {
            std::cerr << "Vantora Ordini: non si apre " << options.script << ".\n";
            return 2;
        }
        ui::desk desk(front, time, script.paper, script.programs);
        ui::script::interpreter commands(desk, time, script.paper, script.programs);
        commands.shoot = [&front](const auto& file) { return front.save_picture(file); };
        ui::script::script_runner runner(commands, script.commands(), std::cout);
        program app(files, desk, pictures);
        app.person = person ? &*person : nullptr;
        app.book = book_for(options, true);
        front.begin(desk);
        front.served_by(
            [&runner] { return runner.step(); },
            [&commands](const ui::message_box& box) { return commands.answer_kept_for(box); });
        desk.dispatch([&] { start(app, options.argument); });
        front.run();
        runner.write_reply();
        return exit_code(desk);
    }

    front.end_titles_with(title_of_company(files, options.argument));
    ui::desktop::system_printer paper;
    ui::desktop::system_launcher programs(
        [&files](std::string_view path) { return files.locate(path).string(); });
    programs.prefer_installed(QApplication::applicationDirPath().toStdString(), options.drive);
    ui::desktop::set_facts([&] { return facts_of(options, programs); });
    ui::desk desk(front, time, paper, programs);
    desk.guards().switch_to(true);
    program app(files, desk, pictures);
    app.person = person ? &*person : nullptr;
    app.book = book_for(options, false);
    app.copies = folder_of_copies(options.drive);
    front.begin(desk);
    const ui::desktop::outside_end from_outside([&front] { return front.may_end(); },
                                                [&front] { front.end_by_user(); });
    company.give_keys_to([&front] { return front.front_window(); });
    desk.dispatch([&] { start(app, options.argument); });
    front.run();
    return exit_code(desk);
}
