#include "desktop/lists/list_bars.h"

#include <QProgressBar>

#include "ui/form.h"
#include "ui/paper/toolkit_values.h"

namespace vantora::ui::desktop {

namespace {

/// What is there sooner needs no bar. Milliseconds.
constexpr qint64 patience = 150;
constexpr qint64 painting_pause = 50;

constexpr int steps = 1000;
constexpr QSize bar_size(320, 12);

QProgressBar* make_bar(const control& list, QWidget* place) {
    auto* bar = new QProgressBar(place ? place->parentWidget() : nullptr);
    bar->setObjectName("list_bar");
    bar->setRange(0, steps);
    bar->setTextVisible(false);
    bar->setAccessibleName("Lettura dell'archivio");
    if (!place) {
        // The screen comes up with its list.
        bar->setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
        bar->setWindowTitle(to_qt(list.owner().title()));
        bar->setAttribute(Qt::WA_QuitOnClose, false);
        bar->setAttribute(Qt::WA_ShowWithoutActivating);
        bar->resize(bar_size.width(), 2 * bar_size.height());
    }
    bar->show();
    return bar;
}

void place_bar(QProgressBar& bar, const QRect& inside) {
    QRect room(QPoint(), bar_size.boundedTo(inside.size()));
    room.moveCenter(inside.center());
    bar.setGeometry(room);
    bar.raise();
}

}  // namespace

bool list_bars::show(const control& list, QWidget* place, double done) {
    filling& one = lists_[&list];
    if (!one.since.isValid()) one.since.start();
    const qint64 now = one.since.elapsed();
    if (now < patience || now - one.painted < painting_pause) return false;
    one.painted = now;
    if (place && !place->window()->isVisible()) place = nullptr;
    if (!one.bar) one.bar = make_bar(list, place);
    if (place) place_bar(*one.bar, place->geometry());
    one.bar->setValue(static_cast<int>(steps * done));
    return true;
}

void list_bars::end(const control& list) {
    const auto found = lists_.find(&list);
    if (found == lists_.end()) return;
    delete found->second.bar;
    lists_.erase(found);
}

}  // namespace vantora::ui::desktop
