#pragma once

#include <QByteArray>
#include <QString>

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

}  // namespace vantora::ui::desktop
