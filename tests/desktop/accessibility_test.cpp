#include <QAccessible>
#include <QLabel>
#include <QRadioButton>
#include <QRegularExpression>
#include <random>
#include <set>

#include "desktop/look/contrast.h"
#include "program_window.h"
#include "register/mirorc.h"

namespace vantora::ui::desktop {
namespace {

const std::set fields{QAccessible::EditableText, QAccessible::ComboBox, QAccessible::SpinBox};
const std::set others{QAccessible::Button,    QAccessible::CheckBox,    QAccessible::RadioButton,
                      QAccessible::ScrollBar, QAccessible::ProgressBar, QAccessible::List,
                      QAccessible::Table};

/// What those who listen hear; a drop-down list's own name is its choice.
QString heard_name(const QAccessibleInterface& of) {
    if (of.role() != QAccessible::ComboBox) return of.text(QAccessible::Name);
    const auto labels = of.relations(QAccessible::Label);
    return labels.empty() ? QString() : labels.front().first->text(QAccessible::Name);
}

/// All that can be read beside or above fields.
QStringList captions_of(const QWidget& window) {
    QStringList all;
    for (const auto* one : window.findChildren<QLabel*>()) all << one->text();
    for (const auto* one : window.findChildren<QTableView*>()) {
        for (int column = 0; one->model() && column < one->model()->columnCount(); ++column) {
            all << one->model()->headerData(column, Qt::Horizontal).toString();
        }
    }
    for (QString& one : all) one = one.remove('&').simplified();
    all.removeAll(QString());
    return all;
}

/// The controls below `at` that those who listen can't tell, or fields that they call otherwise
/// than those who read. Counts the controls.
int collect_nameless(QAccessibleInterface* at, const QStringList& captions, QStringList& found) {
    if (at->object()->objectName().endsWith("container")) return 0;  // the toolkit's scroll bars
    if (fields.contains(at->role()) || others.contains(at->role())) {
        const QString name = heard_name(*at).simplified();
        const auto begins = [&](const QString& one) { return name.startsWith(one); };
        const bool called = others.contains(at->role()) || std::ranges::any_of(captions, begins);
        if (name.isEmpty() || !called) found << at->object()->objectName() + '"' + name + '"';
        return 1;
    }
    int controls = 0;
    for (int i = 0; i < at->childCount(); ++i) {
        controls += collect_nameless(at->child(i), captions, found);
    }
    return controls;
}

/// Letters that Alt would give to two at once.
QStringList doubled_letters(const QWidget& window) {
    QStringList letters;
    for (const auto* one : window.findChildren<QAbstractButton*>()) {
        letters << QKeySequence::mnemonic(one->text()).toString();
    }
    for (const auto* one : window.findChildren<QLabel*>()) {
        if (one->buddy()) letters << QKeySequence::mnemonic(one->text()).toString();
    }
    letters.removeAll(QString());
    for (const QString& once : QSet(letters.begin(), letters.end())) letters.removeOne(once);
    return letters;
}

using accessibility = test::program_window;

TEST_F(accessibility, EveryControlOfEveryScreenIsCalledByItsCaption) {
    run({[&] {
        for (screen_place* place : all_screens()) {
            form* screen = nullptr;
            bench.desk.dispatch([&] { screen = &place->use(); });
            for (QWidget* window : QApplication::topLevelWidgets()) {
                if (window->objectName() != QString::fromStdString(screen->name())) continue;
                QStringList nameless;
                auto* heard = QAccessible::queryAccessibleInterface(window);
                EXPECT_GE(collect_nameless(heard, captions_of(*window), nameless), 1);
                EXPECT_EQ(nameless.join(", ").toStdString(), "") << screen->name();
                EXPECT_EQ(doubled_letters(*window).join(", ").toStdString(), "") << screen->name();
            }
        }
    }});
}

TEST_F(accessibility, AListTellsRowColumnTextAndWhereItsMarkIs) {
    run({[&] {
        grid& list = app.mirorc->elenco;
        const auto text_at = [](int row, int col) { return std::to_string(row * 100 + col); };
        bench.desk.dispatch([&] {
            for (int row = 1; row <= 5; ++row) {
                for (int col = 0; col < list.cols(); ++col) {
                    list.set_text(row, col, text_at(row, col));
                }
            }
            list.set_row(4);
        });
        auto* heard = QAccessible::queryAccessibleInterface(table())->tableInterface();
        ASSERT_TRUE(heard);
        EXPECT_TRUE(heard->isRowSelected(3));
        for (auto* one : bench.front.front_window()->findChildren<QRadioButton*>()) {
            EXPECT_EQ(QAccessible::queryAccessibleInterface(one)->role(), QAccessible::RadioButton);
        }
        for (int row = 1; row <= 5; ++row) {
            for (int col = 0; col < list.cols(); ++col) {
                auto* cell = heard->cellAt(row - 1, col);
                EXPECT_EQ(cell->text(QAccessible::Name).toStdString(), text_at(row, col));
                EXPECT_EQ(cell->tableCellInterface()->rowIndex(), row - 1);
                EXPECT_EQ(cell->tableCellInterface()->columnIndex(), col);
                EXPECT_EQ(heard->columnDescription(col).toStdString(), list.text(0, col));
            }
        }
    }});
}

TEST_F(accessibility, WhereTheKeysGoStandsOut) {
    static const QRegularExpression rule(":focus[^{}]*\\{[^}]*border[^;}]*(#[0-9a-f]{6})[^}]*\\}");
    static const QRegularExpression ground("background: (#[0-9a-f]{6})");
    const QColor window = QApplication::palette().color(QPalette::Window);
    int rules = 0;
    for (auto found = rule.globalMatch(qApp->styleSheet()); found.hasNext(); ++rules) {
        const auto match = found.next();
        const QColor line(match.captured(1));
        const auto inside = ground.match(match.captured(0));
        const double within = inside.hasMatch() ? contrast(line, QColor(inside.captured(1))) : 1;
        EXPECT_GE(std::max(contrast(line, window), within), text_contrast_min)
            << match.captured(0).toStdString();
    }
    EXPECT_GT(rules, 8);
}

TEST_F(accessibility, TextsStandOut) {
    const QPalette palette = QApplication::palette();
    EXPECT_NEAR(contrast("#767676", Qt::white), 4.54, 0.01);
    for (const auto group : {QPalette::Active, QPalette::Disabled}) {
        for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText,
                                QPalette::PlaceholderText}) {
            EXPECT_GE(contrast(palette.color(group, role), QColor("#e8ecf0")), text_contrast_min);
        }
    }
    // Whatever colour an archive gives the rows of its lists.
    std::mt19937 random(5);
    for (int i = 0; i < 2000; ++i) {
        const QColor stripe = QColor::fromRgb(static_cast<QRgb>(random()));
        EXPECT_GE(contrast(readable_on(stripe), stripe), text_contrast_min);
    }
}

}  // namespace
}  // namespace vantora::ui::desktop
