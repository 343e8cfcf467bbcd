#include "desktop/lists/list_tools.h"

#include <QAbstractItemView>
#include <QBoxLayout>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QShortcut>

#include "desktop/keys/keys.h"
#include "desktop/lists/list_find.h"
#include "desktop/lists/list_marks.h"
#include "desktop/lists/list_saving.h"
#include "desktop/look/words.h"

namespace vantora::ui::desktop {

namespace {

/// The layout in which a widget stands, at or below another one; null if it isn't there.
QBoxLayout* box_around(const QWidget& widget, QLayout* below) {
    if (!below) return nullptr;
    if (below->indexOf(&widget) >= 0) return qobject_cast<QBoxLayout*>(below);
    for (int i = 0; i < below->count(); ++i) {
        if (QBoxLayout* found = box_around(widget, below->itemAt(i)->layout())) return found;
    }
    return nullptr;
}

/// The tools of one list, and how they are reached.
class list_tools final : public QObject {
 public:
    list_tools(QWidget& window, const shown_list& list, QBoxLayout& column)
        : QObject(&list.view()),
          list_(list),
          window_(window),
          called_(window.windowTitle()),
          overlay_(new list_overlay(list)),
          find_(new list_find(list, *overlay_, list.view().parentWidget())),
          marks_(new list_marks(list, *overlay_, this)) {
        QAbstractItemView& view = list.view();
        column.insertWidget(column.indexOf(&view) + 1, find_);
        view.installEventFilter(this);
        view.setContextMenuPolicy(Qt::CustomContextMenu);
        connect(&view, &QWidget::customContextMenuRequested, this,
                [this](const QPoint& place) { show_menu(place); });
        QShortcut* find = add_key(window, "Ctrl+F", words::find_in_list, [this] {
            if (list_.view().isVisible()) find_->open();
        });
        find->setObjectName(view.objectName() + "_trova");
        add_key(window, "Ctrl+Shift+E", words::save_list, [this] {
            if (list_.view().isVisible()) save_all();
        });
        new key_help(window, "Ctrl+C", words::copy_rows);
        new key_help(window, "Shift+Up Shift+Down Ctrl+A", "Segnano più righe, tutte le righe");
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool asked = event->type() == QEvent::ShortcutOverride;
        if ((!asked && event->type() != QEvent::KeyPress) ||
            !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
            return QObject::eventFilter(watched, event);
        }
        event->accept();
        if (!asked) copy();
        return true;
    }

 private:
    void copy() {
        const std::string text = tabbed_text(list_, marks_->rows());
        if (!text.empty()) QGuiApplication::clipboard()->setText(QString::fromStdString(text));
    }

    void save_all() { save_list(list_, called_, &window_); }

    void show_menu(const QPoint& place) {
        QMenu menu(&list_.view());
        const auto add = [&](const char* what, const char* keys, auto action) {
            QAction* one = menu.addAction(what, this, action);
            one->setShortcut(QKeySequence(keys));
            return one;
        };
        add(words::copy_rows, "Ctrl+C", [this] { copy(); })->setEnabled(!marks_->rows().empty());
        add("Segna tutte le righe", "Ctrl+A", [this] { marks_->mark_all(); });
        add(words::find_in_list, "Ctrl+F", [this] { find_->open(); });
        menu.addSeparator();
        add(words::save_list, "Ctrl+Shift+E", [this] { save_all(); });
        menu.addActions(list_.view().actions());
        menu.exec(list_.view().viewport()->mapToGlobal(place));
    }

    shown_list list_;
    QWidget& window_;
    QString called_;  ///< the screen by its title
    list_overlay* overlay_;
    list_find* find_;
    list_marks* marks_;
};

}  // namespace

void add_list_tools(QWidget& window, const control& list, QAbstractItemView& view) {
    // A list without a place is never shown.
    QBoxLayout* column = box_around(view, view.parentWidget()->layout());
    if (column) new list_tools(window, shown_list(list, view), *column);
}

}  // namespace vantora::ui::desktop
