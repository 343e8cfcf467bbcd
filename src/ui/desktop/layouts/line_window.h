#pragma once

#include "ui/desktop/layouts/parts.h"

namespace vantora::ui::desktop {

/// A command of `comando`, by its index.
struct line_command {
    int index;
    command_look look;
};

/// Arranges a screen in which an order's lines are edited: its commands in the order given, the
/// lines, the list of articles beside them, the stock line, options and totals.
void lay_out_line_window(form_window& window, const std::vector<line_command>& commands);

}  // namespace vantora::ui::desktop
