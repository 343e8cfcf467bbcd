#pragma once

#include <QString>

class QWidget;

namespace vantora::ui::desktop {

/// Shows a file or folder in the program that the user has for it. False if none takes it.
bool show_file(const QString& file);

/// Shows a file; if no program takes it, says so and shows its folder.
void show_file_or_folder(const QString& file, QWidget* above);

/// A box that says where a file was saved, with a button that shows its folder.
void tell_saved(const QString& file, QWidget* above);

}  // namespace vantora::ui::desktop
