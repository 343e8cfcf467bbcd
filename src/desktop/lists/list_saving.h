#pragma once

#include <QString>
#include <set>
#include <string>

#include "desktop/lists/shown_list.h"

class QWidget;

namespace vantora::ui::desktop {

/// The rows as text for spreadsheets, in UTF-8.
std::string tabbed_text(const shown_list& list, const std::set<int>& rows);

/// The whole list with its heads as a CSV file.
std::string csv_text(const shown_list& list);

/// Asks for a file, proposing a name, and saves the list there; a box tells if that fails.
void save_list(const shown_list& list, const QString& called, QWidget* above);

}  // namespace vantora::ui::desktop
