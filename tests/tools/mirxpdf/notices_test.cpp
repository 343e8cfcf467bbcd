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
class mirxpdf_notices : public testing::Test {
 protected:
    void SetUp() override {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application = std::make_unique<QApplication>(count, arguments);
        ui::dress_application(*application);
    }

    /// Presses this button, or Escape if it is empty, in the next box.
    void answer_with(const QString& button) {
        QTimer::singleShot(0, application.get(), [this, button] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            text = box->text() + '\n' + box->informativeText();
            if (button.isEmpty()) box->reject();
            for (auto* one : box->buttons()) {
                if (one->text().remove('&') == button) one->click();
            }
        });
    }

    int count = 1;
    char name[8] = "notices";
    char* arguments[2] = {name, nullptr};
    std::unique_ptr<QApplication> application;
    QString text;
    std::vector<QString> opened;
    const notices tell{[this](const QString& file) { opened.push_back(file); }};
};

TEST_F(mirxpdf_notices, APdfThatIsReadyIsOpenedOnlyIfTheUserWantsIt) {
    const QString pdf = "/ditta/orc12.pdf";
    const struct {
        const char* button;
        bool opens;
    } answers[] = {{"Chiudi", false}, {"", false}, {"Apri", true}};
    for (const auto& one : answers) {
        opened.clear();
        answer_with(one.button);
        tell.done("Il documento è pronto.", "", pdf);
        EXPECT_EQ(text, "Il documento è pronto.\n/ditta/orc12.pdf");
        answer_with(one.button);
        tell.not_sent("Il documento <b>non</b> è stato inviato.", pdf);
        EXPECT_EQ(text, "Il documento <b>non</b> è stato inviato.\n/ditta/orc12.pdf");
        const std::vector<QString> expected(one.opens ? 2 : 0, pdf);
        EXPECT_EQ(opened, expected) << one.button;
    }
}

TEST_F(mirxpdf_notices, WithoutWindowsNothingWaitsForTheUser) {
    const notices quiet;
    quiet.done("pronto", " con riserva", "a.pdf");
    quiet.not_sent("non inviato", "a.pdf");
    quiet.failure("non creato");
    EXPECT_FALSE(QApplication::activeModalWidget());
}

}  // namespace
}  // namespace vantora::mirxpdf
