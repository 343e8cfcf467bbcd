#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <optional>

#include "ui/paper/recorded_pages.h"

class QPagedPaintDevice;
class QPainter;
class QPrinter;
class QWidget;

namespace vantora::ui::desktop {

/// Told how far a drawing is, of 0 to 1; false: it stops.
using draws_on = std::function<bool(double done)>;

/// Draws recorded pages by a painter that has begun. False if it was stopped.
bool draw_pages(const recorded_pages& pages, QPainter& painter, QPagedPaintDevice& on,
                const draws_on& goes_on);

/// The pages as a PDF file, set as for a printer; nothing if it was stopped or can't be drawn.
std::optional<QByteArray> pdf_of(const recorded_pages& pages, const QPrinter& like,
                                 const QString& called, const draws_on& goes_on);

/// Shows the pages of a job, set for `printer`, and waits; the user may save them as a PDF file on
/// the way. True if they are to be printed.
bool wants_printed(const recorded_pages& pages, QPrinter& printer, const QString& called,
                   QWidget* above);

}  // namespace vantora::ui::desktop
