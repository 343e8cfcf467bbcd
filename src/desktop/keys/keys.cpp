#include "desktop/keys/keys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBoxLayout>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QToolButton>
#include <algorithm>

#include "desktop/keys/manual.h"
#include "desktop/look/words.h"

namespace vantora::ui::desktop {

namespace {

constexpr const char* told_name = "key_help";

/// Set while a button is pressed by a key of its own.
constexpr const char* by_key = "by_key";

}  // namespace

key_help::key_help(QWidget& owner, QString keys, QString what)
    : QObject(&owner), keys_(std::move(keys)), what_(std::move(what)) {
    setObjectName(told_name);
}

QString key_help::native_keys() const {
    QStringList named;
    for (const QString& one : keys_.split(' ')) {
        named << QKeySequence(one).toString(QKeySequence::NativeText);
    }
    return named.join(", ");
}

QShortcut* add_key(QWidget& owner, const QString& keys, const QString& what,
                   const std::function<void()>& action) {
    auto* shortcut = new QShortcut(QKeySequence(keys), &owner);
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, &owner, action);
    new key_help(owner, keys, what);
    return shortcut;
}

void click_by_key(QAbstractButton& button) {
    const QPointer<QAbstractButton> pressed(&button);
    button.setProperty(by_key, true);
    button.click();
    if (pressed) pressed->setProperty(by_key, false);
}

bool clicked_by_key(const QAbstractButton& button) {
    return button.property(by_key).toBool();
}

void add_shortcut(QAbstractButton& button, const QString& keys) {
    const QString what = button.toolTip().isEmpty() ? button.text().remove('&') : button.toolTip();
    add_key(button, keys, what, [&button] { click_by_key(button); });
    const QString named =
        QString("(%1)").arg(QKeySequence(keys).toString(QKeySequence::NativeText));
    button.setToolTip((button.toolTip() + " " + named).trimmed());
}

std::vector<const key_help*> keys_of(const QWidget& window) {
    std::vector<const key_help*> keys;
    for (const QObject* child : window.findChildren<QObject*>(told_name)) {
        const auto* one = static_cast<const key_help*>(child);
        const auto* owner = static_cast<const QWidget*>(one->parent());
        if (owner == &window || !owner->isHidden()) keys.push_back(one);
    }
    // Commands first, then what the window has besides.
    std::ranges::stable_partition(keys,
                                  [&](const key_help* one) { return one->parent() != &window; });
    return keys;
}

// The overview ------------------------------------------------------------------------------------

namespace {

constexpr int single_column_rows = 14;
constexpr int longest_line = 60;  ///< characters; what is longer would need a window too wide

QWidget* key_table(const std::vector<const key_help*>& keys, QWidget* parent) {
    auto* table = new QWidget(parent);
    auto* cells = new QGridLayout(table);
    cells->setHorizontalSpacing(14);
    cells->setVerticalSpacing(5);
    const int count = static_cast<int>(keys.size());
    const int rows_a_column = count > single_column_rows ? (count + 1) / 2 : single_column_rows;
    int at = 0;
    for (const key_help* one : keys) {
        auto* key = new QLabel(one->native_keys(), table);
        key->setProperty("role", "key");
        auto* what = new QLabel(one->what(), table);
        what->setWordWrap(one->what().size() > longest_line);
        const int column = at / rows_a_column * 2;
        const int row = at % rows_a_column;
        cells->addWidget(key, row, column, Qt::AlignLeft | Qt::AlignVCenter);
        cells->addWidget(what, row, column + 1);
        what->setContentsMargins(0, 0, 24, 0);
        ++at;
    }
    cells->setRowStretch(rows_a_column, 1);
    return table;
}

}  // namespace

void show_keys(QWidget& window) {
    QDialog dialog(&window);
    dialog.setObjectName("tasti");
    dialog.setWindowTitle(QString("Tasti: %1").arg(window.windowTitle()));
    auto* area = new QScrollArea(&dialog);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    QWidget* table = key_table(keys_of(window), area);
    area->setWidget(table);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, &dialog);
    auto* manual = buttons->addButton(words::open_manual, QDialogButtonBox::HelpRole);
    QObject::connect(manual, &QPushButton::clicked, &dialog, [&dialog] { open_manual(&dialog); });
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* all = new QVBoxLayout(&dialog);
    all->addWidget(area, 1);
    all->addWidget(buttons);
    const QSize room = window.screen()->availableSize() * 9 / 10;
    const QSize wanted = table->sizeHint() + QSize(50, 80);
    dialog.resize(wanted.boundedTo(room));
    dialog.exec();
}

// The bar of commands -----------------------------------------------------------------------------

QHBoxLayout* command_bar_of(const QWidget& window) {
    for (const auto* bar : window.findChildren<QFrame*>()) {
        auto* row = qobject_cast<QHBoxLayout*>(bar->layout());
        if (row && bar->property("role").toString() == "bar") return row;
    }
    return nullptr;
}

QToolButton* menu_button(QWidget& window, const char* name, const QString& caption,
                         const char* tooltip, const std::function<void(QMenu&)>& fill) {
    auto* button = new QToolButton(&window);
    button->setObjectName(name);
    button->setText(caption);
    button->setToolTip(tooltip);
    button->setFocusPolicy(Qt::NoFocus);
    QObject::connect(button, &QToolButton::clicked, &window, [&window, button, fill] {
        QMenu menu(&window);
        fill(menu);
        menu.exec(button->mapToGlobal(QPoint(0, button->height())));
    });
    return button;
}

// The box of the program -------------------------------------------------------------------------

namespace {

constexpr const char* facts_of_program = "facts";

void show_about(QWidget& window) {
    QStringList lines{QString("Vantora Ordini %1").arg(QApplication::applicationVersion())};
    const auto facts = qApp->property(facts_of_program).value<std::function<QStringList()>>();
    if (facts) lines << QString() << facts();
    QMessageBox box(QMessageBox::Information, words::about, lines.join("\n"), QMessageBox::Ok,
                    &window);
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.exec();
}

}  // namespace

void set_facts(const std::function<QStringList()>& facts) {
    qApp->setProperty(facts_of_program, QVariant::fromValue(facts));
}

// Help -------------------------------------------------------------------------------------------

QToolButton* help_button(QWidget& window) {
    QToolButton* button = menu_button(window, "aiuto", "?", words::help, [&window](QMenu& menu) {
        menu.addAction(QString(words::show_keys) + "\t" +
                           QKeySequence("Ctrl+?").toString(QKeySequence::NativeText),
                       &window, [&window] { show_keys(window); });
        menu.addAction(QString(words::open_manual) + "\tF1", &window,
                       [&window] { open_manual(&window); });
        menu.addAction(words::about, &window, [&window] { show_about(window); });
    });
    button->setAccessibleName(words::help);
    button->setProperty("look", "help");
    return button;
}

void add_help(QWidget& window) {
    add_key(window, "Ctrl+?", words::show_keys, [&window] { show_keys(window); });
    new key_help(window, "F1", "Apre il manuale; nella descrizione di una riga trova l'articolo");
    if (window.findChild<QToolButton*>("aiuto")) return;
    if (QHBoxLayout* row = command_bar_of(window)) {
        row->addWidget(help_button(window), 0, Qt::AlignTop);
    }
}

}  // namespace vantora::ui::desktop
