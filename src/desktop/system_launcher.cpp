#include "desktop/system_launcher.h"

#include <QProcess>
#include <QStringList>

#include "ui/paper/toolkit_values.h"

namespace vantora::ui::desktop {

bool system_launcher::start(const std::string& command) {
    const std::size_t end = command.find(' ');
    const std::string program = locate_(command.substr(0, end));
    QStringList arguments;
    if (end != std::string::npos) arguments << to_qt(command.substr(end + 1));
    return QProcess::startDetached(QString::fromStdString(program), arguments);
}

}  // namespace vantora::ui::desktop
