#pragma once

#include <QString>
#include <set>
#include <string>

#include "desktop/lists/shown_list.h"

class QWidget;

namespace vantora::ui::desktop {

/// A cell as spreadsheets may have it: what they would take for a formula gets an apostrophe in
/// front; numbers stay numbers. They may pass over blanks and control characters, and take quotes
/// off what is pasted.
std::string harmless(std::string_view cell);

/// The rows as spreadsheets paste them: cells behind tabs, in UTF-8.
std::string tabbed_text(const shown_list& list, const std::set<int>& rows);

/// Asks for a file, proposing a name, and saves the list there as CSV; a box tells if that fails.
void save_list(const shown_list& list, const QString& called, QWidget* above);

}  // namespace vantora::ui::desktop
