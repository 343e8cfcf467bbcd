#pragma once

#include <algorithm>
#include <string_view>

#include "program/list_grid.h"

namespace vantora {

/// The list of a report while it is filled, row by row. What lies beyond its room is lost.
class report_list {
 public:
    explicit report_list(ui::grid& elenco) : elenco_(elenco) {}

    /// Rows that a list takes, without the head.
    static constexpr int massimo = righe_riservate - 1;

    /// Whether nothing further can be listed.
    [[nodiscard]] bool full() const { return rows_ >= righe_riservate; }
    void next_row() { ++rows_; }
    /// Writes into the row at hand.
    void write(int col, std::string_view text) { elenco_.set_text(rows_ - 1, col, text); }
    /// Rows in use, head included.
    [[nodiscard]] int rows() const { return std::min(rows_, righe_riservate); }

 private:
    ui::grid& elenco_;
    int rows_ = 1;
};

}  // namespace vantora
