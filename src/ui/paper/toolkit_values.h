#pragma once

#include <QColor>
#include <QImage>
#include <QString>
#include <string>
#include <string_view>

#include "ui/bitmap.h"

namespace vantora::ui {

// What files and models hold, as the toolkit takes it.

/// A text of the code page; control characters show as nothing.
QString to_qt(std::string_view text);

/// The same with its line breaks.
QString to_qt_lines(std::string_view text);

/// A text of the toolkit in the code page.
std::string from_qt(const QString& text);

QColor toolkit_colour(colour from);

/// The points of a picture; the light grey ones are transparent.
QImage image_of(const bitmap& points);

}  // namespace vantora::ui
