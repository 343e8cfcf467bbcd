#include "desktop/system_launcher.h"

#include <QApplication>
#include <QDebug>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QProcess>
#include <QRegularExpression>
#include <QStringList>
#include <memory>

#include "desktop/dialogs/file_showing.h"
#include "ui/paper/toolkit_values.h"

namespace vantora::ui::desktop {

struct system_launcher::program {
    QString file;
    QStringList arguments;
};

void system_launcher::prefer_installed(std::filesystem::path folder, std::string drive) {
    installed_in_ = std::move(folder);
    drive_ = std::move(drive);
}

suite_program system_launcher::copy_of(std::string_view path) const {
    std::filesystem::path in_suite = locate_(path);
    if (installed_in_.empty()) return {std::move(in_suite), {}};
    return choose_copy(in_suite, installed_in_ / in_suite.filename());
}

system_launcher::program system_launcher::program_of(const std::string& command) const {
    const std::size_t end = command.find(' ');
    const suite_program chosen = copy_of(command.substr(0, end));
    program made{QString::fromStdString(chosen.file.string()), {}};
    if (!chosen.why_not_suite.empty()) {
        made.arguments << "--drive" << QString::fromStdString(drive_);
        qInfo().noquote() << made.file + ": " + QString::fromStdString(chosen.why_not_suite);
    }
    if (end != std::string::npos) made.arguments << to_qt(command.substr(end + 1));
    return made;
}

bool system_launcher::start(const std::string& command) {
    const program wanted = program_of(command);
    return QProcess::startDetached(wanted.file, wanted.arguments);
}

started_program system_launcher::run(const std::string& command) {
    using enum started_program::how;
    constexpr qint64 longest = 120'000;  // milliseconds
    constexpr int between_looks = 50;
    const program wanted = program_of(command);
    auto process = std::make_unique<QProcess>();
    auto quiet = QProcessEnvironment::systemEnvironment();
    quiet.insert("QT_QPA_PLATFORM", "offscreen");
    process->setProcessEnvironment(quiet);
    process->start(wanted.file, wanted.arguments);
    if (!process->waitForStarted()) return {not_started, {}};
    QElapsedTimer since;
    since.start();
    while (process->state() != QProcess::NotRunning) {
        if (since.elapsed() > longest) {
            // It goes on by itself.
            QProcess* on_its_own = process.release();
            QObject::connect(on_its_own, &QProcess::finished, on_its_own, &QObject::deleteLater);
            return {late, {}};
        }
        process->waitForFinished(between_looks);
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
    const bool success = process->exitStatus() == QProcess::NormalExit && process->exitCode() == 0;
    QString told = QString::fromUtf8(process->readAllStandardError()).trimmed();
    // Each of its lines begins with its name.
    told.remove(QRegularExpression("^[a-z]+: ", QRegularExpression::MultilineOption));
    return {success ? well : failed, from_qt(told)};
}

void system_launcher::open(const std::string& path) {
    show_file_or_folder(QString::fromStdString(locate_(path)), QApplication::activeWindow());
}

}  // namespace vantora::ui::desktop
