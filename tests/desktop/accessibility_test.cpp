#include <QAccessible>
#include <QLabel>
#include <QRadioButton>
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

TEST_F(accessibility, AListTellsWhereItsMarkIsAndAnOptionThatItIsOne) {
    run({[&] {
        bench.desk.dispatch([&] {
            app.mirorc->elenco.set_text(4, 0, "4");
            app.mirorc->elenco.set_row(4);
        });
        auto* heard = QAccessible::queryAccessibleInterface(table())->tableInterface();
        EXPECT_TRUE(heard->isRowSelected(3));
        EXPECT_EQ(heard->cellAt(3, 0)->text(QAccessible::Name), "4");
        for (auto* one : bench.front.front_window()->findChildren<QRadioButton*>()) {
            EXPECT_EQ(QAccessible::queryAccessibleInterface(one)->role(), QAccessible::RadioButton);
        }
    }});
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
