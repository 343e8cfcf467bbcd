#include "desktop/dialogs/file_dialog.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUrl>
#include <cerrno>
#include <cstdio>
#include <filesystem>

#include "desktop/look/words.h"
#include "store/why_not_written.h"
#include "text/code_page.h"

namespace vantora::ui::desktop {

namespace {

QDir documents() {
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    return folder.exists() ? folder : QDir::home();
}

bool put_in_place(const QString& made, const QString& place) {
    const QByteArray from = QFile::encodeName(made);
    if (std::rename(from.constData(), QFile::encodeName(place).constData()) == 0) return true;
    QFile::remove(made);
    return false;
}

QString proposed_file(const QString& called, const QString& ending) {
    const QDir folder = documents();
    QString name = called + "." + ending;
    for (int i = 2; folder.exists(name); ++i) {
        name = QString("%1 (%2).%3").arg(called).arg(i).arg(ending);
    }
    return folder.filePath(name);
}

QString run_dialog(QFileDialog& dialog, const file_kind& kind, const char* accept) {
    const plain_pointer shown_meanwhile;
    // The system's own dialog speaks the system's language.
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setViewMode(QFileDialog::List);
    dialog.setNameFilter(QString("%1 (*.%2)").arg(kind.name, kind.ending));
    dialog.setDefaultSuffix(kind.ending);
    dialog.setLabelText(QFileDialog::LookIn, "Cerca in:");
    dialog.setLabelText(QFileDialog::FileName, "Nome del file:");
    dialog.setLabelText(QFileDialog::FileType, "Tipo di file:");
    dialog.setLabelText(QFileDialog::Accept, accept);
    dialog.setLabelText(QFileDialog::Reject, words::cancel);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

}  // namespace

plain_pointer::plain_pointer() : busy_(QGuiApplication::overrideCursor() != nullptr) {
    if (busy_) QGuiApplication::changeOverrideCursor(Qt::ArrowCursor);
}

plain_pointer::~plain_pointer() {
    if (busy_) QGuiApplication::changeOverrideCursor(Qt::WaitCursor);
}

QString ask_where_to_save(const QString& title, const QString& called, const file_kind& kind,
                          QWidget* above) {
    QFileDialog dialog(above, title);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    const QString proposed = proposed_file(called, kind.ending);
    dialog.setDirectory(documents());
    dialog.selectFile(proposed);
    return run_dialog(dialog, kind, "&Salva");
}

QString ask_what_to_open(const QString& title, const file_kind& kind, QWidget* above) {
    QFileDialog dialog(above, title);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setDirectory(documents());
    return run_dialog(dialog, kind, words::open);
}

QString write_whole(const QString& file, const QByteArray& content) {
    // A new file takes the place of a link, once it is whole, and is never written through it.
    const bool link = QFileInfo(file).isSymLink();
    QSaveFile target(link ? file + ".nuovo" : file);
    errno = 0;
    if (target.open(QIODevice::WriteOnly) && target.write(content) == content.size() &&
        target.commit() && (!link || put_in_place(target.fileName(), file))) {
        return {};
    }
    const int error = errno;
    if (error == 0) return target.errorString();
    const std::filesystem::path place(QFile::encodeName(file).toStdString());
    return QString::fromStdString(to_utf8(why_not_written(error, place.parent_path())));
}

void save_whole(const QString& file, const QByteArray& content, QWidget* above) {
    const QString why = write_whole(file, content);
    if (why.isEmpty()) return tell_saved(file, above);
    tell(QString(words::cannot_write).arg(file, why), above);
}

void tell(const QString& what, QWidget* above, icon sign, const QString& title) {
    const plain_pointer shown_meanwhile;
    QMessageBox box(above);
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText);
    box.setText(what);
    dress_box(box, sign);
    box.exec();
}

// Showing files ----------------------------------------------------------------------------------

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

namespace {

void show_folder_of(const QString& file, QWidget* above) {
    const QString folder = QFileInfo(file).absolutePath();
    if (!show_file(folder))
        tell(QString("Su questo computer nessun programma mostra la cartella %1").arg(folder),
             above);
}

}  // namespace

void show_file_or_folder(const QString& file, QWidget* above) {
    if (show_file(file)) return;
    tell(QString("Su questo computer nessun programma apre il file %1. Si apre la sua cartella.")
             .arg(file),
         above);
    show_folder_of(file, above);
}

void tell_saved(const QString& file, QWidget* above) {
    const plain_pointer shown_meanwhile;
    QMessageBox box(above);
    box.setWindowTitle("Salvato");
    box.setTextFormat(Qt::PlainText);
    box.setText(QString("Salvato in %1").arg(file));
    const QPushButton* folder = box.addButton("Apri la &cartella", QMessageBox::ActionRole);
    QPushButton* enough = box.addButton("OK", QMessageBox::AcceptRole);
    box.setDefaultButton(enough);
    box.setEscapeButton(enough);
    dress_box(box, icon::information);
    box.exec();
    if (box.clickedButton() == folder) show_folder_of(file, above);
}

}  // namespace vantora::ui::desktop
