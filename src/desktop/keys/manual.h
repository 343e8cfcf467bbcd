#pragma once

#include <QKeyEvent>
#include <QString>

class QWidget;

namespace vantora::ui::desktop {

/// The manual as installed, or as made beside a build, seen from the folder of the programs: the
/// PDF, else the HTML file. Empty if there is neither.
QString manual_file(const QString& programs);

/// F1 finds something of the screen's own in this field.
void keep_f1(QWidget& field);

/// F1, but not in a field that keeps it. `focused`: where it was pressed; may be null.
bool asks_for_manual(const QKeyEvent& key, const QWidget* focused);

/// Shows the manual in the desktop's program for such files; a box says so if there is none.
void open_manual(QWidget* above);

}  // namespace vantora::ui::desktop
