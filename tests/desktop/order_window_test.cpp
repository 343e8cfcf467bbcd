#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QListView>

#include "entry/mirorcs.h"
#include "program_window.h"
#include "register/mirorc.h"

namespace vantora::ui::desktop {
namespace {

/// A clerk types an order with the keyboard alone.
class order_window : public test::program_window {
 protected:
    order_window() {
        using vantora::test::article;
        using vantora::test::customer_named;
        company.customers({customer_named("Alfa"), customer_named("Zeta")});
        std::vector<rec_art> articles{article("A100", "Dado", 10), article("A200", "Vite", 25),
                                      article("A300", "Rondella", 5)};
        articles[2].codice_barre = "8001";
        company.articles(articles);
        company.table_file();
        company.counter(contatori::ordini, 0, 76);
    }

    void run(std::vector<std::function<void()>> steps) {
        steps.insert(steps.begin(), {[&] { press(Qt::Key_N, Qt::ControlModifier); },
                                     [&] {
                                         write("zeta");
                                         press(Qt::Key_Return);
                                         press(Qt::Key_F12);
                                     }});
        program_window::run(std::move(steps));
    }
    static QWidget* focused() { return QApplication::focusWidget(); }
    static std::string focus() { return focused()->objectName().toStdString(); }
    static void press(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
        QTest::keyClick(focused(), key, with);
    }
    static void write(const char* text) { QTest::keyClicks(focused(), text); }
    /// A cell after the other, each left by Enter.
    static void write_cells(std::initializer_list<const char*> texts) {
        for (const char* text : texts) {
            write(text);
            press(Qt::Key_Return);
        }
    }
    /// Taxable, grand total and pieces, as the clerk sees them.
    std::string totals() {
        QStringList all;
        for (const char* one : {"tota(0)", "tota(1)", "tota(2)"}) {
            all << bench.find<QLabel>(one)->text().trimmed();
        }
        return all.join(' ').toStdString();
    }
    QRect place(const char* address) {
        QWidget* one = bench.find(address);
        return {one->mapTo(one->window(), QPoint()), one->size()};
    }
};

TEST_F(order_window, AnOrderIsTypedByTheKeyboardAlone) {
    run({[&] {
             ASSERT_EQ(focus(), "artic(0)");
             // Enter walks code, quantity, discounts, price, next row.
             write_cells({"a100", "3", "10", "", ""});
             EXPECT_EQ(text("ds(0)"), "Dado");
             EXPECT_EQ(totals(), "27,00 32,94 3");
             EXPECT_EQ(focus(), "artic(1)");
             // By description.
             press(Qt::Key_Return);
             EXPECT_EQ(focus(), "ds(1)");
             write("vit");
             press(Qt::Key_F1);
             EXPECT_EQ(text("artic(1)"), "A200");
             write_cells({"2", "", "", ""});
             // By bar code.
             press(Qt::Key_B, Qt::AltModifier);
             EXPECT_EQ(focus(), "artic(2)");
             write_cells({"8001", "4", "", "", ""});
             EXPECT_EQ(text("ds(2)"), "Rondella");
             press(Qt::Key_B, Qt::AltModifier);
             // The list follows the code; a click takes an entry.
             auto* list = bench.find<QListView>("List1");
             write("a3");
             EXPECT_EQ(list->currentIndex().row(), 2);
             QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                               list->visualRect(list->model()->index(1, 0)).center());
             EXPECT_EQ(text("artic(3)"), "A200");
             EXPECT_EQ(focus(), "quantita(3)");
             write("1");
             EXPECT_EQ(totals(), "122,00 148,84 10");
             EXPECT_TRUE(bench.find<QLabel>("scorta")->text().startsWith("A200:"));
             // Tab walks the cells of two rows and back, and no line loses its article.
             QWidget* const here = focused();
             bench.find("artic(0)")->setFocus();
             for (int i = 0; i < 15; ++i) press(Qt::Key_Tab);
             for (int i = 0; i < 15; ++i) press(Qt::Key_Backtab);
             EXPECT_EQ(focus(), "artic(0)");
             EXPECT_EQ(text("artic(0)") + text("artic(1)"), "A100A200");
             here->setFocus();
         },
         [&] {
             // The pick of the VAT code lies over its row, and one arrow picks.
             press(Qt::Key_F4);
             EXPECT_EQ(focus(), "Combo1");
             EXPECT_EQ(place("Combo1").top(), place("civ(3)").top());
             EXPECT_TRUE(place("Combo1").intersects(place("civ(3)")));
             EXPECT_FALSE(place("Combo1").intersects(place("prezzo(3)")));
             press(Qt::Key_Down);
             EXPECT_EQ(text("civ(3)"), "05");
             EXPECT_EQ(focus(), "prezzo(3)");
             EXPECT_FALSE(bench.find("Combo1")->isVisible());
             EXPECT_EQ(totals(), "122,00 143,34 10");
             // Two digits pick as well; Escape leaves all as it was.
             for (const auto& [keys, code] :
                  {std::pair{"04", "04"}, {"05", "05"}, {"0\x1b", "05"}}) {
                 press(Qt::Key_F4);
                 write(keys);
                 EXPECT_EQ(text("civ(3)"), code);
             }
             // So does a click outside.
             press(Qt::Key_F4);
             QTRY_VERIFY(QApplication::activePopupWidget());
             QTest::mouseClick(QApplication::activePopupWidget()->windowHandle(), Qt::LeftButton,
                               {}, QPoint(-40, 60));
             QTRY_VERIFY(!bench.find("Combo1")->isVisible());
             EXPECT_EQ(focus() + text("civ(3)"), "prezzo(3)05");
         },
         [&] {
             press(Qt::Key_F7);
             EXPECT_EQ(text("artic(3)"), "");
             EXPECT_EQ(text("artic(4)"), "A200");
             press(Qt::Key_F7, Qt::ShiftModifier);
             press(Qt::Key_F7, Qt::ShiftModifier);
             EXPECT_EQ(text("artic(3)"), "");
             EXPECT_EQ(totals(), "97,00 118,34 9");
             press(Qt::Key_F12);
         },
         answer("Stampare l'ordine?", Qt::Key_Escape),
         [&] {
             ASSERT_EQ(front(), "mirorc");
             const auto* cells = table()->model();
             EXPECT_EQ(cells->index(0, 1).data().toString(), "77");
             EXPECT_EQ(cells->index(0, 3).data().toString(), "Zeta");
         }});
}

TEST_F(order_window, GoodsLeaveByTheKeyboardAloneAsOftenAsWanted) {
    using step = std::function<void()>;
    const step register_to_customer = [&] {
        ASSERT_EQ(front(), "mirorc");
        EXPECT_EQ(focus(), "elenco");
        press(Qt::Key_E, Qt::ControlModifier);
    };
    const step customer_to_list = [&] {
        write("zeta");
        press(Qt::Key_Return);
        press(Qt::Key_F12);
    };
    // Keys that led away left the focus in the list, which begins at its first row.
    const step second_row_leaves = [&] {
        EXPECT_EQ(focus(), "elenco");
        EXPECT_EQ(table()->currentIndex().row(), 0);
        press(Qt::Key_Down);
        press(Qt::Key_F7);
        EXPECT_EQ(focused()->geometry(), table()->visualRect(table()->model()->index(1, 6)));
        press(Qt::Key_Return);
        press(Qt::Key_F6);
        press(Qt::Key_F12);
    };
    const auto cancel = [&](const char* article) -> step {
        return [&, article] {
            EXPECT_EQ(text("artic(0)"), article);
            press(Qt::Key_Q, Qt::ControlModifier);
        };
    };
    const step yes = answer("", Qt::Key_Return);
    run({[&] {
             for (const char* code : {"a100", "a200", "a300"}) {
                 write_cells({code, "2", "", "", ""});
             }
             press(Qt::Key_F12);
         },
         answer("", Qt::Key_Escape), register_to_customer, customer_to_list, second_row_leaves,
         cancel("A200"), yes, register_to_customer, customer_to_list, second_row_leaves,
         cancel("A300"), yes, register_to_customer});
}

TEST_F(order_window, TheRowWorkedOnIsMarkedAndPagesMoveUnderIt) {
    run({[&] {
        write_cells({"a100", "3", "", "", ""});
        EXPECT_EQ(bench.find("ds(0)")->property("cell"), "true");
        EXPECT_EQ(bench.find("ds(1)")->property("cell"), "current");
        press(Qt::Key_PageDown);
        EXPECT_EQ(text("artic(0)"), "");
        EXPECT_EQ(app.mirorcs->VScroll1.value(), 13);
        EXPECT_EQ(focused()->accessibleName(), "Articolo, riga 14");
        press(Qt::Key_PageUp);
        EXPECT_EQ(focus(), "artic(1)");
        EXPECT_EQ(text("artic(0)"), "A100");
        EXPECT_EQ(totals(), "30,00 36,60 3");
        // The cell of a VAT code hands the focus on, but its row is the one worked on.
        QTest::mouseClick(bench.find("civ(0)"), Qt::LeftButton);
        EXPECT_EQ(bench.find("ds(0)")->property("cell"), "current");
        EXPECT_EQ(place("Combo1").top(), place("civ(0)").top());
    }});
}

TEST_F(order_window, PastedLinesAndSlipsAreTakenBack) {
    run({[&] {
             write("7");
             press(Qt::Key_Z, Qt::ControlModifier);
             EXPECT_EQ(text("artic(0)"), "");
             write_cells({"a100", "3"});
             write("50");
             press(Qt::Key_Return);
             QApplication::clipboard()->setText("a200\t2\nX\t1\na300;8");
             bench.find("artic(0)")->setFocus();
             press(Qt::Key_V, Qt::ControlModifier);
         },
         answer("riga 2: X", Qt::Key_Return),
         [&] {
             EXPECT_EQ(text("artic(0)") + text("quantita(0)"), "A2002");
             EXPECT_EQ(text("artic(1)") + text("quantita(1)"), "A1003");
             press(Qt::Key_F7);
             EXPECT_EQ(text("artic(2)"), "A100");
             // A click into the description takes the article off.
             QTest::mouseClick(bench.find("ds(2)"), Qt::LeftButton);
             const auto back = [&] {
                 press(Qt::Key_Z, Qt::ControlModifier);
                 return focus() + "=" + static_cast<QLineEdit*>(focused())->text().toStdString();
             };
             EXPECT_EQ(text("artic(2)"), "");
             EXPECT_EQ(back(), "artic(2)=A100");
             EXPECT_EQ(back(), "artic(1)=A100");
             EXPECT_EQ(back(), "artic(0)=A100");
             EXPECT_EQ(totals(), "15,00 18,30 3");
             for (int more = 0; more < 4; ++more) back();
             EXPECT_EQ(back(), "artic(0)=7") << "taken back before the rest was typed";
             press(Qt::Key_Y, Qt::ControlModifier);
             for (int again = 0; again < 6; ++again) {
                 press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
             }
             EXPECT_EQ(text("artic(0)") + text("artic(2)"), "A200A100");
         }});
}

TEST_F(order_window, AnOrderIsLeftWhileItsNewTotalsStillWaitToBeShown) {
    QApplication::setDoubleClickInterval(400);
    run({[&] {
             press(Qt::Key_F12);
             EXPECT_EQ(front(), "mirorcs") << "F12 opened it; struck twice in haste it means that";
             bench.press_button("comando(0)");
             EXPECT_EQ(front(), "mirorcs") << "so does the second click of a double one";
             QApplication::setDoubleClickInterval(0);
             write_cells({"a100", "3000"});
             // What the totals need is laid out by a later event, when the order is gone.
             press(Qt::Key_Q, Qt::ControlModifier);
         },
         [&] {
             EXPECT_EQ(front(), "mirorc");
             for (const QWidget* window : QApplication::topLevelWidgets()) {
                 EXPECT_NE(window->objectName(), "mirorcs") << "the window is left behind";
             }
         }});
}

}  // namespace
}  // namespace vantora::ui::desktop
