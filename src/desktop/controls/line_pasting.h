#pragma once

#include <QString>
#include <optional>
#include <string>

#include "ui/text_controls.h"

class QWidget;

namespace vantora::ui::desktop {

/// Lines for an order that lie on the clipboard, in the files' code page; empty for other texts.
std::optional<std::string> lines_on_clipboard();

/// The same from a file in UTF-8, UTF-16 or the files' own code page; a box tells if it can't be
/// read.
std::optional<std::string> lines_of_file(const QString& file, QWidget* above);

/// Pastes lines into a field that takes them; where it takes long, the user sees how far it is and
/// may break it off.
void paste_lines(text_box& field, const pasted_text& pasted, QWidget* above);

}  // namespace vantora::ui::desktop
