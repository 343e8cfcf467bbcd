#include "desktop/dialogs/file_dialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMessageBox>
#include <QSaveFile>
#include <QStandardPaths>
#include <cerrno>
#include <cstdio>
#include <filesystem>

#include "desktop/dialogs/file_showing.h"
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
    dialog.setLabelText(QFileDialog::LookIn, words::look_in);
    dialog.setLabelText(QFileDialog::FileName, words::file_name);
    dialog.setLabelText(QFileDialog::FileType, words::file_type);
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
    return run_dialog(dialog, kind, words::save);
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

}  // namespace vantora::ui::desktop
