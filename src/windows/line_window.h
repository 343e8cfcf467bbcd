#pragma once

#include <vector>

#include "entry/line_grid.h"
#include "windows/layout_pieces.h"

namespace vantora::ui::desktop {

/// A command of `comando`, by its index.
struct line_command {
    int index;
    command_look look;
    const char* before = "";  ///< a caption for it and those behind it
};

/// In what such screens differ besides.
struct line_window_parts {
    const label* head = nullptr;  ///< tells which order or document it is
    QWidget* above = nullptr;     ///< between the commands and the lines
};

/// Arranges a screen in which an order's lines are edited: its commands in the order given, the
/// lines, the list of articles beside them, the stock line, options and totals.
void lay_out_lines(form_window& window, line_grid& screen,
                   const std::vector<line_command>& commands, const line_window_parts& parts);

}  // namespace vantora::ui::desktop
