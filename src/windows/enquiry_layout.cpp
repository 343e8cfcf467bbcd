#include "enquiry/enquiry_screen.h"

#include <QAbstractItemModel>
#include <QHelpEvent>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <optional>
#include <vector>

#include "desktop/look/tip.h"
#include "enquiry/quadro.h"
#include "enquiry/ricerca.h"
#include "windows/layout_pieces.h"
#include "windows/layouts.h"

namespace vantora::ui::desktop {

namespace {

// The charts -------------------------------------------------------------------------------------

const QColor bar_colour(0x30, 0x70, 0xb0);
const QColor axis_colour(0x80, 0x8d, 0x99);
const QColor here_ground(0xdc, 0xeb, 0xf8);
const QColor here_frame(0x24, 0x52, 0x7a);
constexpr int side_by_side = 3;
constexpr int air = 14;          ///< between charts, dots
constexpr int gap = 8;           ///< between label, bar and value
constexpr int inside = 4;        ///< between the mark of a bar and its texts
constexpr int tallest_bar = 26;  ///< with the air above and below it
constexpr int whole = 1000;      ///< the longest bar

/// The company's figures as charts, drawn over the list of their bars. The list stays beneath: it
/// has the focus and the keys, and is what those hear who listen. Left and right go from chart to
/// chart, a click opens what stands behind a bar.
class bar_charts final : public QWidget {
 public:
    bar_charts(form_window& window, quadro& screen)
        : QWidget(window.widget(screen.elenco)),
          window_(window),
          screen_(screen),
          list_(*window.widget(screen.elenco)) {
        setObjectName("grafici");
        setFocusPolicy(Qt::NoFocus);
        setMouseTracking(true);
        setAutoFillBackground(true);
        setBackgroundRole(QPalette::Base);
        list_.installEventFilter(this);
        connect(list_.model(), &QAbstractItemModel::modelReset, this, [this] { cover(); });
        connect(list_.selectionModel(), &QItemSelectionModel::currentChanged, this,
                [this] { update(); });
        cover();
    }

 protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        for (const chart& one : charts()) paint_chart(painter, one);
    }

    void mouseMoveEvent(QMouseEvent* event) override {
        setCursor(row_at(event->pos()) ? Qt::PointingHandCursor : Qt::ArrowCursor);
    }

    void mouseReleaseEvent(QMouseEvent* event) override {
        const auto row = row_at(event->pos());
        if (!row || event->button() != Qt::LeftButton) return;
        window_.act_on(screen_.elenco, [this, row] {
            if (screen_.elenco.click_cell(*row, quadro::voce)) {
                screen_.elenco.press_key(key::enter, '\r');
            }
        });
    }

    bool event(QEvent* event) override {
        if (event->type() != QEvent::ToolTip) return QWidget::event(event);
        const auto* asked = static_cast<QHelpEvent*>(event);
        if (const auto row = row_at(asked->pos())) {
            show_tip(asked->globalPos(),
                     text(*row, quadro::voce) + ": " + text(*row, quadro::valore), this);
        }
        return true;
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto kind = event->type();
        if (kind == QEvent::Resize) cover();
        if (kind == QEvent::FocusIn || kind == QEvent::FocusOut) update();
        if (kind == QEvent::KeyPress && isVisible()) {
            const int pressed = static_cast<QKeyEvent*>(event)->key();
            if (pressed == Qt::Key_Left || pressed == Qt::Key_Right) {
                go_to_chart(pressed == Qt::Key_Left ? -1 : 1);
                return true;
            }
        }
        return QWidget::eventFilter(watched, event);
    }

 private:
    struct chart {
        int first_row = 1;
        int rows = 0;
        QRect place;  ///< of its bars; the title stands above
    };

    /// Stands over the list while that holds bars.
    void cover() {
        setGeometry(list_.rect().adjusted(1, 1, -1, -1));
        setVisible(screen_.shows_bars() && !charts().empty());
        // It would stand before the charts.
        list_.setVerticalScrollBarPolicy(isHidden() ? Qt::ScrollBarAlwaysOn
                                                    : Qt::ScrollBarAlwaysOff);
        raise();
        update();
    }

    [[nodiscard]] std::vector<chart> charts() const {
        std::vector<chart> all;
        const int rows = list_.model()->rowCount();
        for (int row = 1; row <= rows && !text(row, quadro::sezione).isEmpty(); ++row) {
            if (all.empty() || text(row - 1, quadro::sezione) != text(row, quadro::sezione)) {
                all.push_back({row, 0, {}});
            }
            ++all.back().rows;
        }
        const int lines = (static_cast<int>(all.size()) + side_by_side - 1) / side_by_side;
        const int title = fontMetrics().height() + 6;
        for (int i = 0; i < static_cast<int>(all.size()); ++i) {
            const int wide = (width() - air) / side_by_side;
            const int tall = (height() - air) / lines;
            all[static_cast<std::size_t>(i)].place =
                QRect(air + i % side_by_side * wide, air + i / side_by_side * tall + title,
                      wide - air, tall - title - air);
        }
        return all;
    }

    [[nodiscard]] QString text(int row, int column) const {
        return list_.model()->index(row - 1, column).data().toString();
    }

