#include "fulfil/mirorcr.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyledItemDelegate>

#include "desktop/look/contrast.h"
#include "windows/layout_pieces.h"
#include "windows/layouts.h"

namespace vantora::ui::desktop {

namespace {

/// Rows that leave stand out, whatever the stripes are.
class leaving_rows final : public QStyledItemDelegate {
    using QStyledItemDelegate::QStyledItemDelegate;

 protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->text = option->text.trimmed();
        if (index.siblingAtColumn(mirorcr::evaso).data().toString().isEmpty()) return;
        const QColor leaving(0xd7, 0xef, 0xdc);
        option->backgroundBrush = leaving;
        option->palette.setColor(QPalette::Text, readable_on(leaving));
        if (index.column() == mirorcr::evaso) option->font.setBold(true);
    }
};

/// What the keys do to the editor of a quantity: Escape leaves it, and its cell as it was; a digit
/// in the list opens that of its row and is the first one of the quantity.
class editor_keys final : public QObject {
 public:
    editor_keys(form_window& window, mirorcr& screen)
        : QObject(&window), window_(window), screen_(screen) {
        window.widget(screen.quantita)->installEventFilter(this);
        if (window.by_person()) window.widget(screen.elenco)->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool pressed = event->type() == QEvent::KeyPress;
        if (!pressed && event->type() != QEvent::ShortcutOverride) return false;
        auto& key = static_cast<QKeyEvent&>(*event);
        if (watched != window_.widget(screen_.quantita)) return pressed && opened_by(key);
        if (key.key() != Qt::Key_Escape) return false;
        key.accept();
        if (pressed) window_.act_on(screen_.quantita, [this] { screen_.leave_editor(); });
        return true;
    }

 private:
    bool opened_by(QKeyEvent& key) {
        const QString typed = key.text();
        const bool plain = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
        if (!plain || typed.size() != 1 || !typed[0].isDigit() || screen_.elenco.row() < 1) {
            return false;
        }
        window_.act_on(screen_.elenco,
                       [this] { screen_.elenco.click_cell(screen_.elenco.row(), mirorcr::evaso); });
        if (screen_.quantita.has_focus()) {
            QApplication::sendEvent(window_.widget(screen_.quantita), &key);
        }
        return true;
    }

    form_window& window_;
    mirorcr& screen_;
};

struct grid_key {
    int column;
    const char* keys;
    const char* what;
};

/// What a click into a column does to the current row, by key.
constexpr grid_key grid_keys[] = {{mirorcr::ordine, "F5", "Parte tutto l'ordine"},
                                  {mirorcr::da_evadere, "F6", "Parte tutta la riga"},
                                  {mirorcr::evaso, "F7", "Parte una quantità della riga"}};

void add_grid_keys(form_window& window, mirorcr& screen) {
    for (const grid_key& one : grid_keys) {
        add_key(window, one.keys, one.what, [&window, &screen, one] {
            window.act_on(screen.elenco, [&screen, one] {
                const int row = screen.elenco.row();
                if (row > 0) screen.elenco.click_cell(row, one.column);
            });
        });
    }
}

QWidget* worklist_bar(form_window& window, mirorcr& screen) {
    QHBoxLayout* row = command_row(window, 5);
    QToolButton* confirm = window.dress(screen.bottone[mirorcr::conferma],
                                        {"avanti", "&Conferma", "Evade le righe segnate", "F12"});
    QToolButton* leave = window.dress(screen.bottone[mirorcr::uscita],
                                      {"uscita", "&Esci", "Lascia senza evadere nulla", "Ctrl+Q"});
    add_shortcut(*leave, "Esc");
    add_command(row, confirm, 26, true);
    row->addSpacing(18);
    QAbstractButton* take = window.widget(screen.aggiorna);
    take->setToolTip("La destinazione e il vettore del documento sono quelli del primo ordine");
    add_shortcut(*take, "Alt+G");
    row->addWidget(take);
    row->addStretch(1);
    add_command(row, leave, 26, true);
    return row->parentWidget();
}

QVBoxLayout* help_lines(form_window& window, mirorcr& screen) {
    auto* lines = arranged<QVBoxLayout>(2);
    for (std::size_t i = 0; i < std::size(screen.Label1); ++i) {
        auto* line = new QHBoxLayout;
        auto* keys = new QLabel(grid_keys[i].keys, &window);
        set_look(keys, "role", "faint");
        keys->setMinimumWidth(keys->fontMetrics().horizontalAdvance("F12 "));
        QLabel* text = window.widget(screen.Label1[i]);
        text->setWordWrap(true);
        line->addWidget(keys, 0, Qt::AlignTop);
        line->addWidget(text, 1);
        lines->addLayout(line);
    }
    return lines;
}

}  // namespace

void lay_out(form_window& window, mirorcr& screen) {
    auto* body = body_under(worklist_bar(window, screen), window);
    grid_view* view = window.widget(screen.elenco);
    view->setItemDelegate(new leaving_rows(view));
    QLineEdit* quantity = window.widget(screen.quantita);
    quantity->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    set_look(quantity, "look", "over");
    view->keep_over(quantity, mirorcr::evaso);
    new editor_keys(window, screen);
    if (window.by_person()) view->begin_at_first();
    add_grid_keys(window, screen);

    body->addWidget(view, 1);
    body->addWidget(stock_line(window, screen.scorta));
    auto* foot = arranged<QHBoxLayout>(24);
    foot->addLayout(help_lines(window, screen), 1);
    QLabel* marked = window.widget(screen.segnate);
    set_look(marked, "role", "total");
    foot->addWidget(marked, 0, Qt::AlignBottom);
    body->addLayout(foot);

    window.set_sizes({900, 480}, {1280, 690});
}

}  // namespace vantora::ui::desktop
