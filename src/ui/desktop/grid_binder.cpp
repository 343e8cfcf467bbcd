#include <QAbstractTableModel>
#include <QColor>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTableView>

#include "ui/desktop/grid_view.h"
#include "ui/desktop/kinds.h"
#include "ui/desktop/widget_binder.h"
#include "ui/grid.h"

namespace vantora::ui::desktop {

namespace {

/// Shows a grid's cells where they are, without copying them. Row 0 of the grid is the header.
class cells_model final : public QAbstractTableModel {
 public:
    cells_model(const grid& table, QObject* parent) : QAbstractTableModel(parent), grid_(table) {}

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
                return shown(grid_.text(row, col));
            case Qt::BackgroundRole:
                return colour_of(grid_.back_colour(row, col));
            case Qt::TextAlignmentRole:
                return aligned(col);
            default:
                return {};
        }
    }
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation along, int role) const override {
        if (along != Qt::Horizontal) return {};
        if (role == Qt::DisplayRole) return shown(grid_.text(0, section));
        if (role == Qt::TextAlignmentRole) return aligned(section);
        return {};
    }
    void reset() {
        beginResetModel();
        endResetModel();
    }

 private:
    static QColor colour_of(colour back) {
        return {static_cast<int>(back & 0xFF), static_cast<int>(back >> 8 & 0xFF),
                static_cast<int>(back >> 16 & 0xFF)};
    }
    [[nodiscard]] QVariant aligned(int col) const {
        const auto& columns = grid_.columns();
        const bool right = static_cast<std::size_t>(col) < columns.size() &&
                           columns[static_cast<std::size_t>(col)].aligned == alignment::right;
        return static_cast<int>((right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }

    const grid& grid_;
};

class grid_binder final : public widget_binder {
 public:
    grid_binder(grid& model, QWidget* parent, const user_action& act)
        : widget_binder(model, new grid_view(model, parent), act),
          view_(as<grid_view>()),
          model_(model),
          cells_(new cells_model(model, view_)) {
        view_->setModel(cells_);
        connect(view_, &QTableView::clicked, this,
                [this](const QModelIndex& index) { click(index.row() + 1, index.column()); });
        connect(view_->horizontalHeader(), &QHeaderView::sectionClicked, this,
                [this](int section) { click(0, section); });
        connect(view_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
                [this](const QModelIndex& now) {
                    if (showing() || !now.isValid()) return;
                    this->act([&] { model_.set_row(now.row() + 1); });
                });
        connect(view_->verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
            if (!showing()) this->act([&] { model_.set_top_row(value + 1); });
        });
        // A top row set before the view had its size and rows comes true when it has them.
        connect(view_->verticalScrollBar(), &QScrollBar::rangeChanged, this, [this] {
            if (showing()) return;
            const quiet while_showing(*this);
            if (model_.visible()) show_top_row();
        });
        show_all();
    }

 private:
    void click(int row, int col) {
        act([&] { model_.click_cell(row, col); });
    }

    void show_value(aspect what) override {
        if (!model_.visible()) {
            stale_ = true;
            return;
        }
        if (what == aspect::shape) {
            cells_->reset();
            view_->share_width();
        }
        if (what == aspect::shape || what == aspect::position) show_position();
        if (what == aspect::content) view_->viewport()->update();
    }

    void changed(aspect what) override {
        widget_binder::changed(what);
        if (what != aspect::visibility || !model_.visible() || !stale_) return;
        stale_ = false;
        widget_binder::changed(aspect::shape);
    }

    void show_position() {
        const QModelIndex here = cells_->index(model_.row() - 1, 0);
        if (view_->currentIndex().row() != here.row()) {
            view_->selectionModel()->setCurrentIndex(
                here, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        }
        show_top_row();
    }

    void show_top_row() {
        if (view_->verticalScrollBar()->value() + 1 != model_.top_row()) {
            view_->verticalScrollBar()->setValue(model_.top_row() - 1);
        }
    }

    bool key_pressed(QKeyEvent& event) override {
        if (widget_binder::key_pressed(event)) return true;
        const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
        if (!enter || !view_->currentIndex().isValid()) return false;
        click(view_->currentIndex().row() + 1, 0);
        return true;
    }

    grid_view* view_;
    grid& model_;
    cells_model* cells_;
    bool stale_ = false;  ///< the grid changed while it was hidden
};

}  // namespace

std::unique_ptr<binder> bind_grid(control& to, QWidget* parent, const user_action& act) {
    return std::make_unique<grid_binder>(static_cast<grid&>(to), parent, act);
}

}  // namespace vantora::ui::desktop