    [[nodiscard]] QRect place_of(const chart& in, int row) const {
        const int tall = std::min(tallest_bar, in.place.height() / std::max(in.rows, 1));
        return {in.place.left(), in.place.top() + (row - in.first_row) * tall, in.place.width(),
                tall};
    }

    [[nodiscard]] std::optional<int> row_at(const QPoint& where) const {
        for (const chart& one : charts()) {
            for (int row = one.first_row; row < one.first_row + one.rows; ++row) {
                if (place_of(one, row).contains(where)) return row;
            }
        }
        return {};
    }

    void paint_chart(QPainter& painter, const chart& one) const {
        QFont bold = font();
        bold.setBold(true);
        painter.setFont(bold);
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(QPoint(one.place.left(), one.place.top() - fontMetrics().descent() - 3),
                         text(one.first_row, quadro::sezione));
        painter.setFont(font());
        int labels = 0;
        int values = 0;
        for (int row = one.first_row; row < one.first_row + one.rows; ++row) {
            labels = std::max(labels, fontMetrics().horizontalAdvance(text(row, quadro::voce)));
            values = std::max(values, fontMetrics().horizontalAdvance(text(row, quadro::valore)));
        }
        labels = std::min(labels + 2 * inside, one.place.width() * 9 / 20);
        for (int row = one.first_row; row < one.first_row + one.rows; ++row) {
            paint_bar(painter, one, row, labels, values);
        }
        const int axis = one.place.left() + labels + gap;
        painter.setPen(axis_colour);
        painter.drawLine(axis, one.place.top(), axis,
                         place_of(one, one.first_row + one.rows - 1).bottom());
    }

    void paint_bar(QPainter& painter, const chart& in, int row, int labels, int values) const {
        const QRect place = place_of(in, row);
        if (row == list_.currentIndex().row() + 1) {
            painter.fillRect(place, here_ground);
            if (list_.hasFocus()) {
                painter.setPen(QPen(here_frame, 2));
                painter.drawRect(place.adjusted(1, 1, -1, -1));
            }
        }
        painter.setPen(palette().color(QPalette::Text));
        const QRect label(place.left() + inside, place.top(), labels - inside, place.height());
        painter.drawText(
            label, Qt::AlignLeft | Qt::AlignVCenter,
            fontMetrics().elidedText(text(row, quadro::voce), Qt::ElideRight, label.width()));
        painter.drawText(place.adjusted(0, 0, -inside, 0), Qt::AlignRight | Qt::AlignVCenter,
                         text(row, quadro::valore));
        const int room = place.width() - labels - values - 2 * gap - inside;
        const int length = room * text(row, quadro::millesimi).toInt() / whole;
        painter.fillRect(QRect(place.left() + labels + gap, place.top() + 3, std::max(length, 1),
                               place.height() - 6),
                         bar_colour);
    }

    void go_to_chart(int step) {
        const int now = list_.currentIndex().row() + 1;
        const auto all = charts();
        for (std::size_t i = 0; i < all.size(); ++i) {
            const int down = now - all[i].first_row;
            if (down < 0 || down >= all[i].rows) continue;
            const std::size_t to = i + static_cast<std::size_t>(step);
            if (to >= all.size()) return;
            const int row = all[to].first_row + std::min(down, all[to].rows - 1);
            list_.setCurrentIndex(list_.model()->index(row - 1, 0));
            return;
        }
    }

    form_window& window_;
    quadro& screen_;
    grid_view& list_;
};

// The layout --------------------------------------------------------------------------------------

/// The command that leaves looks alike everywhere; the others are called by their captions alone.
QToolButton* command(form_window& window, const button& one, bool leaves) {
    if (leaves) {
        return plain_command(window, one, {"indietro", "&Indietro", "Torna dov'era prima", "Esc"});
    }
    QToolButton* shown = window.widget(one);
    shown->setToolButtonStyle(Qt::ToolButtonTextOnly);
    set_look(shown, "look", "words");
    return shown;
}

}  // namespace

/// What is looked for, if anything is, and the commands stand above the list; what the list holds
/// is told below it.
void lay_out(form_window& window, enquiry_screen& screen) {
    auto* all = arranged<QVBoxLayout>(&window, {12, 10, 12, 12}, 8);
    auto* line = arranged<QHBoxLayout>(10);
    std::vector<QWidget*> stops;
    if (auto* search = dynamic_cast<ricerca*>(&screen)) {
        QWidget* field = window.widget(search->testo);
        line->addWidget(caption_of(field, "&Testo", &window));
        line->addWidget(field, 1);
        stops.push_back(field);
    } else {
        line->addStretch(1);
    }
    stops.push_back(window.widget(screen.elenco));
    for (int i = screen.commands() - 1; i >= 0; --i) {
        QToolButton* one = command(window, screen.bottone[i], i == 0);
        line->addWidget(one);
        stops.push_back(one);
    }
    line->addWidget(help_button(window));
    all->addLayout(line);
    all->addWidget(window.widget(screen.elenco), 1);
    all->addWidget(window.widget(screen.esito));
    window.set_tab_order(stops);
    if (auto* figures = dynamic_cast<quadro*>(&screen)) {
        new bar_charts(window, *figures);
        window.set_sizes({960, 580}, {1280, 680});
        return;
    }
    window.set_sizes({760, 420}, {1040, 600});
}

}  // namespace vantora::ui::desktop
