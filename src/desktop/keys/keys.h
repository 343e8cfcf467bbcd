#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

class QAbstractButton;
class QHBoxLayout;
class QMenu;
class QShortcut;
class QToolButton;
class QWidget;

namespace vantora::ui::desktop {

/// One line of the overview of a window's keys, which is made of all those below the window.
class key_help final : public QObject {
 public:
    /// `keys` in the portable form "Ctrl+Shift+E"; several are separated by blanks.
    key_help(QWidget& owner, QString keys, QString what);

    [[nodiscard]] const QString& keys() const { return keys_; }
    /// As the keyboard calls them here.
    [[nodiscard]] QString native_keys() const;
    [[nodiscard]] const QString& what() const { return what_; }

 private:
    QString keys_;
    QString what_;
};

/// A key of a window or of a widget in it, told by the overview. It doesn't repeat while it is
/// held.
QShortcut* add_key(QWidget& owner, const QString& keys, const QString& what,
                   const std::function<void()>& action);

/// Presses a button as its keys do: where the screen doesn't move the focus, it stays.
void click_by_key(QAbstractButton& button);
/// Whether a button that is being clicked was pressed that way.
bool clicked_by_key(const QAbstractButton& button);

/// Further keys for a button, told by its tooltip and by the overview; pressed by them it leaves
/// the focus where it is.
void add_shortcut(QAbstractButton& button, const QString& keys);

/// The lines of the overview that hold for what is there to be worked in.
std::vector<const key_help*> keys_of(const QWidget& window);

/// Shows the overview and waits until it is closed.
void show_keys(QWidget& window);

/// Where a window's commands stand; null if it has no bar for them.
QHBoxLayout* command_bar_of(const QWidget& window);

/// A button with a menu, which is made when it is asked for: what it holds changes.
QToolButton* menu_button(QWidget& window, const char* name, const QString& caption,
                         const char* tooltip, const std::function<void(QMenu&)>& fill);

/// What the box of the program tells beside its name and version, a line each; asked for whenever
/// it opens.
void set_facts(const std::function<QStringList()>& facts);

/// A small button whose menu leads to keys, manual and the box of the program.
QToolButton* help_button(QWidget& window);

/// Keys and manual of a window: by their keys, and by the small button in its bar of commands where
/// its layout placed none elsewhere.
void add_help(QWidget& window);

}  // namespace vantora::ui::desktop
