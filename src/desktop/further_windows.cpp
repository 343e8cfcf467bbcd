#include "desktop/further_windows.h"

#include <QBoxLayout>
#include <QMenu>
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

void fill_menu(form_window& window, QMenu& menu) {
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

}  // namespace

void add_further_windows(form_window& window) {
    const auto& all = window.screen().further_windows();
    if (all.empty()) return;
    for (std::size_t i = 0; i < all.size(); ++i) {
        add_key(window, QString::fromStdString(all[i].key), caption_of(all[i]).remove('&'),
                [&window, i] { window.open_further(i); });
    }
    QHBoxLayout* row = command_bar_of(window);
    if (!row) return;
    row->addWidget(
        menu_button(window, "altro", with_free_letter(words::more, window), words::more_windows,
                    [&window](QMenu& menu) { fill_menu(window, menu); }),
        0, Qt::AlignTop);
}

}  // namespace vantora::ui::desktop
