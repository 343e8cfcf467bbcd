#pragma once

#include <QStringList>
#include <functional>

class QWidget;

namespace vantora::ui::desktop {

/// What the box of the program tells beside its name and version, a line each; asked for whenever
/// it opens.
void set_facts(const std::function<QStringList()>& facts);

void show_about(QWidget& window);

}  // namespace vantora::ui::desktop
