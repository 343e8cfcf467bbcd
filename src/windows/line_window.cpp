#include "windows/line_window.h"

#include <QApplication>
#include <QHelpEvent>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QStyledItemDelegate>

#include "desktop/controls/line_pasting.h"
#include "desktop/dialogs/file_dialog.h"
#include "desktop/keys/manual.h"
#include "desktop/look/tip.h"
#include "desktop/look/words.h"
#include "entry/article_list.h"
#include "windows/growing_part.h"
#include "windows/line_rows.h"

namespace vantora::ui::desktop {

namespace {

constexpr int rows = line_rows::count;
constexpr QSize lines_as_designed(1360, 720);
constexpr int tallest_row = 4;          ///< lines of text
constexpr int cell_margins = 16;        ///< dots, with the cursor's; the description needs the rest
constexpr int widest_description = 80;  ///< characters
constexpr int least_description = 208;  ///< dots
constexpr int list_width = 355;         ///< dots, for codes and whole descriptions
constexpr int frame_margin = 14;        ///< dots, as frames are drawn, with some room to spare

struct column {
    text_box (line_grid::*cells)[line_grid::rows];
    const char* head;  ///< empty: the column before has it for both
    int characters;    ///< width; 0 takes what is left
    bool number;
};

constexpr column columns[] = {
    {&line_grid::artic, "Articolo", 13, false},  // a bar code
    {&line_grid::ds, "Descrizione", 0, false},    {&line_grid::um, "U.m.", 3, false},
    {&line_grid::quantita, "Quantità", 10, true}, {&line_grid::evaso, "Evaso", 7, true},
    {&line_grid::sc1, "Sconti", 4, true},         {&line_grid::sc2, "", 4, true},
    {&line_grid::prezzo, "Prezzo", 11, true},     {&line_grid::civ, "Iva", 2, false},
};

QWidget* command_bar(form_window& window, line_grid& screen,
                     const std::vector<line_command>& commands) {
    QHBoxLayout* row = command_row(window, 5);
    for (const line_command& one : commands) {
        // Leaving stands apart.
        if (one.index == uscita) row->addStretch(1);
        if (*one.before != '\0') {
            row->addSpacing(10);
            row->addWidget(caption(one.before, row->parentWidget()));
        }
        add_command(row, window.dress(screen.comando[one.index], one.look), 26);
    }
    return row->parentWidget();
}

void add_column(form_window& window, text_box (&column_cells)[line_grid::rows], QGridLayout* cells,
                const column& one) {
    const int at = cells->columnCount();
    if (*one.head == '\0') {
        cells->addWidget(cells->itemAtPosition(0, at - 1)->widget(), 0, at - 1, 1, 2);
    } else {
        auto* head = new QLabel(one.head, &window);
        set_look(head, "role", "faint");
        head->setContentsMargins(5, 0, 5, 0);
        if (one.number) head->setAlignment(Qt::AlignRight);
        cells->addWidget(head, 0, at);
    }
    for (int row = 0; row < rows; ++row) {
        QLineEdit* cell = window.widget(column_cells[row]);
        if (one.number) cell->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        sized(cell, one.characters > 0 ? one.characters : widest_description, cell_margins);
        if (one.characters == 0) cell->setMinimumWidth(least_description);
        cell->setMinimumHeight(cell->fontMetrics().height() + 6);
        cell->setSizePolicy(cell->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        cells->addWidget(cell, row + 1, at);
    }
    if (one.characters == 0) cells->setColumnStretch(at, 1);
}

/// The cells of the lines, in rows of one height.
class line_table final : public QWidget {
 public:
    line_table(QWidget* parent) : QWidget(parent), cells_(new QGridLayout(this)) {
        cells_->setContentsMargins(0, 0, 0, 0);
        cells_->setSpacing(1);
    }
    [[nodiscard]] QGridLayout* cells() const { return cells_; }

 protected:
    /// What twelve rows can't share stays below them.
    void resizeEvent(QResizeEvent* event) override {
        QWidget::resizeEvent(event);
        const int heads = cells_->itemAtPosition(0, 1)->sizeHint().height();
        cells_->setContentsMargins(0, 0, 0, std::max(height() - heads - rows, 0) % rows);
    }

 private:
    QGridLayout* cells_;
};

/// The lines move under the cells by pages; the cell keeps the focus.
void add_paging(form_window& window, line_grid& screen, line_rows& lines) {
    for (const int step : {-rows, rows}) {
        QShortcut* keys = add_key(window, step < 0 ? "PgUp" : "PgDown",
                                  step < 0 ? "Dodici righe su" : "Dodici righe giù",
                                  [&lines, step] { lines.scroll(step); });
        keys->setAutoRepeat(true);
    }
    window.widget(screen.VScroll1)->setToolTip("Righe da 1 a 200 (Pag su, Pag giù)");
}

/// Pasting lines and taking back what was done to many at once.
void add_line_keys(form_window& window, line_grid& screen, line_rows& lines) {
    const auto cell = [&screen, &lines]() -> text_box& {
        return screen.artic[std::max(lines.current(), 0)];
    };
    new key_help(window, "Ctrl+V", "Nel codice: incolla righe copiate da un foglio di calcolo");
    add_key(window, "Ctrl+Shift+O", words::paste_file, [&window, cell] {
        const QString chosen =
            ask_what_to_open(words::paste_file, {words::csv_files, "csv"}, &window);
        if (chosen.isEmpty()) return;
        if (const auto text = lines_of_file(chosen, &window)) {
            window.act_on(cell(), [&] { paste_lines(cell(), {*text, true}, &window); });
        }
    });
    // In the cells the keys reach the fields first, which do the same.
    add_key(window, "Ctrl+Z", "Annulla l'ultima modifica delle righe",
            [&window, &screen, cell] { window.act_on(cell(), [&screen] { screen.take_back(); }); });
    QShortcut* forth = add_key(
        window, "Ctrl+Shift+Z", "Rifà la modifica annullata (anche Ctrl+Y)",
        [&window, &screen, cell] { window.act_on(cell(), [&screen] { screen.bring_back(); }); });
    forth->setKeys({QKeySequence("Ctrl+Shift+Z"), QKeySequence("Ctrl+Y")});
}

QGroupBox* line_frame(form_window& window, line_grid& screen) {
    auto* box = new QGroupBox("Dettaglio documento", &window);
    auto* lines = new line_rows(window, screen);
    auto* table = new line_table(box);
    QGridLayout* cells = table->cells();
    for (int row = 0; row < rows; ++row) {
        cells->addWidget(lines->number(row), row + 1, 0);
        cells->setRowStretch(row + 1, 1);
    }
    for (const column& one : columns) {
        auto& of_screen = screen.*one.cells;
        if (!window.has(of_screen[0])) continue;
        lines->add_column(of_screen, one.head);
        add_column(window, of_screen, cells, one);
    }
    lines->show_numbers();
    QScrollBar* bar = window.widget(screen.VScroll1);
    bar->setOrientation(Qt::Vertical);
    bar->setFixedWidth(18);
    bar->setFocusPolicy(Qt::ClickFocus);
    lines->take_wheel_over(table);
    cells->addWidget(bar, 1, cells->columnCount(), rows, 1);
    add_paging(window, screen, *lines);
    add_line_keys(window, screen, *lines);
    new growing_part(window, *table, lines_as_designed, [box, table, cells] {
        table->setMaximumHeight(rows * tallest_row * table->fontMetrics().height());
        table->setMaximumWidth(cells->totalMaximumSize().width());
        box->setMaximumWidth(table->maximumWidth() + 2 * frame_margin);
    });

    add_key(window, "F4", "Sceglie il codice iva della riga", [&window, &screen, lines] {
        if (lines->current() < 0) return;
        text_box& cell = screen.civ[lines->current()];
        window.act_on(cell, [&cell] { cell.set_focus(); });
    });
    for (int row = 0; row < rows; ++row) {
        window.widget(screen.civ[row])->setToolTip("Sceglie il codice iva (F4)");
        keep_f1(*window.widget(screen.ds[row]));
        if (window.has(screen.evaso[row])) {
            set_look(window.widget(screen.evaso[row]), "role", "told");
        }
    }

    add_key(window, "F2", "Torna alla cella di prima", [lines] { lines->go_back(); });
    box->setToolTip("F2: torna alla cella di prima");

    auto* hint =
        new QLabel("Per cercare un articolo tramite la descrizione, inserirla e premere F1)", box);
    set_look(hint, "role", "faint");
    auto* all = arranged<QVBoxLayout>(box, {0, 0, 0, 0});
    all->addStretch(0);
    all->addWidget(table, 1);
    all->addWidget(hint);
    all->addStretch(0);
    return box;
}

// The list of articles ---------------------------------------------------------------------------

constexpr int entry_margin = 6;  // dots
constexpr const char* wide_code = "WAG00000";

/// Shows the entries of the article list, of which each is a code and a description in fixed
/// widths and a record number far to the right: code and description in two columns, the number
/// not at all.
class article_entries final : public QStyledItemDelegate {
 public:
    article_entries(const list_control& articles, QObject* parent)
        : QStyledItemDelegate(parent), articles_(articles) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem row = option;
        initStyleOption(&row, index);
        row.text.clear();
        const QStyle* style = row.widget ? row.widget->style() : QApplication::style();
        style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);

        const bool chosen = (row.state & QStyle::State_Selected) != 0;
        const bool enabled = (row.state & QStyle::State_Enabled) != 0;
        painter->setPen(row.palette.color(enabled ? QPalette::Active : QPalette::Disabled,
                                          chosen ? QPalette::HighlightedText : QPalette::Text));
        painter->setFont(row.font);
        const QFontMetrics& metrics = row.fontMetrics;
        const QRect room = row.rect.adjusted(entry_margin, 0, -entry_margin, 0);
        const QString code = to_qt(entry_code(articles_.item(index.row())));
        const int column =
            std::max(metrics.horizontalAdvance(wide_code), metrics.horizontalAdvance(code)) +
            entry_margin;
        painter->drawText(room, Qt::AlignVCenter | Qt::TextSingleLine, code);
        const QRect rest = room.adjusted(column, 0, 0, 0);
        const QString description = to_qt(entry_description(articles_.item(index.row())));
        // Sizes and makers, which tell articles of a kind apart, stand at the end.
        painter->drawText(rest, Qt::AlignVCenter | Qt::TextSingleLine,
                          metrics.elidedText(description, Qt::ElideMiddle, rest.width()));
    }

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex&) const override {
        return {100, option.fontMetrics.height() + 4};
    }

