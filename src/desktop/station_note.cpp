#include "desktop/station_note.h"

#include <QAccessible>
#include <QLabel>

#include "ui/paper/toolkit_values.h"

namespace vantora::ui::desktop {

namespace {

/// A shorter wait needs no line. Milliseconds.
constexpr qint64 unnoticed = 300;

QLabel* make_line(QWidget& window, const std::string& station) {
    const QString awaited = "Attesa di un'altra postazione";
    auto* line =
        new QLabel(station.empty() ? awaited + "..." : awaited + ": " + to_qt(station), &window);
    line->setTextFormat(Qt::PlainText);
    line->setObjectName("station_note");
    line->adjustSize();
    QRect place = line->rect();
    place.moveCenter(window.rect().center());
    line->setGeometry(place);
    line->raise();
    line->show();
    QAccessibleEvent heard(line, QAccessible::Alert);
    QAccessible::updateAccessibility(&heard);
    return line;
}

}  // namespace

bool station_note::show(QWidget* window, const std::string& station) {
    if (!since_.isValid()) since_.start();
    if (!window || since_.elapsed() < unnoticed) return false;
    if (!line_) line_ = make_line(*window, station);
    return true;
}

void station_note::end() {
    delete line_;
    since_.invalidate();
}

}  // namespace vantora::ui::desktop
