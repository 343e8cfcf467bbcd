#include "desktop/script_runner.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPixmap>
#include <QWidget>
#include <istream>
#include <ostream>
#include <string>

namespace vantora::ui::desktop {

script_runner::script_runner(desktop_front_end& front, script::interpreter& by,
                             std::istream& commands, std::ostream& replies)
    : front_(front), interpreter_(by), commands_(commands), replies_(replies) {
    interpreter_.shoot = [this](const std::filesystem::path& file) { return shoot(file); };
}

bool script_runner::step() {
    write_reply();
    std::string line;
    if (interpreter_.quitting() || !std::getline(commands_, line)) return false;
    interpreter_.execute(line);
    return true;
}

void script_runner::write_reply() {
    if (const auto reply = interpreter_.take_reply()) replies_ << *reply << std::endl;
}

bool script_runner::shoot(const std::filesystem::path& file) {
    QCoreApplication::processEvents();
    QWidget* front = front_.front_window();
    if (!front) return false;
    QPixmap picture = front->grab();
    if (QWidget* behind = front->parentWidget()) {
        // A message box is shown where it stands in front of its window.
        QPixmap whole = behind->window()->grab();
        const QSizeF room = whole.deviceIndependentSize() - picture.deviceIndependentSize();
        QPainter(&whole).drawPixmap(QPointF(room.width() / 2, room.height() / 2), picture);
        picture = whole;
    }
    return picture.save(QString::fromStdString(file.string()));
}

}  // namespace vantora::ui::desktop
