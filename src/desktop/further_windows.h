#pragma once

namespace vantora::ui::desktop {

class form_window;

/// The windows that a screen opens beyond the system's own: by their keys, and by a menu in its bar
/// of commands. Nothing for a screen that opens none.
void add_further_windows(form_window& window);

}  // namespace vantora::ui::desktop
