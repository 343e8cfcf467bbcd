#pragma once

#include <QString>

#include "ui/paper/recorded_pages.h"

class QPagedPaintDevice;
class QPrinter;
class QWidget;

namespace vantora::ui::desktop {

/// Draws recorded pages on a printer or into a file. False if it can't begin.
bool draw_pages(const recorded_pages& pages, QPagedPaintDevice& on);

/// Shows the pages of a job, set for `printer`, and waits; the user may save them as a PDF file on
/// the way. True if they are to be printed.
bool wants_printed(const recorded_pages& pages, QPrinter& printer, const QString& called,
                   QWidget* above);

}  // namespace vantora::ui::desktop
