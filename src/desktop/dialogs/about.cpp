#include "desktop/dialogs/about.h"

#include <QApplication>
#include <QMessageBox>

#include "desktop/look/words.h"

namespace vantora::ui::desktop {

namespace {

constexpr const char* of_program = "facts";

class program_facts final : public QObject {
 public:
    explicit program_facts(std::function<QStringList()> facts)
        : QObject(qApp), facts(std::move(facts)) {
        setObjectName(of_program);
    }
    std::function<QStringList()> facts;
};

}  // namespace

void set_facts(std::function<QStringList()> facts) {
    new program_facts(std::move(facts));
}

void show_about(QWidget& window) {
    QStringList lines{QString("Vantora Ordini %1").arg(QApplication::applicationVersion())};
    if (const auto* known = qApp->findChild<QObject*>(of_program)) {
        lines << QString() << static_cast<const program_facts*>(known)->facts();
    }
    QMessageBox box(QMessageBox::Information, words::about, lines.join("\n"), QMessageBox::Ok,
                    &window);
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.exec();
}

}  // namespace vantora::ui::desktop
