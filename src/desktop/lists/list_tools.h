#pragma once

class QAbstractItemView;
class QWidget;

namespace vantora::ui {
class control;
}

namespace vantora::ui::desktop {

/// Gives a list of a window what lists have in common: the line that finds in it, marks of several
/// rows, copying and saving, and a menu of all that; what a layout adds to the view as an action
/// stands in the menu too. REQUIRES: the window is laid out.
void add_list_tools(QWidget& window, const control& list, QAbstractItemView& view);

}  // namespace vantora::ui::desktop
