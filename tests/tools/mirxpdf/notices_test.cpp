#include "mirxpdf/notices.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "ui/look/style.h"

namespace vantora::mirxpdf {
namespace {

/// Boxes on a screen that nobody sees, answered as a user would.
TEST(mirxpdf_notices, APdfThatIsReadyIsOpenedOnlyIfTheUserWantsIt) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int count = 1;
    char name[8] = "notices";
    char* arguments[2] = {name, nullptr};
    QApplication application(count, arguments);
    ui::dress_application(application);
    const QString pdf = "/ditta/orc12.pdf";
    QString text;
    std::vector<QString> opened;
    const notices tell{[&](const QString& file) { opened.push_back(file); }};
    /// Presses this button, or Escape if it is empty, in the next box.
    const auto answer_with = [&](const QString& button) {
        QTimer::singleShot(0, &application, [&text, button] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            text = box->text() + '\n' + box->informativeText();
            if (button.isEmpty()) box->reject();
            for (auto* one : box->buttons()) {
                if (one->text().remove('&') == button) one->click();
            }
        });
    };
    const std::pair<const char*, std::size_t> answers[] = {{"Chiudi", 0}, {"", 0}, {"Apri", 2}};
    for (const auto& [button, times] : answers) {
        opened.clear();
        answer_with(button);
        tell.done("Il documento è pronto.", "", pdf);
        EXPECT_EQ(text, "Il documento è pronto.\n/ditta/orc12.pdf");
        answer_with(button);
        tell.not_sent("Il documento <b>non</b> è stato inviato.", pdf);
        EXPECT_EQ(text, "Il documento <b>non</b> è stato inviato.\n/ditta/orc12.pdf");
        EXPECT_EQ(opened, std::vector<QString>(times, pdf)) << button;
    }
    const notices quiet;
    quiet.done("pronto", " con riserva", "a.pdf");
    quiet.not_sent("non inviato", "a.pdf");
    quiet.failure("non creato");
    EXPECT_FALSE(QApplication::activeModalWidget()) << "without windows nothing waits";
}

}  // namespace
}  // namespace vantora::mirxpdf
