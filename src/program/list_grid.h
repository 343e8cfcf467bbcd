#pragma once

#include "store/records/rec_gnr.h"
#include "ui/desk.h"
#include "ui/grid.h"

namespace vantora {

// What the lists of all screens share: they are filled behind a hidden grid, never show less than
// a page of rows, are striped, and are sorted without their blank rows.

/// Rows that a list reserves while it is filled, head included; what lies beyond isn't listed.
inline constexpr int righe_riservate = 32000;

/// Empties a list down to its head and reserves its room.
void empty_list(ui::grid& list);

/// Cuts a filled list to the rows in use, head included, but never below `minimum`.
void cut_list(ui::grid& list, int rows_in_use, int minimum);

/// Stripes all rows from column 0 to `last_col`, if the company wants its lists striped.
void paint_stripes(ui::grid& list, int last_col, const rec_gnr& parameters);

/// Sorts a list by a column with its blank rows kept at the bottom: `rows_in_use`, head included,
/// below `minimum` means that there are some. Stripes it again and puts the focus on it.
void sort_list(ui::grid& list, int col, ui::sort_order by, int rows_in_use, int minimum,
               int last_col, const rec_gnr& parameters, ui::desk& desk);

}  // namespace vantora
