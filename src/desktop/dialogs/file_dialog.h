#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <memory>

#include "desktop/look/box_look.h"

class QWidget;

namespace vantora::ui::desktop {

struct file_kind {
    QString name;    ///< "File CSV"
    QString ending;  ///< without its point
};

/// Long work may have set the busy pointer; a dialog is no place for it.
class plain_pointer {
 public:
    plain_pointer();
    ~plain_pointer();
    plain_pointer(const plain_pointer&) = delete;
    plain_pointer& operator=(const plain_pointer&) = delete;

 private:
    bool busy_;
};

/// A file to write, chosen by the user; proposed is a name in the folder of documents that isn't
/// taken yet. Empty if the user names none.
QString ask_where_to_save(const QString& title, const QString& called, const file_kind& kind,
                          QWidget* above);

/// A file to read, chosen by the user; empty for none.
QString ask_what_to_open(const QString& title, const file_kind& kind, QWidget* above);

/// Gives a file its content in one step, when all of it is on the disk. If that can't be, what
/// stands there stays, and why is returned; empty for done.
QString write_whole(const QString& file, const QByteArray& content);
/// The same, and the user is told where the file is or why it isn't.
void save_whole(const QString& file, const QByteArray& content, QWidget* above);

/// A box that tells something.
void tell(const QString& what, QWidget* above, icon sign = icon::warning,
          const QString& title = attention);

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
