#pragma once

#include <algorithm>
#include <functional>
#include <string_view>

#include "program/program.h"
#include "ui/desk.h"
#include "ui/grid.h"

namespace vantora {

// What the lists of all screens share: they are filled behind a hidden grid, never show less than
// a page of rows, are striped, and are sorted without their blank rows.

/// Rows that a list reserves while it is filled, head included.
inline constexpr int righe_riservate = 32000;
/// Rows that the lists of records take, without the head; what lies beyond isn't listed.
inline constexpr int righe_elencabili = righe_riservate - 2;

/// Shows the user how far a list is while it takes long, in the place where the list will be. The
/// windows are painted meanwhile; what the user does waits until the list is there.
class list_progress {
 public:
    list_progress(ui::desk& desk, ui::control& list) : desk_(desk), list_(list) {
        desk_.show_progress(list_, 0);
    }
    list_progress(const list_progress&) = delete;
    list_progress& operator=(const list_progress&) = delete;
    ~list_progress() { desk_.end_progress(list_); }

    /// `done` steps of `of`. Cheap enough for every row.
    void come_to(int done, int of) {
        if (++calls_ % calls_a_look == 0 || done == of)
            desk_.show_progress(list_, double(done) / of);
    }

 private:
    static constexpr unsigned calls_a_look = 16;

    ui::desk& desk_;
    ui::control& list_;
    unsigned calls_ = 0;
};

/// The rows of a list while it is filled, one behind the other.
class list_rows {
 public:
    /// `most`: rows that the list takes, without the head.
    list_rows(ui::desk& desk, ui::grid& list, int most = righe_elencabili)
        : list_(list), most_(most), progress_(desk, list) {}

    /// Whether nothing further can be listed.
    [[nodiscard]] bool full() const { return in_use_ > most_; }
    /// Starts the next row. What is written behind those that the list takes is lost.
    void next() { ++in_use_; }
    /// Writes into the row at hand.
    void write(int col, std::string_view text) {
        if (in_use_ > most_ + 1) return cut_here();
        list_.set_text(in_use_ - 1, col, text);
    }
    /// Whether the list lacks rows that have no place in it.
    [[nodiscard]] bool cut() const { return cut_; }
    void cut_here() { cut_ = true; }
    /// Rows in use, head included.
    [[nodiscard]] int in_use() const { return std::min(in_use_, most_ + 1); }
    /// So much of the work is done, for the user to see.
    void come_to(int done, int of) { progress_.come_to(done, of); }

 private:
    ui::grid& list_;
    int most_;
    int in_use_ = 1;
    bool cut_ = false;
    list_progress progress_;
};

/// A list over a grid of a screen: builds it, sorts it, knows how many of its rows are in use. Its
/// steps also stand alone, for a screen that lets the user work while its list fills.
class list_grid {
 public:
    /// `minimum`: the grid never shows fewer rows, head included. `last_col`: the stripes go from
    /// column 0 to here or the last one. REQUIRES: grid and program outlive the list.
    list_grid(ui::grid& grid, program& app, int minimum, int last_col)
        : grid_(grid), app_(app), minimum_(minimum), last_col_(last_col) {}

    using filling = std::function<void(list_rows&)>;

    /// Fills the list anew, hidden and under the busy pointer. A focus on the grid stays there.
    void build(const filling& fill);
    /// Sorts the list, with its blank rows kept at the bottom, lets pending events run, and puts
    /// the focus on the grid. What those events make of the list stays.
    void sort(int col, ui::sort_order by);

    /// Rows in use, head included.
    [[nodiscard]] int in_use() const { return in_use_; }

    // The steps of a build ----------------------------------------------------------------------

    /// Empties the list down to its head and reserves its room.
    void empty();
    /// Cuts the list to the rows in use, but never below its minimum, and stripes it.
    void finish(int in_use);
    /// Stripes all rows, blank ones too, if the company wants its lists striped.
    void paint_stripes();

 private:
    ui::grid& grid_;
    program& app_;
    int minimum_;
    int last_col_;
    int in_use_ = 1;
};

}  // namespace vantora
