#pragma once

#include <QStringList>

#include "ui/paper/toolkit_values.h"

namespace vantora::ui::desktop {

/// A text of the code page with its line breaks; shown() alone leaves them out.
inline QString shown_lines(std::string_view text) {
    QStringList lines;
    for (std::size_t at = 0; at <= text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        lines << shown(text.substr(at, end - at));
        at = end + 1;
    }
    return lines.join('\n');
}

}  // namespace vantora::ui::desktop
