#include <QAbstractTableModel>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTableView>

#include "desktop/controls/binder.h"
#include "desktop/controls/grid_view.h"
#include "desktop/look/contrast.h"
#include "desktop/look/tip.h"
#include "text/number_text.h"
#include "ui/grid.h"

namespace vantora::ui::desktop {

namespace {

/// Shows a grid's cells where they are, without copying them. Row 0 of the grid is the header.
class cells_model final : public QAbstractTableModel {
 public:
    cells_model(const grid& table, grid_view* view)
        : QAbstractTableModel(view), grid_(table), view_(*view) {}

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : grid_.rows() - 1;
    }
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : grid_.cols();
    }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
        const int row = index.row() + 1;
        const int col = index.column();
        switch (role) {
            case Qt::DisplayRole:
                return to_qt(grid_.text(row, col));
            case Qt::BackgroundRole:
                return toolkit_colour(grid_.back_colour(row, col));
            case Qt::ForegroundRole:
                return readable_on(toolkit_colour(grid_.back_colour(row, col)));
            case Qt::TextAlignmentRole:
                return aligned(col);
            case Qt::ToolTipRole: {
                const QVariant told = hint(row);
                return told.isValid() ? told : cut_off(index);
            }
            case Qt::AccessibleTextRole: {
                const QString text = to_qt(grid_.text(row, col));
                const std::string said = col == 0 ? notice(row) : std::string();
                return said.empty() ? text : text + ", " + to_qt(said);
            }
            default:
                return {};
        }
    }
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation along, int role) const override {
        if (along != Qt::Horizontal) return {};
        if (role == Qt::DisplayRole) return to_qt(grid_.text(0, section));
        if (role == Qt::TextAlignmentRole) return aligned(section);
        return {};
    }
    /// Rows that only fill the window up can't be marked.
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override {
        return holds_text(index.row() + 1) ? Qt::ItemIsEnabled | Qt::ItemIsSelectable
                                           : Qt::NoItemFlags;
    }
    [[nodiscard]] bool holds_text(int row) const {
        if (row < 1) return false;
        for (int col = 0; col < grid_.cols(); ++col) {
            if (!grid_.text(row, col).empty()) return true;
        }
        return false;
    }
    [[nodiscard]] int last_filled() const {
        int row = grid_.rows() - 1;
        while (row > 0 && !holds_text(row)) --row;
        return row;
    }
    void reset() {
        beginResetModel();
        endResetModel();
    }

 private:
    [[nodiscard]] std::string notice(int row) const {
        return grid_.notice_of ? grid_.notice_of(row) : std::string();
    }
    [[nodiscard]] QVariant hint(int row) const {
        std::string text = grid_.hint_of ? grid_.hint_of(row) : std::string();
        const std::string said = notice(row);
        if (!said.empty()) text = said + "\n" + text;
        if (text.empty()) return {};
        return plain_tip(to_qt_lines(text));
    }
    [[nodiscard]] QVariant aligned(int col) const {
        const auto& columns = grid_.columns();
        const bool right = static_cast<std::size_t>(col) < columns.size() &&
                           columns[static_cast<std::size_t>(col)].aligned == alignment::right;
        return static_cast<int>((right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }

    /// The text of a cell that its column is too narrow for.
    [[nodiscard]] QVariant cut_off(const QModelIndex& index) const {
        constexpr int margins = 12;  // dots, both sides
        const QString text = to_qt(grid_.text(index.row() + 1, index.column()));
        const int room = view_.columnWidth(index.column()) - margins;
        return view_.fontMetrics().horizontalAdvance(text) > room ? QVariant(plain_tip(text))
                                                                  : QVariant();
    }

    const grid& grid_;
    const grid_view& view_;
};

/// The highlighted row and the first one in sight are those of the model, whoever moves them.
class grid_binder final : public binder_of<grid, grid_view> {
 public:
    grid_binder(grid& model, QWidget* parent, const user& by)
        : binder_of(model, new grid_view(model, parent), by),
          cells_(new cells_model(model, widget_)) {
        widget_->setModel(cells_);
        connect(widget_, &QTableView::clicked, this, [this](const QModelIndex& index) {
            // A row that only fills the window up has nothing to be taken.
            if (!cells_->holds_text(index.row() + 1)) return;
            this->act([&] { model_.click_cell(index.row() + 1, index.column()); });
        });
        connect(widget_->selectionModel(), &QItemSelectionModel::currentChanged, this,
                [this](const QModelIndex& now) {
                    if (!showing() && now.isValid())
                        follow([&] {
                            model_.set_row(now.row() + 1);
                            model_.set_col(now.column());
                        });
                });
        connect(widget_->verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
            if (!showing()) follow([&] { model_.set_top_row(value + 1); });
        });
        // A top row set before the view had its size and rows comes true when it has them.
        connect(widget_->verticalScrollBar(), &QScrollBar::rangeChanged, this, [this] {
            const quiet while_showing(*this);
            if (model_.visible()) show_top_row();
        });
    }

 private:
    /// The model goes where the view went; the view needn't be told.
    template <class Move>
    void follow(const Move& move) {
        following_ = true;
        act([&] {
            move();
            marked_ = model_.text(model_.row(), 0);
        });
        following_ = false;
    }

    void show_value(aspect what) override {
        if (what == aspect::shape && model_.rows() == 1) widget_->show_sorted(-1);
        if (!model_.visible()) {
            stale_ = true;
            return;
        }
        if (what == aspect::shape) {
            cells_->reset();
            widget_->share_width();
            keep_mark();
            if (widget_->begins_at_first() && cells_->holds_text(1)) {
                follow([&] { model_.set_row(1); });
            }
        }
        if (what == aspect::shape || what == aspect::position) show_position();
        if (what == aspect::content) widget_->viewport()->update();
    }

    void changed(aspect what) override {
        if (following_) return;
        binder::changed(what);
        if (what != aspect::visibility || !model_.visible() || !stale_) return;
        stale_ = false;
        binder::changed(aspect::shape);
    }

    /// Where the view wants it, the mark goes with its entry, and to a newer entry than there was.
    void keep_mark() {
        // What stood there before the view was told to is no newer entry later.
        if (!widget_->keeps_mark() && newest_ > 0) return;
        if (!model_.visible() || model_.rows() == 1) return;
        const int filled = cells_->last_filled();
        const int newest = row_of_newest(filled);
        if (newest == 0) return;
        const double number = number_of(newest);
        int row = newest_ > 0 && number > newest_ ? newest : 1;
        newest_ = number;
        if (!widget_->keeps_mark()) return;
        while (row != newest && row <= filled && model_.text(row, 0) != marked_) ++row;
        if (row > filled) return;
        marked_ = model_.text(row, 0);
        follow([&] { model_.set_row(row); });
        brings_into_sight_ = true;
    }

    [[nodiscard]] double number_of(int row) const { return number_at_head(model_.text(row, 0)); }
    /// 0 if the list is empty.
    [[nodiscard]] int row_of_newest(int filled) const {
        int newest = 0;
        for (int row = 1; row <= filled; ++row) {
            if (newest == 0 || number_of(row) > number_of(newest)) newest = row;
        }
        return newest;
    }

    void show_position() {
        const QModelIndex here = cells_->index(model_.row() - 1, model_.col());
        if (widget_->currentIndex() != here) {
            // A current row set by the program doesn't scroll by itself.
            widget_->setAutoScroll(false);
            widget_->selectionModel()->setCurrentIndex(
                here, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
            widget_->setAutoScroll(true);
        }
        show_top_row();
        if (std::exchange(brings_into_sight_, false)) widget_->scrollTo(here);
        widget_->place_followers();
        // Arrow keys move the mark through the model.
        if (model_.row() > 0) marked_ = model_.text(model_.row(), 0);
    }

    void show_top_row() {
        QScrollBar& bar = *widget_->verticalScrollBar();
        bar.setValue(model_.shows_end() ? bar.maximum() : model_.top_row() - 1);
    }

    [[nodiscard]] bool widget_takes(bool typed) const override { return typed; }

    bool key_pressed(QKeyEvent& event) override {
        switch (event.key()) {
            case Qt::Key_Home:
                return go_to(1);
            case Qt::Key_End:
                return go_to(cells_->last_filled());
            case Qt::Key_Up:
            case Qt::Key_Down:
                return arrow_pressed(event);
            default:
                return binder::key_pressed(event);
        }
    }

    bool go_to(int row) {
        if (cells_->holds_text(row)) widget_->setCurrentIndex(cells_->index(row - 1, 0));
        widget_->scrollTo(widget_->currentIndex());
        return true;
    }

    bool arrow_pressed(QKeyEvent& event) {
        // The first arrow goes to what the eye sees.
        if (model_.row() == 0) return go_to(widget_->verticalScrollBar()->value() + 1);
        const bool down = event.key() == Qt::Key_Down;
        const bool taken =
            (down && !cells_->holds_text(model_.row() + 1)) || binder::key_pressed(event);
        if (taken) widget_->scrollTo(widget_->currentIndex());
        return taken;
    }

    cells_model* cells_;
    std::string marked_;  ///< column 0 of the row marked last
    double newest_ = 0;   ///< highest number in column 0 when the list last came
    bool brings_into_sight_ = false;
    bool following_ = false;
    bool stale_ = false;  ///< the grid changed while it was hidden
};

}  // namespace

std::unique_ptr<binder> bind_grid(control& to, QWidget* parent, const user& by) {
    return std::make_unique<grid_binder>(static_cast<grid&>(to), parent, by);
}

}  // namespace vantora::ui::desktop
