#pragma once

#include <QLineEdit>
#include <QMessageBox>
#include <QTableView>

#include "app/start.h"
#include "scripted/small_company.h"
#include "store/drive.h"
#include "support/faulty_files.h"
#include "ui/pictures/pixbuf_decoder.h"
#include "window_stage.h"

namespace vantora::ui::desktop::test {

/// The whole program in its windows, on a small company.
class program_window : public testing::Test {
 protected:
    void run(std::vector<std::function<void()>> steps) {
        bench.run([this] { start(app, "ordini001"); }, std::move(steps));
    }
    std::vector<screen_place*> all_screens() {
        return {&app.mirorc,  &app.mirorcx, &app.mirorcm, &app.mirsel,    &app.mirdata,
                &app.mirorcs, &app.mirorcz, &app.mirorcb, &app.mirpref,   &app.mirorcc,
                &app.mirorcr, &app.mirorca, &app.mirstoe, &app.mirstos,   &app.mirstov,
                &app.mirston, &app.mirstoa, &app.bozze,   &app.documenti, &app.ricerca,
                &app.quadro,  &app.prezzi,  &app.storia};
    }
    std::string front() { return bench.front.front_window()->objectName().toStdString(); }
    QMessageBox* box() { return qobject_cast<QMessageBox*>(bench.front.front_window()); }
    /// A step: a box that tells this is answered by a key.
    std::function<void()> answer(const char* text, Qt::Key by) {
        return [=, this] {
            ASSERT_TRUE(box()) << text;
            EXPECT_TRUE(box()->text().contains(text)) << box()->text().toStdString();
            QTest::keyClick(box(), by);
        };
    }
    QTableView* table() { return bench.find<QTableView>("elenco"); }
    std::string text(const char* address) {
        return bench.find<QLineEdit>(address)->text().toStdString();
    }
    void click_cell(int row, int col) {
        const QRect cell = table()->visualRect(table()->model()->index(row, col));
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, cell.center());
    }

    vantora::test::small_company company;
    drive files{company.drive()};
    vantora::test::faulty_files disk{files};
    window_stage bench;
    ui::pixbuf_decoder pictures;
    program app{disk, bench.desk, pictures};
};

}  // namespace vantora::ui::desktop::test
