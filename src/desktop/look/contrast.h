#pragma once

#include <QColor>

namespace vantora::ui {

/// What a text needs to be read by weak eyes too.
constexpr double text_contrast_min = 4.5;

/// How much two colours differ in brightness, 1 to 21, as web pages are measured.
double contrast(const QColor& one, const QColor& other);

/// The usual colour of texts, or black or white where it couldn't be read.
QColor readable_on(const QColor& background);

}  // namespace vantora::ui
