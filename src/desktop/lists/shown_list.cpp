#include "desktop/lists/shown_list.h"

#include <QAbstractItemView>
#include <algorithm>
#include <numeric>

#include "text/code_page.h"
#include "ui/grid.h"
#include "ui/list_controls.h"

namespace vantora::ui::desktop {

namespace {

const grid& as_grid(const control& model) {
    return static_cast<const grid&>(model);
}

const list_control& as_list(const control& model) {
    return static_cast<const list_control&>(model);
}

}  // namespace

int shown_list::rows() const {
    return is_grid() ? as_grid(model_).rows() - 1 : as_list(model_).count();
}

std::vector<int> shown_list::columns() const {
    std::vector<int> shown;
    if (!is_grid()) {
        shown.resize(std::max<std::size_t>(as_list(model_).columns.size(), 1));
        std::iota(shown.begin(), shown.end(), 0);
        return shown;
    }
    const auto& all = as_grid(model_).columns();
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (all[i].width != 0) shown.push_back(static_cast<int>(i));
    }
    return shown;
}

std::string_view shown_list::head(int column) const {
    if (is_grid()) return as_grid(model_).text(0, column);
    const auto& columns = as_list(model_).columns;
    return columns.empty() ? std::string_view() : columns[static_cast<std::size_t>(column)].head;
}

std::string_view shown_list::text(int row, int column) const {
    if (is_grid()) return trimmed(as_grid(model_).text(row + 1, column));
    const list_control& list = as_list(model_);
    const std::string& entry = list.item(row);
    return list.columns.empty() ? trimmed(entry)
                                : list.columns[static_cast<std::size_t>(column)].text(entry);
}

bool shown_list::holds_text(int row) const {
    if (row < 0 || row >= rows()) return false;
    for (const int column : columns()) {
        if (!text(row, column).empty()) return true;
    }
    return false;
}

QModelIndex shown_list::index(int row, int column) const {
    return view_.model()->index(row, is_grid() ? column : 0);
}

int shown_list::current() const {
    return view_.currentIndex().row();
}

void shown_list::go_to(int row) const {
    view_.setCurrentIndex(index(row, std::max(view_.currentIndex().column(), 0)));
    show(row);
}

void shown_list::show(int row) const {
    view_.scrollTo(index(row, columns().front()));
}

int shown_list::row_at(const QPoint& place) const {
    return view_.indexAt(place).row();
}

QRect shown_list::place_of(int row, int column) const {
    return view_.visualRect(index(row, column));
}

}  // namespace vantora::ui::desktop
