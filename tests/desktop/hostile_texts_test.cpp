#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>

#include "program_window.h"
#include "register/mirorc.h"

namespace vantora::ui::desktop {
namespace {

constexpr const char* hostile = "<b>x</b><img src='/dev/zero'>&amp;[*]\x01\xAD\x9D";

/// A company whose every text looks like markup.
class hostile_texts : public test::program_window {
 protected:
    hostile_texts() {
        rec_cli customer = vantora::test::customer_named(hostile);
        customer.intestazione2 = customer.indirizzo = hostile;
        customer.email = hostile;
        customer.note1 = hostile;
        customer.vettore1 = hostile;
        company.customers({customer});
        company.articles({vantora::test::article("<b>A</b>", hostile, 10)});
        company.table_file();
        rec_orc row;
        row.numero = "<i>7</i>";
        row.cliente = 1;
        row.testo1 = row.descrizione = hostile;
        row.um = "<u>";
        row.articolo = 1;
        row.quantita = 3;
        for (int i = 1; i <= 3; ++i) company.files.orc.write(block_record(1, i), row);
        company.counter(contatori::ordini, 1, 7);
    }
    /// The widgets that would take a text for markup.
    static QStringList guessing() {
        QStringList found;
        const auto judge = [&](const QWidget& of, const QString& text) {
            const QString plain_begin = "<p style='white-space:pre'>";
            if (!Qt::mightBeRichText(text)) return;
            if (!text.startsWith(plain_begin) || text.contains("<img") || text.contains("<b>")) {
                found << of.objectName() + ": " + text;
            }
        };
        for (const QWidget* one : QApplication::allWidgets()) {
            judge(*one, one->toolTip());
            const auto* text = qobject_cast<const QLabel*>(one);
            if (text && text->textFormat() != Qt::PlainText) judge(*one, text->text());
            const auto* list = qobject_cast<const QAbstractItemView*>(one);
            for (int cell = 0; list && list->model() && cell < 100; ++cell) {
                const QModelIndex at = list->model()->index(cell / 10, cell % 10);
                judge(*one, at.data(Qt::ToolTipRole).toString());
            }
        }
        return found;
    }
};

TEST_F(hostile_texts, NoTextOfACompanyIsMarkup) {
    std::vector<std::function<void()>> steps;
    for (screen_place* place : all_screens()) {
        steps.push_back([this, place] {
            bench.desk.dispatch([&] {
                app.selezione_1 = app.selezione_2 = 1;
                if (place != &app.mirsel && place != &app.mirdata) place->use().show();
            });
            EXPECT_EQ(guessing().join("\n").toStdString(), "");
        });
    }
    steps.push_back([this] {
        bench.front.end_titles_with(hostile);
        bench.desk.dispatch([&] { app.mirorc->show(); });
        EXPECT_TRUE(bench.front.front_window()->windowTitle().contains("[*][*]"));
        bench.desk.dispatch([&] { bench.desk.message(hostile, hostile, icon::warning); });
    });
    steps.push_back([this] {
        ASSERT_TRUE(box());
        EXPECT_EQ(box()->textFormat(), Qt::PlainText);
        QTest::keyClick(box(), Qt::Key_Return);
    });
    run(steps);
}

}  // namespace
}  // namespace vantora::ui::desktop
