#include <QCalendarWidget>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QScrollBar>
#include <QTableView>
#include <QWheelEvent>
#include <random>

#include "desktop/controls/grid_view.h"
#include "errors/run_time_errors.h"
#include "text/code_page.h"
#include "ui/controls.h"
#include "window_stage.h"

namespace vantora::ui::desktop {
namespace {

/// A screen without a layout of its own.
class trial final : public form {
 public:
    explicit trial(ui::desk& on) : form(on, "prova", "Prova") {
        add("testo", testo);
        add("altro", altro);
        add("spunta", spunta);
        add("tendina", tendina);
        add("lista", lista);
        add("barra", barra);
        add("data", data);
        add("elenco", elenco);
        add("figura", figura);
        add("scritta", scritta);
        scritta.set_text("clic qui");
        scritta.on_click = [this] { ++clicks; };
        elenco.set_columns({{"a", 1}, {"b", 1}});
        tendina.add_all({"uno", "due", "tre"});
        std::vector<std::string> many;
        for (int i = 0; i < 32767; ++i) many.push_back("voce " + std::to_string(i));
        lista.add_all(many);
        barra.set_limits(1, 100);
        barra.set_value(1);
    }

    void activate() override { ++activations; }

    int activations = 0;
    int clicks = 0;
    label scritta;
    text_box testo;
    text_box altro;
    check_box spunta;
    drop_down tendina;
    list_box lista;
    scroll_bar barra;
    date_picker data;
    grid elenco;
    picture figura;
};

using widgets = test::window_of<trial>;

TEST_F(widgets, ALabelTakesALeftClickThatEndsOnIt) {
    run({[&] {
        auto* label = bench.find("scritta");
        QTest::mouseClick(label, Qt::RightButton);
        QTest::mouseClick(label, Qt::MiddleButton);
        QTest::mousePress(label, Qt::LeftButton);
        QTest::mouseRelease(label, Qt::LeftButton, {}, QPoint(-5, -5));
        EXPECT_EQ(screen->clicks, 0);
        QTest::mouseClick(label, Qt::LeftButton);
        EXPECT_EQ(screen->clicks, 1);
    }});
}

TEST_F(widgets, AFieldThatIsLeftShowsWhatItTook) {
    run({[&] {
        screen->testo.accepts = input_rule::number();
        auto* field = bench.find<QLineEdit>("testo");
        field->setFocus();
        QTest::keyClicks(field, "1.000");
        bench.find("altro")->setFocus();
        EXPECT_EQ(screen->testo.text(), "1");
        const auto* hint = field->window()->findChild<QLabel*>("number_hint");
        ASSERT_TRUE(hint && hint->isVisible());
        EXPECT_EQ(hint->text(), "preso come 1, non come 1000");
        screen->testo.accepts = input_rule::day();
        for (const auto& [typed, wrong] : {std::pair{"boh", true}, {"311224", false}}) {
            screen->testo.set_text(typed);
            field->setFocus();
            bench.find("altro")->setFocus();
            EXPECT_EQ(field->property("wrong").toBool(), wrong);
        }
        EXPECT_EQ(screen->testo.text(), "31/12/2024");
    }});
}

TEST_F(widgets, KeysGoToTheEventsFirstAndMayBeSwallowed) {
    run({[&] {
        std::string log;
        screen->testo.on_key_press = [&](key_event& pressed) {
            log += screen->testo.text() + "<" + static_cast<char>(pressed.code) + " ";
            if (pressed.code == 'x') pressed.swallow();
        };
        screen->testo.on_change = [&] { log += "=" + screen->testo.text() + " "; };
        QTest::keyClicks(bench.find("testo"), "axb");
        EXPECT_EQ(log, "<a =a a<x a<b =ab ");
        EXPECT_EQ(bench.find<QLineEdit>("testo")->text(), "ab");
        QTest::keyClick(bench.find("testo"), Qt::Key_Home);
        for (const char* typed : {"è", "€"}) {
            QTest::sendKeyEvent(QTest::Click, bench.find("testo"), Qt::Key_unknown,
                                QString::fromUtf8(typed), Qt::NoModifier);
        }
        EXPECT_EQ(screen->testo.text(), "è€ab"_cp) << "the cursor is the widget's business";
        screen->altro.accepts = input_rule::number();
        screen->altro.set_text("1.234,50");
        QTest::keyClick(bench.find("altro"), Qt::Key_Return);
        EXPECT_EQ(screen->altro.text(), "1234.50") << "the screen's own comma counts";
        QTest::keyClick(bench.find("altro"), Qt::Key_Home);
        QTest::keyClicks(bench.find("altro"), "a3");
        EXPECT_EQ(screen->altro.text(), "31234.50") << "the refused letter left the cursor there";
        screen->testo.set_text("da fuori");
        EXPECT_EQ(bench.find<QLineEdit>("testo")->text(), "da fuori");
        QTest::keyClick(bench.find("testo"), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(screen->testo.text(), "") << "what the hand found there";
        screen->figura.set_bitmap(std::make_shared<const bitmap>(bitmap{2, 1, {0, 0}}));
        const auto* figure = bench.find<QLabel>("figura");
        EXPECT_TRUE(figure->isVisible());
        EXPECT_EQ(figure->geometry().center(), figure->window()->rect().center());
        screen->altro.on_change = [&] { screen->unload(); };
        QTest::keyClicks(bench.find("altro"), "1");
        EXPECT_TRUE(bench.desk.forms().empty()) << "in the midst of its own event";
    }});
}

TEST_F(widgets, FocusChoicesAndValuesFollowBothWays) {
    run({[&] {
        QTest::keyClick(bench.find("testo"), Qt::Key_Tab);
        EXPECT_EQ(bench.desk.focus(), &screen->altro);
        std::string picks;
        screen->tendina.on_click = [&] { picks += std::to_string(screen->tendina.chosen()); };
        for (const auto key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up}) {
            QTest::keyClick(bench.find("tendina"), key);
        }
        EXPECT_EQ(picks, "010");
        EXPECT_EQ(bench.find<QComboBox>("tendina")->currentText(), "uno");
        screen->lista.choose(32000);
        QTest::keyClick(bench.find("lista"), Qt::Key_Down);
        EXPECT_EQ(screen->lista.chosen(), 32001);
        auto* bar = bench.find<QScrollBar>("barra");
        bar->setValue(40);
        QTest::keyClick(bar, Qt::Key_Right);
        EXPECT_EQ(screen->barra.value(), 41);
        screen->barra.set_value(50);
        EXPECT_EQ(bar->value(), 50);
        int offered = 0;
        screen->spunta.on_key_down = [&](key_event&) { ++offered; };
        QTest::keyClick(bench.find("spunta"), Qt::Key_Space);
        EXPECT_TRUE(screen->spunta.on() && offered == 1);
        screen->spunta.set_enabled(false);
        EXPECT_FALSE(bench.find("spunta")->isEnabled());
    }});
}

/// Whatever keys and wheel do, the highlighted row is in sight and is the one that Enter takes.
TEST_F(widgets, AListTakesTheRowThatIsHighlighted) {
    run({[&] {
        grid& list = screen->elenco;
        auto* view = bench.find<grid_view>("elenco");
        auto* editor = new QLineEdit(view);
        editor->setProperty("look", "over");
        view->keep_over(editor, 0);
        int taken = 0;
        list.on_click = [&] { taken = list.row(); };
        std::mt19937 random(7);
        for (const int rows : {3, 32767}) {
            list.set_rows(rows + 20);
            for (int row = 1; row <= rows; ++row) list.set_text(row, 0, std::to_string(row));
            QTest::qWait(1);
            view->setFocus();
            for (int step = 0; step < 300; ++step) {
                constexpr Qt::Key keys[] = {Qt::Key_Down, Qt::Key_Down,   Qt::Key_Up,
                                            Qt::Key_Home, Qt::Key_PageUp, Qt::Key_PageDown,
                                            Qt::Key_End,  Qt::Key_Left};
                if (random() % 9 == 0) {
                    view->verticalScrollBar()->setValue(static_cast<int>(random() % rows));
                    // A row out of sight has no place, and its editor no width.
                    const QRect cell = view->visualRect(view->currentIndex());
                    ASSERT_TRUE(editor->geometry() == cell ||
                                (cell.isEmpty() && editor->geometry().isEmpty()));
                }
                const Qt::Key key = keys[random() % std::size(keys)];
                const int before = list.row();
                QTest::keyClick(view, key);
                const QRect lit = view->visualRect(view->currentIndex());
                ASSERT_EQ(view->currentIndex().row() + 1, list.row()) << key;
                if (key == Qt::Key_Home || key == Qt::Key_End) {
                    ASSERT_EQ(list.row(), key == Qt::Key_Home ? 1 : rows);
                }
                ASSERT_TRUE(list.row() >= 1 && list.row() <= rows) << "no filler is marked";
                if (key == Qt::Key_Down && before > 0) {
                    ASSERT_EQ(list.row(), std::min(before + 1, rows));
                }
                ASSERT_TRUE(view->viewport()->rect().intersects(lit)) << key;
                ASSERT_EQ(list.top_row(), view->verticalScrollBar()->value() + 1);
                QTest::keyClick(view, Qt::Key_Return);
                ASSERT_EQ(taken, list.row());
            }
        }
        const int before = list.row();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                          view->visualRect(view->model()->index(list.rows() - 2, 0)).center());
        EXPECT_EQ(list.row(), before) << "a row without texts takes no click";
        list.show_end(4);
        EXPECT_EQ(view->verticalScrollBar()->value(), view->verticalScrollBar()->maximum());
    }});
}

TEST_F(widgets, TheWheelChangesWhatHasTheFocusAlone) {
    run({[&] {
        screen->tendina.choose(1);
        screen->barra.set_value(50);
        screen->data.set_value({2024, 5, 6});
        const auto all = [&] {
            return std::to_string(screen->tendina.chosen()) + " " +
                   std::to_string(screen->barra.value()) + " " + screen->data.text();
        };
        for (const char* one : {"tendina", "barra", "data"}) {
            QWidget* turned = bench.find(one);
            const auto turn = [&] {
                QWheelEvent event(QPointF(5, 5), turned->mapToGlobal(QPointF(5, 5)), {}, {0, -120},
                                  Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
                QApplication::sendEvent(turned, &event);
            };
            bench.find("testo")->setFocus();
            const std::string unchanged = all();
            turn();
            EXPECT_EQ(all(), unchanged) << one;
            turned->setFocus();
            turn();
            EXPECT_NE(all(), unchanged) << one;
        }
    }});
}

TEST_F(widgets, ARunTimeErrorIsToldInABox) {
    run({[&] {
        EXPECT_EQ(test::told_by([&] { bench.desk.dispatch([] { throw overflow_error(); }); }),
                  "Errore di run-time '6': Overflow");
        bench.front.end_by_user();
    }});
}

TEST_F(widgets, AChoiceHasALetterForEachCaptionAndShowsThemWhole) {
    message_box asked{"Copia?", attention, icon::question, buttons::choice};
    asked.choices = {"Copia prima di compattare", "Compatta senza una copia", "Annulla"};
    run({[&] { EXPECT_EQ(bench.desk.show_box(asked), answer::choice_3); },
         [&] {
             auto* box = qobject_cast<QMessageBox*>(bench.front.front_window());
             ASSERT_TRUE(box);
             QStringList letters;
             for (const auto* one : box->buttons()) {
                 EXPECT_GE(one->width(), one->sizeHint().width());
                 letters << QKeySequence::mnemonic(one->text()).toString();
             }
             EXPECT_EQ(letters.join(' ').toStdString(), "Alt+C Alt+O Alt+A");
             const int width = box->width();
             QApplication::setDoubleClickInterval(5000);
             QTest::keyClicks(box, "c");  // typed before it came
             QTest::qWait(150);
             QApplication::setDoubleClickInterval(0);
             ASSERT_TRUE(box->isVisible());
             QTest::keyClicks(box, "8001");
             QTest::keyClick(box, Qt::Key_Return);
             EXPECT_TRUE(box->informativeText().endsWith("8001"));
             EXPECT_GE(box->width(), width);
             QTest::keyClick(box, Qt::Key_Escape);
         }});
}

TEST_F(widgets, WindowsBroughtForwardInHasteComeToRest) {
    trial* other = nullptr;
    run({[&] {
             auto made = std::make_unique<trial>(bench.desk);
             other = made.get();
             bench.desk.dispatch([&] {
                 bench.desk.load(std::move(made)).show();
                 screen->show();
                 other->show();
             });
         },
         [&] {
             QTest::qWait(50);
             EXPECT_EQ(bench.desk.active(), other);
             EXPECT_LE(other->activations + screen->activations, 4);
         }});
}

}  // namespace
}  // namespace vantora::ui::desktop
