#pragma once

#include "windows/parts.h"

namespace vantora::ui::desktop {

/// A command of `comando`, by its index.
struct line_command {
    int index;
    command_look look;
};

/// In what such screens differ besides.
struct line_window_parts {
    QWidget* above = nullptr;  ///< between the commands and the lines
    const char* totals[3] = {"Totale imponibile", "Totale complessivo", "Numero pezzi"};
};

/// Arranges a screen in which an order's lines are edited: its commands in the order given, the
/// lines, the list of articles beside them, the stock line, options and totals.
void lay_out_line_window(form_window& window, const std::vector<line_command>& commands,
                         const line_window_parts& parts = {});

}  // namespace vantora::ui::desktop
