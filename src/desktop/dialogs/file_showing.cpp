#include "desktop/dialogs/file_showing.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QUrl>

#include "desktop/dialogs/file_dialog.h"
#include "desktop/look/box_look.h"
#include "desktop/look/words.h"

namespace vantora::ui::desktop {

namespace {

void show_folder_of(const QString& file, QWidget* above) {
    const QString folder = QFileInfo(file).absolutePath();
    if (!show_file(folder)) tell(QString(words::no_folder_viewer).arg(folder), above);
}

}  // namespace

bool ends_within(std::unique_ptr<QProcess>& program, qint64 longest) {
    constexpr int between_looks = 50;
    QElapsedTimer since;
    since.start();
    while (program->state() != QProcess::NotRunning && since.elapsed() < longest) {
        program->waitForFinished(between_looks);
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
    if (program->state() == QProcess::NotRunning) return true;
    QProcess* on_its_own = program.release();
    QObject::connect(on_its_own, &QProcess::finished, on_its_own, &QObject::deleteLater);
    return false;
}

bool ended_well(const QProcess& program) {
    return program.exitStatus() == QProcess::NormalExit && program.exitCode() == 0;
}

bool show_file(const QString& file) {
    constexpr qint64 longest = 2000;  // milliseconds; who finds no program says so sooner
    const QString opener = QStandardPaths::findExecutable("xdg-open");
    if (opener.isEmpty()) return QDesktopServices::openUrl(QUrl::fromLocalFile(file));
    auto process = std::make_unique<QProcess>();
    process->start(opener, {file});
    if (!process->waitForStarted()) return false;
    return !ends_within(process, longest) || ended_well(*process);
}

void show_file_or_folder(const QString& file, QWidget* above) {
    if (show_file(file)) return;
    tell(QString(words::no_viewer).arg(file), above);
    show_folder_of(file, above);
}

void tell_saved(const QString& file, QWidget* above) {
    const plain_pointer shown_meanwhile;
    QMessageBox box(above);
    box.setWindowTitle(words::saved);
    box.setTextFormat(Qt::PlainText);
    box.setText(QString(words::saved_in).arg(file));
    const QPushButton* folder = box.addButton(words::open_folder, QMessageBox::ActionRole);
    QPushButton* enough = box.addButton("OK", QMessageBox::AcceptRole);
    box.setDefaultButton(enough);
    box.setEscapeButton(enough);
    dress_box(box, icon::information);
    box.exec();
    if (box.clickedButton() == folder) show_folder_of(file, above);
}

}  // namespace vantora::ui::desktop
