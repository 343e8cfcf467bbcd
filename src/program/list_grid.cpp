#include "program/list_grid.h"

#include <algorithm>
#include <cmath>

namespace vantora {

namespace {

ui::colour stored_colour(double value) {
    const double nearest = std::nearbyint(value);
    if (!(nearest >= 0 && nearest <= ui::white)) return ui::white;
    return static_cast<ui::colour>(nearest);
}

}  // namespace

void empty_list(ui::grid& list) {
    list.set_rows(1);
    list.set_rows(righe_riservate);
}

void cut_list(ui::grid& list, int rows_in_use, int minimum) {
    list.set_rows(std::max(rows_in_use, minimum));
}

void paint_stripes(ui::grid& list, int last_col, const rec_gnr& parameters) {
    if (parameters.righe_alternate.full() != "1") return;
    const ui::colour even = stored_colour(parameters.colore_riga_pari);
    const ui::colour odd = stored_colour(parameters.colore_riga_dispari);
    for (int row = 1; row < list.rows(); ++row) {
        list.set_back_colour(row, 0, last_col, row % 2 == 0 ? even : odd);
    }
}

void sort_list(ui::grid& list, int col, ui::sort_order by, int rows_in_use, int minimum,
               int last_col, const rec_gnr& parameters, ui::desk& desk) {
    const int shown_rows = list.rows();
    const bool has_blanks = rows_in_use < minimum;
    if (has_blanks) list.set_rows(rows_in_use);
    list.sort(col, by);
    desk.let_events_run();
    if (has_blanks) list.set_rows(shown_rows);
    paint_stripes(list, last_col, parameters);
    list.set_focus();
}

}  // namespace vantora
