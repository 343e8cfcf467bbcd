#pragma once

#include <QString>

class QWidget;

namespace vantora::ui::desktop {

/// Says for a while, beside a field that is being left, how its number was taken.
void show_number_hint(QWidget& beside, const QString& text);

}  // namespace vantora::ui::desktop
