#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>

#include <random>

#include "program_window.h"
#include "register/mirorc.h"
#include "store/record_fields.h"

namespace vantora::ui::desktop {
namespace {

constexpr const char* hostile = "<b>x</b><img src='/dev/zero'>&amp;[*]\x01\xAD\x9D";

/// A company whose every text is made of markup, marks that turn the direction of writing, and
/// control bytes.
class hostile_texts : public test::program_window, public testing::WithParamInterface<unsigned> {
 protected:
    hostile_texts() : random_(GetParam()) {
        company.table_file();
        company.text("tb2", {any_text(), any_text()});
        company.customers({filled(rec_cli{}), filled(rec_cli{})});
        company.articles({filled(rec_art{}), filled(rec_art{})});
        for (const int block : {1, 2}) {
            for (int row = 1; row <= righe_blocco; ++row) {
                company.files.orc.write(block_record(block, row), filled(row_of(rec_orc{}, row)));
                company.files.prv.write(block_record(block, row), filled(row_of(rec_prv{}, row)));
            }
        }
        company.files.mag.write(1, filled(rec_mag{}));
        company.files.bol.write(1, filled(rec_bol{}));
        for (const int counter : {contatori::ordini, contatori::preventivi}) {
            company.counter(counter, 2, 7);
        }
        for (const int counter : {contatori::magazzino, contatori::documenti_trasporto}) {
            company.counter(counter, 1, 7);
        }
    }
    std::string any_text() {
        static const QList<QByteArray> parts =
            QByteArray(
                "<b>|</b>|<img src='/dev/zero'>|&amp;|&|[*]|<!--|\x01\x7F|\n|\xAD\x9D|"
                "\xE2\x80\xAE|%1|x y |'|<table><tr><td>")
                .split('|');
        std::string text;
        for (auto left = 1 + random_() % 5; left > 0; --left)
            text += parts[static_cast<qsizetype>(random_() % 15)].toStdString();
        return text;
    }
    template <class Record>
    Record filled(Record one) {
        for (const record_field& field : fields_of(one)) {
            if (field.type != field_type::words || field.values > 1) continue;
            std::string text = any_text();
            text.resize(field.width, ' ');
            std::memcpy(reinterpret_cast<char*>(&one) + field.offset, text.data(), field.width);
        }
        return one;
    }
    template <class Row>
    static Row row_of(Row one, int number) {
        one.cliente = 1;
        one.articolo = static_cast<std::int16_t>(number % 3);
        one.quantita = number < 9 ? 3 : 0;
        return one;
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

    std::mt19937 random_;
};

TEST_P(hostile_texts, AreMarkupInNoWindow) {
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

INSTANTIATE_TEST_SUITE_P(companies, hostile_texts, testing::Range(0U, 3U));

}  // namespace
}  // namespace vantora::ui::desktop
