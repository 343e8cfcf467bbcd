#pragma once

namespace vantora::ui::desktop {

class form_window;

/// Gives every list of a window what lists have in common: the line that finds in it, marks of
/// several rows, copying and saving, and a menu of all that; what a layout adds to the view as an
/// action stands in the menu too. REQUIRES: the window is laid out.
void add_list_tools(form_window& window);

}  // namespace vantora::ui::desktop
