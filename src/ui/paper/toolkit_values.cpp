#include "ui/paper/toolkit_values.h"

#include <QStringList>
#include <algorithm>

#include "text/code_page.h"

namespace vantora::ui {

QString to_qt(std::string_view text) {
    std::string printable;
    printable.reserve(text.size());
    for (const char character : text) {
        const auto code = static_cast<unsigned char>(character);
        if (code >= 32 && code != 127) printable.push_back(character);
    }
    return QString::fromStdString(to_utf8(printable));
}

QString to_qt_lines(std::string_view text) {
    QStringList lines;
    for (std::size_t at = 0; at <= text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        lines << to_qt(text.substr(at, end - at));
        at = end + 1;
    }
    return lines.join('\n');
}

std::string from_qt(const QString& text) {
    return from_utf8(text.toStdString());
}

QColor toolkit_colour(colour from) {
    return {static_cast<int>(from & 0xFF), static_cast<int>(from >> 8 & 0xFF),
            static_cast<int>(from >> 16 & 0xFF)};
}

QImage image_of(const bitmap& points) {
    QImage image(points.width, points.height, QImage::Format_ARGB32);
    const colour* point = points.points.data();
    for (int y = 0; y < points.height; ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < points.width; ++x, ++point) {
            row[x] = *point == transparent_grey ? 0U : toolkit_colour(*point).rgb();
        }
    }
    return image;
}

}  // namespace vantora::ui
