#include <QLineEdit>
#include <QShortcut>
#include <QStyledItemDelegate>

#include "desktop/look/contrast.h"
#include "desktop/words.h"
#include "windows/layouts.h"
#include "windows/parts.h"

namespace vantora::ui::desktop {

namespace {

constexpr int ordine = 0;
constexpr int da_evadere = 5;
constexpr int evaso = 6;

/// Rows that leave stand out, whatever the stripes are.
class leaving_rows final : public QStyledItemDelegate {
    using QStyledItemDelegate::QStyledItemDelegate;

 protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->text = option->text.trimmed();
        if (index.siblingAtColumn(evaso).data().toString().isEmpty()) return;
        const QColor leaving(0xd7, 0xef, 0xdc);
        option->backgroundBrush = leaving;
        option->palette.setColor(QPalette::Text, readable_on(leaving));
        if (index.column() == evaso) option->font.setBold(true);
    }
};

struct grid_key {
    int column;
    const char* keys;
    const char* what;
};

/// What a click into a column does to the current row, by key.
constexpr grid_key grid_keys[] = {{ordine, "F5", words::whole_order_leaves},
                                  {da_evadere, "F6", words::whole_row_leaves},
                                  {evaso, "F7", words::part_of_row_leaves}};

void add_grid_keys(form_window& window) {
    for (const grid_key& one : grid_keys) {
        QShortcut* keys = add_key(window, one.keys, one.what);
        QObject::connect(keys, &QShortcut::activated, &window, [&window, one] {
            window.act_on<grid>("elenco", -1, [one](grid& list) {
                if (list.row() > 0) list.click_cell(list.row(), one.column);
            });
        });
    }
}

QWidget* worklist_bar(form_window& window) {
    QHBoxLayout* row = command_row(window, 5);
    window.dress("bottone", 1, {"avanti", "&Conferma", "Evade le righe segnate", "F12"});
    window.dress("bottone", 0, {"uscita", "&Esci", "Lascia senza evadere nulla", "Ctrl+Q"});
    add_command(row, window.as<QToolButton>("bottone", 1), 26, true);
    row->addSpacing(18);
    auto* take = window.as<QAbstractButton>("aggiorna");
    take->setToolTip("La destinazione e il vettore del documento sono quelli del primo ordine");
    add_shortcut(*take, "Alt+G");
    row->addWidget(take);
    row->addStretch(1);
    add_command(row, window.as<QToolButton>("bottone", 0), 26, true);
    return row->parentWidget();
}

QVBoxLayout* help_lines(form_window& window) {
    auto* lines = new QVBoxLayout;
    lines->setSpacing(2);
    for (int i = 0; i < 3; ++i) {
        auto* line = new QHBoxLayout;
        auto* keys = new QLabel(grid_keys[i].keys, &window);
        set_look(keys, "role", "faint");
        keys->setMinimumWidth(keys->fontMetrics().horizontalAdvance("F12 "));
        auto* text = window.as<QLabel>("Label1", i);
        text->setWordWrap(true);
        line->addWidget(keys, 0, Qt::AlignTop);
        line->addWidget(text, 1);
        lines->addLayout(line);
    }
    return lines;
}

}  // namespace

void lay_out_mirorcr(form_window& window) {
    auto* body = body_under(worklist_bar(window), window);
    auto* view = window.as<grid_view>("elenco");
    view->setItemDelegate(new leaving_rows(view));
    auto* quantity = window.as<QLineEdit>("quantita");
    quantity->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    set_look(quantity, "look", "over");
    view->keep_over(quantity, evaso);
    if (window.by_user()) view->begin_at_first();
    add_grid_keys(window);

    body->addWidget(view, 1);
    auto* foot = new QHBoxLayout;
    foot->setSpacing(24);
    foot->addLayout(help_lines(window), 1);
    auto* marked = window.as<QLabel>("segnate");
    set_look(marked, "role", "total");
    foot->addWidget(marked, 0, Qt::AlignBottom);
    body->addLayout(foot);

    window.setMinimumSize(900, 480);
    window.set_first_size(QSize(1280, 690));
}

}  // namespace vantora::ui::desktop
