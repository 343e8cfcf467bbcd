#include "desktop/controls/number_hint.h"

#include <QAccessible>
#include <QLabel>
#include <QTimer>

namespace vantora::ui::desktop {

void show_number_hint(QWidget& beside, const QString& text) {
    constexpr int shown_for = 5000;  // milliseconds
    constexpr const char* name = "number_hint";
    QWidget* window = beside.window();
    delete window->findChild<QLabel*>(name);
    auto* hint = new QLabel(text, window);
    hint->setObjectName(name);
    hint->setTextFormat(Qt::PlainText);
    hint->setAttribute(Qt::WA_TransparentForMouseEvents);
    hint->adjustSize();
    const QPoint under = beside.mapTo(window, QPoint(0, beside.height() + 2));
    hint->move(std::clamp(under.x(), 0, std::max(0, window->width() - hint->width())),
               std::min(under.y(), window->height() - hint->height()));
    hint->raise();
    hint->show();
    QTimer::singleShot(shown_for, hint, &QObject::deleteLater);
    QAccessibleEvent heard(hint, QAccessible::Alert);
    QAccessible::updateAccessibility(&heard);
}

}  // namespace vantora::ui::desktop
