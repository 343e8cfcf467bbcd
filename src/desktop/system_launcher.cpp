#include "desktop/system_launcher.h"

#include <QApplication>
#include <QDebug>
#include <QRegularExpression>
#include <QStringList>

#include "desktop/dialogs/file_dialog.h"
#include "ui/paper/toolkit_values.h"

namespace vantora::ui::desktop {

namespace {

/// A copy in a folder that many may write grows old and can be replaced: the installed program is
/// started where the suite's is missing, a link or older. Without an installed one it is the
/// suite's.
suite_program choose_copy(const std::filesystem::path& in_suite,
                          const std::filesystem::path& installed) {
    namespace fs = std::filesystem;
    std::error_code failed;
    if (!fs::is_regular_file(installed, failed)) return {in_suite, {}};
    const auto kind = fs::symlink_status(in_suite, failed).type();
    if (kind == fs::file_type::symlink) return {installed, "quello della suite è un collegamento"};
    if (kind != fs::file_type::regular) return {installed, "nella suite non c'è"};
    const auto kept = fs::last_write_time(in_suite, failed);
    if (failed) return {in_suite, {}};
    const auto newest = fs::last_write_time(installed, failed);
    if (failed || kept >= newest) return {in_suite, {}};
    return {installed, "quello della suite è più vecchio"};
}

}  // namespace

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
    const program wanted = program_of(command);
    auto process = std::make_unique<QProcess>();
    auto quiet = QProcessEnvironment::systemEnvironment();
    quiet.insert("QT_QPA_PLATFORM", "offscreen");
    process->setProcessEnvironment(quiet);
    process->start(wanted.file, wanted.arguments);
    if (!process->waitForStarted()) return {not_started, {}};
    if (!ends_within(process, longest)) return {late, {}};
    QString told = QString::fromUtf8(process->readAllStandardError()).trimmed();
    // Each of its lines begins with its name.
    told.remove(QRegularExpression("^[a-z]+: ", QRegularExpression::MultilineOption));
    return {ended_well(*process) ? well : failed, from_qt(told)};
}

void system_launcher::open(const std::string& path) {
    show_file_or_folder(QString::fromStdString(locate_(path)), QApplication::activeWindow());
}

}  // namespace vantora::ui::desktop
