#pragma once

#include <QProcess>
#include <QString>
#include <memory>

class QWidget;

namespace vantora::ui::desktop {

/// Waits, with windows painted meanwhile, for a started program to end. False if it takes longer
/// than so many milliseconds: it goes on by itself, and is gone from here.
bool ends_within(std::unique_ptr<QProcess>& program, qint64 longest);
bool ended_well(const QProcess& program);

/// Shows a file or folder in the program that the user has for it. False if none takes it.
bool show_file(const QString& file);

/// Shows a file; if no program takes it, says so and shows its folder.
void show_file_or_folder(const QString& file, QWidget* above);

/// A box that says where a file was saved, with a button that shows its folder.
void tell_saved(const QString& file, QWidget* above);

}  // namespace vantora::ui::desktop