    /// The description may be wider than the list: its tooltip has it all.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem&,
                   const QModelIndex& index) override {
        if (event->type() != QEvent::ToolTip || !index.isValid()) return false;
        show_tip(event->globalPos(), to_qt(entry_description(articles_.item(index.row()))), view);
        return true;
    }

 private:
    const list_control& articles_;
};

QGroupBox* list_frame(form_window& window, line_grid& screen) {
    auto* box = new QGroupBox("Lista articoli memorizzati in magazzino", &window);
    auto* column = arranged<QVBoxLayout>(box, {0, 0, 0, 0});
    list_control& articles = screen.lookup().List1;
    QListView* list = window.widget(screen.lookup().List1);
    list->setFocusPolicy(Qt::ClickFocus);
    list->setItemDelegate(new article_entries(articles, list));
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    column->addWidget(list, 1);
    auto* line = new QHBoxLayout;
    line->addWidget(
        plain_command(window, screen.command3d3,
                      {"aggiorna", "&Ricarica", "Rilegge la lista degli articoli", "F5"}));
    line->addWidget(
        plain_command(window, screen.riordina,
                      {"riordina", "Ri&ordina righe", "Ordina le righe per codice", "Ctrl+R"}));
    line->addStretch(1);
    column->addLayout(line);
    return box;
}

