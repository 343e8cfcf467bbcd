#include "desktop/keys/manual.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QUrl>
#include <QWidget>

#include "desktop/dialogs/file_dialog.h"

namespace vantora::ui::desktop {

namespace {

constexpr const char* own_f1 = "own_f1";

}  // namespace

void keep_f1(QWidget& field) {
    field.setProperty(own_f1, true);
}

QString manual_file(const QString& programs) {
    for (const char* ending : {"pdf", "html"}) {
        for (const char* folder : {"../share/doc/vantora-ordini", "../manual"}) {
            const QFileInfo file(QString("%1/%2/vantora-ordini-manuale.%3")
                                     .arg(programs, QString(folder), QString(ending)));
            if (file.isReadable()) return QDir::cleanPath(file.absoluteFilePath());
        }
    }
    return {};
}

bool asks_for_manual(const QKeyEvent& key, const QWidget* focused) {
    if (key.key() != Qt::Key_F1 || key.modifiers() != Qt::NoModifier || key.isAutoRepeat()) {
        return false;
    }
    return !focused || !focused->property(own_f1).toBool();
}

void open_manual(QWidget* above) {
    const QString file = manual_file(QCoreApplication::applicationDirPath());
    if (!file.isEmpty() && QDesktopServices::openUrl(QUrl::fromLocalFile(file))) return;
    tell(file.isEmpty() ? "Il manuale non è installato."
                        : QString("Il manuale non si può aprire: %1").arg(file),
         above, icon::information, "Manuale");
}

}  // namespace vantora::ui::desktop
