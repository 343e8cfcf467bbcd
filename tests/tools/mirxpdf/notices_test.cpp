#include "mirxpdf/notices.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "desktop/look/style.h"

namespace vantora::mirxpdf {
namespace {

/// Boxes on a screen that nobody sees, answered as a user would.
TEST(mirxpdf_notices, APdfThatIsReadyIsOpenedOnlyIfTheUserWantsIt) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int no_arguments = 0;
    QApplication application(no_arguments, nullptr);
    ui::dress_application(application);
    const QString pdf = "/ditta/orc12.pdf";
    int opened = 0;
    const notices tell{[&](const QString& file) { opened += file == pdf ? 1 : 0; }};
    /// Presses this button, or Escape if it is empty, in the next box, which tells a text.
    const auto answer_with = [&](const QString& button, const QString& told) {
        QTimer::singleShot(0, &application, [button, text = told + "\n\n" + pdf] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            EXPECT_EQ(box->text(), text);
            if (button.isEmpty()) box->reject();
            for (auto* one : box->buttons()) {
                if (one->text().remove('&') == button) one->click();
            }
        });
    };
    const QString done = "Il documento è pronto.";
    const QString not_sent = "Il documento <b>non</b> è stato inviato.";
    for (const auto& [button, times] : {std::pair{"Chiudi", 0}, {"", 0}, {"Apri", 2}}) {
        opened = 0;
        answer_with(button, done);
        tell.done(done, "", pdf);
        answer_with(button, not_sent);
        tell.not_sent(not_sent, pdf);
        EXPECT_EQ(opened, times) << button;
    }
}

}  // namespace
}  // namespace vantora::mirxpdf
