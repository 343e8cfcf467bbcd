#include "desktop/further_windows.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QMenu>
#include <QShortcut>
#include <QToolButton>
#include <algorithm>

#include "desktop/form_window.h"
#include "desktop/look/words.h"
#include "text/code_page.h"

namespace vantora::ui::desktop {

namespace {

QString caption_of(const further_window& one) {
    return QString::fromStdString(to_utf8(one.caption));
}

/// Made when it is asked for: what can be opened changes.
void show_menu(form_window& window, const QWidget& below) {
    QMenu menu(&window);
    const auto& all = window.screen().further_windows();
    for (std::size_t i = 0; i < all.size(); ++i) {
        const QString key =
            QKeySequence(QString::fromStdString(all[i].key)).toString(QKeySequence::NativeText);
        const int waiting = all[i].count ? all[i].count() : 0;
        const QString behind = waiting > 0 ? QString(" (%1)").arg(waiting) : QString();
        QAction* entry = menu.addAction(caption_of(all[i]) + behind + "\t" + key, &window,
                                        [&window, i] { window.open_further(i); });
        entry->setEnabled(all[i].can_open());
    }
    menu.exec(below.mapToGlobal(QPoint(0, below.height())));
}

/// The caption with a letter for Alt that no other command of the window has.
QString with_free_letter(QString caption, const QWidget& window) {
    const auto taken = [&window](QChar letter) {
        const QKeySequence keys(QString("Alt+") + letter);
        return std::ranges::any_of(window.findChildren<QAbstractButton*>(), [&](const auto* one) {
            return QKeySequence::mnemonic(one->text()) == keys;
        });
    };
    for (qsizetype i = 0; i < caption.size() && caption[i].isLetter(); ++i) {
        if (!taken(caption[i])) return caption.insert(i, '&');
    }
    return caption;
}

QToolButton* menu_button(form_window& window) {
    auto* button = new QToolButton(&window);
    button->setObjectName("altro");
    button->setText(with_free_letter(QString::fromUtf8(words::more), window));
    button->setToolTip(QString::fromUtf8(words::more_windows));
    button->setFocusPolicy(Qt::NoFocus);
    QObject::connect(button, &QToolButton::clicked, &window,
                     [&window, button] { show_menu(window, *button); });
    return button;
}

}  // namespace

void add_further_windows(form_window& window) {
    const auto& all = window.screen().further_windows();
    if (all.empty()) return;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const QByteArray what = caption_of(all[i]).remove('&').toUtf8();
        QObject::connect(add_key(window, all[i].key.c_str(), what.constData()),
                         &QShortcut::activated, &window, [&window, i] { window.open_further(i); });
    }
    for (auto* bar : window.findChildren<QFrame*>()) {
        auto* row = qobject_cast<QHBoxLayout*>(bar->layout());
        if (!row || bar->property("role").toString() != "bar") continue;
        row->addWidget(menu_button(window), 0, Qt::AlignTop);
        return;
    }
}

}  // namespace vantora::ui::desktop
