#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "ui/control.h"

class QAbstractItemView;
class QModelIndex;
class QPoint;
class QRect;

namespace vantora::ui::desktop {

/// A list as it shows, for what finds, marks and copies in it: a grid's visible columns, or the
/// entries of a list box in their columns. Rows count from 0; a grid's head is none of them.
/// REQUIRES: model and view outlive it.
class shown_list {
 public:
    shown_list(const control& model, QAbstractItemView& view) : model_(model), view_(view) {}

    [[nodiscard]] QAbstractItemView& view() const { return view_; }
    [[nodiscard]] bool is_grid() const { return model_.kind() == control_kind::grid; }
    [[nodiscard]] std::uint64_t revision() const { return model_.revision(); }

    [[nodiscard]] int rows() const;
    /// The columns that show, from the left.
    [[nodiscard]] std::vector<int> columns() const;
    [[nodiscard]] std::string_view head(int column) const;
    /// Without blanks at both ends. Valid until the list changes.
    [[nodiscard]] std::string_view text(int row, int column) const;
    /// False for rows that only fill the window up.
    [[nodiscard]] bool holds_text(int row) const;

    /// The row that is highlighted; -1: none.
    [[nodiscard]] int current() const;
    /// Highlights a row and brings it into sight; in a grid it is then the row that Enter takes.
    void go_to(int row) const;
    /// Only brings it into sight.
    void show(int row) const;
    /// The row at a place of the viewport, -1 for none.
    [[nodiscard]] int row_at(const QPoint& place) const;
    /// Where a cell lies in the viewport.
    [[nodiscard]] QRect place_of(int row, int column) const;

 private:
    [[nodiscard]] QModelIndex index(int row, int column) const;

    const control& model_;
    QAbstractItemView& view_;
};

}  // namespace vantora::ui::desktop
