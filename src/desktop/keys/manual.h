#pragma once

#include <QKeyEvent>
#include <QString>

class QWidget;

namespace vantora::ui::desktop {

/// The manual as installed, or as made beside a build, seen from the folder of the programs: the
/// PDF, else the HTML file. Empty if there is neither.
QString manual_file(const QString& programs);

/// F1, but not in the description of a line, where it finds an article. `focused`: where it was
/// pressed; may be null.
bool asks_for_manual(const QKeyEvent& key, const QWidget* focused);

/// Shows the manual in the desktop's program for such files; a box says so if there is none.
void open_manual(QWidget* above);

}  // namespace vantora::ui::desktop
