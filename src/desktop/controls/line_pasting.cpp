#include "desktop/controls/line_pasting.h"

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QProgressDialog>
#include <QStringDecoder>

#include "desktop/dialogs/file_dialog.h"
#include "desktop/look/words.h"
#include "ui/paper/toolkit_values.h"

namespace vantora::ui::desktop {

namespace {

constexpr qint64 file_size_max = 4'000'000;

std::string decoded(const QByteArray& bytes) {
    const auto marked = QStringConverter::encodingForData(bytes);
    QStringDecoder decoder(marked.value_or(QStringConverter::Utf8));
    const QString text = decoder(bytes);
    // What is no UTF-8 is the code page of older spreadsheets, and of the files.
    return decoder.hasError() ? bytes.toStdString() : from_qt(text);
}

}  // namespace

std::optional<std::string> lines_on_clipboard() {
    const std::string text = from_qt(QGuiApplication::clipboard()->text());
    return holds_pasted_lines(text) ? std::optional(text) : std::nullopt;
}

std::optional<std::string> lines_of_file(const QString& file, QWidget* above) {
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly) || source.size() > file_size_max) {
        const QString why = source.isOpen() ? "è troppo grande" : source.errorString();
        tell(QString("Il file %1 non si può leggere: %2").arg(file, why), above);
        return {};
    }
    std::string text = decoded(source.readAll());
    if (text.find_first_not_of(" \t\r\n") != std::string::npos) return text;
    tell(QString("Il file %1 è vuoto.").arg(file), above);
    return {};
}

void paste_lines(text_box& field, const pasted_text& pasted, QWidget* above) {
    QProgressDialog progress("Inserimento delle righe...", words::break_off, 0, 1, above);
    progress.setWindowTitle("Incolla righe");
    progress.setWindowModality(Qt::ApplicationModal);
    progress.setMinimumDuration(400);
    field.on_paste_lines(pasted, [&progress](int done, int of) {
        progress.setMaximum(of);
        progress.setValue(done);
        return !progress.wasCanceled();
    });
}

}  // namespace vantora::ui::desktop
