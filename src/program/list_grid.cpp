#include "program/list_grid.h"

#include <algorithm>

namespace vantora {

void list_grid::build(const filling& fill) {
    const bool had_focus = grid_.has_focus();
    app_.desk.set_pointer(ui::pointer::busy);
    grid_.set_visible(false);
    empty();
    {
        list_rows rows(app_.desk, grid_);
        fill(rows);
        finish(rows.in_use());
    }
    grid_.set_visible(true);
    if (had_focus) grid_.set_focus();
    app_.desk.set_pointer(ui::pointer::normal);
}

void list_grid::sort(int col, ui::sort_order by) {
    if (in_use_ < minimum_) grid_.set_rows(in_use_);
    grid_.sort(col, by);
    app_.desk.let_events_run();
    // The user may have had the list built anew meanwhile, with more rows.
    grid_.set_rows(std::max(grid_.rows(), minimum_));
    paint_stripes();
    grid_.set_focus();
}

void list_grid::empty() {
    grid_.set_rows(1);
    grid_.set_rows(righe_riservate);
    in_use_ = 1;
}

void list_grid::finish(int in_use) {
    in_use_ = in_use;
    grid_.set_rows(std::max(in_use, minimum_));
    paint_stripes();
}

void list_grid::paint_stripes() {
    const rec_gnr& parameters = app_.parameters.gnr;
    if (parameters.righe_alternate.full() != "1") return;
    const ui::colour even = ui::colour_of(parameters.colore_riga_pari).value_or(ui::white);
    const ui::colour odd = ui::colour_of(parameters.colore_riga_dispari).value_or(ui::white);
    for (int row = 1; row < grid_.rows(); ++row) {
        grid_.set_back_colour(row, 0, std::min(last_col_, grid_.cols() - 1),
                              row % 2 == 0 ? even : odd);
    }
}

}  // namespace vantora
