#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QWheelEvent>
#include <random>

#include "store/text/code_page.h"
#include "ui/controls.h"
#include "ui/desktop/manual.h"
#include "window_bench.h"

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
    text_box testo;
    text_box altro;
    check_box spunta;
    drop_down tendina;
    sorted_list_box lista;
    scroll_bar barra;
    date_picker data;
    grid elenco;
    picture figura;
};

using widgets = test::window_of<trial>;

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
    }});
}

TEST_F(widgets, FocusFollowsBothWays) {
    run({[&] {
        EXPECT_EQ(bench.desk.focus(), &screen->testo);
        QTest::keyClick(bench.find("testo"), Qt::Key_Tab);
        EXPECT_EQ(bench.desk.focus(), &screen->altro);
        bench.desk.dispatch([&] { screen->testo.set_focus(); });
        EXPECT_TRUE(bench.find("testo")->hasFocus());
        screen->altro.on_focus = [&] { screen->spunta.set_focus(); };
        bench.find("altro")->setFocus();
        EXPECT_TRUE(bench.find("spunta")->hasFocus()) << "the screen sent it on";
        screen->testo.set_enabled(false);
        EXPECT_FALSE(bench.find("testo")->isEnabled());
    }});
}

TEST_F(widgets, ListsPickAStepAKey) {
    run({[&] {
        std::string picks;
        screen->tendina.on_click = [&] { picks += std::to_string(screen->tendina.chosen()); };
        for (const auto key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up}) {
            QTest::keyClick(bench.find("tendina"), key);
        }
        EXPECT_EQ(picks, "010");
        EXPECT_EQ(bench.find<QComboBox>("tendina")->currentText(), "uno");
        screen->lista.choose(32000);
        auto* list = bench.find<QListView>("lista");
        EXPECT_EQ(list->model()->rowCount(), 32767);
        EXPECT_EQ(list->currentIndex().row(), 32000);
        QTest::keyClick(list, Qt::Key_Down);
        EXPECT_EQ(screen->lista.chosen(), 32001);
    }});
}

/// Whatever keys and wheel do, the highlighted row is in sight and is the one that Enter takes.
TEST_F(widgets, AListTakesTheRowThatIsHighlighted) {
    run({[&] {
        grid& list = screen->elenco;
        auto* view = bench.find<QTableView>("elenco");
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
        list.show_end(4);
        EXPECT_EQ(view->verticalScrollBar()->value(), view->verticalScrollBar()->maximum());
    }});
}

TEST_F(widgets, ValuesFollowBothWays) {
    run({[&] {
        int changes = 0;
        screen->barra.on_change = [&] { ++changes; };
        auto* bar = bench.find<QScrollBar>("barra");
        EXPECT_EQ(bar->maximum(), 100);
        bar->setValue(40);
        QTest::keyClick(bar, Qt::Key_Right);
        EXPECT_EQ(screen->barra.value(), 41);
        screen->barra.set_value(50);
        EXPECT_EQ(bar->value(), 50);
        EXPECT_EQ(changes, 3);
        screen->data.set_value({2024, 2, 29});
        EXPECT_EQ(bench.find<QDateEdit>("data")->text(), "29/02/2024");
        bench.find<QDateEdit>("data")->setDate(QDate(2025, 3, 4));
        EXPECT_EQ(screen->data.text(), "04/03/2025");
        QTest::keyClick(bench.find("spunta"), Qt::Key_Space);
        EXPECT_TRUE(screen->spunta.on());
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

TEST_F(widgets, APictureIsSeenInTheMiddleOfItsWindow) {
    run({[&] {
        auto* label = bench.find<QLabel>("figura");
        EXPECT_FALSE(label->isVisible()) << "nothing to see yet";
        screen->figura.set_bitmap(
            std::make_shared<const bitmap>(bitmap{2, 1, {0x0000FF, transparent_grey}}));
        EXPECT_TRUE(label->isVisible());
        EXPECT_EQ(label->geometry().center(), label->window()->rect().center());
        const QImage seen = label->pixmap().toImage();
        EXPECT_EQ(seen.pixelColor(0, 0), QColor(Qt::red));
        EXPECT_EQ(seen.pixelColor(1, 0).alpha(), 0);
        screen->figura.set_visible(false);
        EXPECT_FALSE(label->isVisible());
    }});
}

TEST_F(widgets, AScreenMayGoInTheMidstOfItsOwnEvent) {
    run({[&] {
             screen->testo.on_change = [&] { screen->unload(); };
             QTest::keyClicks(bench.find("testo"), "a");
         },
         [&] { EXPECT_TRUE(bench.desk.forms().empty()); }});
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

TEST_F(widgets, F1OpensTheBestManualThereIsAndLeavesDescriptionsAlone) {
    const QTemporaryDir folder;
    const QString programs = folder.filePath("bin");
    QDir().mkpath(programs);
    QString best;
    EXPECT_EQ(manual_file(programs), best);
    for (const char* place : {"manual", "share/doc/vantora-ordini"}) {
        QDir(folder.path()).mkpath(place);
        for (const char* ending : {"html", "pdf"}) {
            const QString file = folder.filePath(place) + "/vantora-ordini-manuale." + ending;
            ASSERT_TRUE(QFile(file).open(QIODevice::WriteOnly));
            if (best.isEmpty() || file.endsWith("pdf")) best = file;
            EXPECT_EQ(manual_file(programs), best);
        }
    }
    QLineEdit cell;
    const QKeyEvent f1(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
    EXPECT_TRUE(asks_for_manual(f1, &cell));
    EXPECT_TRUE(asks_for_manual(f1, nullptr));
    EXPECT_FALSE(asks_for_manual({QEvent::KeyPress, Qt::Key_F2, Qt::NoModifier}, &cell));
    cell.setProperty("column", "ds");
    EXPECT_FALSE(asks_for_manual(f1, &cell));
}

}  // namespace
}  // namespace vantora::ui::desktop
