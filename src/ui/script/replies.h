#pragma once

#include <limits>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "ui/desk.h"
#include "ui/grid.h"
#include "ui/list_controls.h"
#include "ui/script/kept_answers.h"

namespace vantora::ui::script {

// What the replies say of the screens and their controls, as JSON in UTF-8.

/// Fields keep the order in which they are written here.
using json = nlohmann::ordered_json;

/// State of a control, by its kind.
json state_of(const control& one);

/// The entries of a list, in the order shown.
json items_of(const list_control& list);

/// Rows of a grid, the last one included; all of them at first. What lies outside the grid is left
/// out.
struct row_range {
    int first = 0;
    int last = std::numeric_limits<int>::max();
};

/// Rows as lists of cell texts.
json rows_of(const grid& table, const row_range& range);
/// Background colours of column 0.
json colours_of(const grid& table, const row_range& range);

/// All controls of a screen, by their addresses.
json controls_of(const form& screen);

/// The loaded screens.
json screens_of(const desk& desk);

/// What a command itself has to say.
struct command_reply {
    std::string error;  ///< why it was refused; empty if it was carried out
    json value;         ///< of a query; null if there is none
};

/// The whole reply: the command's part, and how things stand on the desk.
std::string compose(command_reply reply, const desk& desk,
                    const std::vector<answered_box>& answered);

}  // namespace vantora::ui::script