struct choice {
    const control& shown;
    const char* keys;
    const char* tooltip;
};

QGridLayout* choice_table(form_window& window, line_grid& screen) {
    const choice choices[] = {
        {screen.prezz[0], "Alt+1", "Le righe prendono il primo prezzo dell'articolo"},
        {screen.prezz[1], "Alt+2", "Le righe prendono il secondo prezzo dell'articolo"},
        {screen.lookup().barcode, "Alt+B", "Le righe si registrano per codice a barre"},
        {screen.impegno, "Alt+G", "L'ordine impegna la giacenza degli articoli"},
        {screen.postael, "Alt+M", "Il documento si spedisce per posta elettronica"},
        {screen.eva, "Alt+V", "L'ordine non ha altro da evadere"},
    };
    auto* table = new QGridLayout;
    table->setVerticalSpacing(4);
    table->setHorizontalSpacing(18);
    int at = 0;
    for (const choice& one : choices) {
        if (!window.has(one.shown)) continue;
        auto& button = static_cast<QAbstractButton&>(window.widget_of(one.shown));
        button.setToolTip(one.tooltip);
        add_shortcut(button, one.keys);
        table->addWidget(&button, at % 2, at / 2);
        ++at;
    }
    return table;
}

struct total_look {
    totale_mostrato which;
    const char* caption;
};

