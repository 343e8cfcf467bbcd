#pragma once

#include <nlohmann/json.hpp>

#include "ui/desk.h"

namespace vantora::ui::script {

// What the replies say of the screens and their controls, as JSON in UTF-8.

/// State of a control, by its kind.
nlohmann::json state_of(const control& one);

/// The entries of a list, in the order shown; null for what isn't a list.
nlohmann::json items_of(const control& one);

/// Rows `first` to `last` of a grid as lists of cell texts; null for what isn't a grid.
nlohmann::json rows_of(const control& one, int first, int last);

/// Background colours of column 0 of those rows; null for what isn't a grid.
nlohmann::json colours_of(const control& one, int first, int last);

/// All controls of a screen, by their addresses.
nlohmann::json controls_of(const form& screen);

/// The loaded screens.
nlohmann::json screens_of(const desk& desk);

/// What every reply tells of the desk: active screen, focus, open box, modal screen, waiting, end.
void describe(const desk& desk, nlohmann::json& reply);

/// A box that was answered from the queue.
nlohmann::json answered(const answered_box& box);

}  // namespace vantora::ui::script
