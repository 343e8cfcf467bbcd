#include "desktop/dialogs/about.h"

#include <QApplication>
#include <QMessageBox>

#include "desktop/look/words.h"

namespace vantora::ui::desktop {

namespace {

constexpr const char* facts_of_program = "facts";

}  // namespace

void set_facts(const std::function<QStringList()>& facts) {
    qApp->setProperty(facts_of_program, QVariant::fromValue(facts));
}

void show_about(QWidget& window) {
    QStringList lines{QString("Vantora Ordini %1").arg(QApplication::applicationVersion())};
    const auto facts = qApp->property(facts_of_program).value<std::function<QStringList()>>();
    if (facts) lines << QString() << facts();
    QMessageBox box(QMessageBox::Information, words::about, lines.join("\n"), QMessageBox::Ok,
                    &window);
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.exec();
}

}  // namespace vantora::ui::desktop