constexpr total_look totals[] = {{totale_mostrato::imponibile, "Totale imponibile"},
                                 {totale_mostrato::complessivo, "Totale complessivo"},
                                 {totale_mostrato::pezzi, "Numero pezzi"}};

QHBoxLayout* foot_line(form_window& window, line_grid& screen) {
    auto* foot = arranged<QHBoxLayout>(12);
    QGridLayout* options = choice_table(window, screen);
    foot->addLayout(options);
    foot->setAlignment(options, Qt::AlignVCenter);
    foot->addStretch(1);
    for (const auto& [which, words] : totals) {
        QLabel* total = window.widget(screen.label_of(which));
        set_look(total, "role", "total");
        total->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        total->setFixedWidth(150);
        total->setProperty("plain_number", which == totale_mostrato::pezzi);
        auto* column = arranged<QVBoxLayout>(2);
        auto* text = caption(words, &window);
        set_look(text, "role", "faint");
        column->addWidget(text);
        column->addWidget(total);
        foot->addLayout(column);
    }
    return foot;
}

}  // namespace

void lay_out_lines(form_window& window, line_grid& screen,
                   const std::vector<line_command>& commands, const line_window_parts& parts) {
    auto* all = arranged<QVBoxLayout>(&window, {0, 0, 0, 0}, 0);
    all->addWidget(command_bar(window, screen, commands));
    if (parts.head) all->addWidget(text_strip(window, *parts.head, "head", {12, 4, 12, 4}));

    auto* body = arranged<QVBoxLayout>(nullptr, {10, 8, 10, 8}, 8);
    if (parts.above) body->addWidget(parts.above);
    // Lines and list share the room as the user wants.
    auto* middle = new QSplitter(Qt::Horizontal, &window);
    middle->setObjectName("righe_e_lista");
    middle->setChildrenCollapsible(false);
    middle->setHandleWidth(10);
    QGroupBox* lines = line_frame(window, screen);
    middle->addWidget(lines);
    middle->addWidget(list_frame(window, screen));
    middle->setStretchFactor(0, 2);
    middle->setStretchFactor(1, 1);
    // The lines have room for what they hold; the list's descriptions want theirs.
    middle->setSizes({lines->minimumSizeHint().width(), list_width});
    body->addWidget(middle, 1);
    // Who works by scripts has a line of his own, of fewer figures.
    window.widget(screen.lookup().listx)->hide();
    body->addWidget(stock_line(window, screen.lookup().scorta));
    body->addLayout(foot_line(window, screen));
    all->addLayout(body, 1);

    window.set_sizes({1040, 560}, {1340, 690});
}

}  // namespace vantora::ui::desktop
