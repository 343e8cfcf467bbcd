#include "ui/desktop/page_painter.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "ui/desktop/binder.h"

namespace vantora::ui::desktop {

namespace {

constexpr double pen_width = 0.2;      // millimetres
constexpr double largest_tile = 0.6;   // millimetres
constexpr int largest_raster = 4096;   // points along one side
constexpr double raster_slack = 0.25;  // parts of a tile
constexpr std::size_t fewest_tiles = 16;

/// Fonts of the same widths for the usual ones, where those aren't installed.
constexpr struct {
    const char* name;
    const char* stand_in;
} stand_ins[] = {
    {"Arial", "Liberation Sans"},
    {"Helvetica", "Liberation Sans"},
    {"MS Sans Serif", "Liberation Sans"},
    {"Verdana", "DejaVu Sans"},
    {"Tahoma", "DejaVu Sans"},
    {"Times New Roman", "Liberation Serif"},
    {"Courier New", "Liberation Mono"},
};

QColor toolkit_colour(colour ink) {
    return {static_cast<int>(ink & 0xFF), static_cast<int>(ink >> 8 & 0xFF),
            static_cast<int>(ink >> 16 & 0xFF)};
}

}  // namespace

QFont page_font(const font& wanted) {
    QStringList families{shown(wanted.name)};
    for (const auto& one : stand_ins) {
        if (families[0].compare(one.name, Qt::CaseInsensitive) == 0) families << one.stand_in;
    }
    families << "Liberation Sans";
    QFont made;
    made.setFamilies(families);
    made.setStyleHint(QFont::SansSerif);
    made.setPointSizeF(wanted.size > 0 ? wanted.size : 1);
    made.setBold(wanted.bold);
    made.setItalic(wanted.italic);
    return made;
}

double page_text_width(std::string_view text, const font& in, const QPaintDevice& on) {
    const QFontMetricsF metrics(page_font(in), &on);
    return metrics.horizontalAdvance(shown(text)) * 25.4 / on.logicalDpiX();
}

QImage image_of(const bitmap& points) {
    QImage image(points.width, points.height, QImage::Format_ARGB32);
    for (int y = 0; y < points.height; ++y) {
        for (int x = 0; x < points.width; ++x) {
            const colour point = points.at(x, y);
            image.setPixelColor(
                x, y, point == transparent_grey ? Qt::transparent : toolkit_colour(point));
        }
    }
    return image;
}

page_painter::page_painter(QPainter& painter)
    : painter_(painter), dots_per_millimetre_(painter.device()->logicalDpiX() / 25.4) {
    painter_.setRenderHint(QPainter::LosslessImageRendering);
    painter_.setRenderHint(QPainter::SmoothPixmapTransform, false);
}

page_painter::~page_painter() {
    finish_page();
}

double page_painter::dots(double millimetres) const {
    return millimetres * dots_per_millimetre_;
}

void page_painter::text(double x, double y, std::string_view text, const font& in, colour ink) {
    finish_page();
    const QFont face = page_font(in);
    painter_.setFont(face);
    painter_.setPen(toolkit_colour(ink));
    const double ascent = QFontMetricsF(face, painter_.device()).ascent();
    painter_.drawText(QPointF(dots(x), dots(y) + ascent), shown(text));
}

void page_painter::line(double x1, double y1, double x2, double y2, colour ink) {
    finish_page();
    painter_.setPen(QPen(toolkit_colour(ink), dots(pen_width)));
    painter_.drawLine(QPointF(dots(x1), dots(y1)), QPointF(dots(x2), dots(y2)));
}

void page_painter::box(double x1, double y1, double x2, double y2, colour ink, bool filled) {
    const QRectF area =
        QRectF(QPointF(dots(x1), dots(y1)), QPointF(dots(x2), dots(y2))).normalized();
    const double tile_limit = dots(largest_tile);
    if (filled && area.width() <= tile_limit && area.height() <= tile_limit) {
        tiles_.push_back({area, ink});
        return;
    }
    finish_page();
    if (filled) {
        painter_.fillRect(area, toolkit_colour(ink));
        return;
    }
    painter_.setPen(QPen(toolkit_colour(ink), dots(pen_width)));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(area);
}

void page_painter::image(double x, double y, double width, double height, const QImage& points) {
    finish_page();
    painter_.drawImage(QRectF(dots(x), dots(y), dots(width), dots(height)), points);
}

bool page_painter::lie_in_a_raster(int& columns, int& rows) const {
    const QRectF& first = tiles_.front().area;
    if (tiles_.size() < fewest_tiles || first.isEmpty()) return false;
    for (const tile& one : tiles_) {
        const double column = (one.area.x() - first.x()) / first.width();
        const double row = (one.area.y() - first.y()) / first.height();
        if (std::abs(one.area.width() - first.width()) > raster_slack * first.width() ||
            std::abs(one.area.height() - first.height()) > raster_slack * first.height() ||
            std::abs(column - std::round(column)) > raster_slack ||
            std::abs(row - std::round(row)) > raster_slack) {
            return false;
        }
    }
    QRectF whole;
    for (const tile& one : tiles_) whole |= one.area;
    columns = static_cast<int>(std::lround(whole.width() / first.width()));
    rows = static_cast<int>(std::lround(whole.height() / first.height()));
    return columns <= largest_raster && rows <= largest_raster;
}

void page_painter::finish_page() {
    if (tiles_.empty()) return;
    int columns = 0;
    int rows = 0;
    if (!lie_in_a_raster(columns, rows)) {
        for (const tile& one : tiles_) painter_.fillRect(one.area, toolkit_colour(one.ink));
        tiles_.clear();
        return;
    }
    QRectF whole;
    for (const tile& one : tiles_) whole |= one.area;
    QImage points(columns, rows, QImage::Format_ARGB32);
    points.fill(Qt::transparent);
    for (const tile& one : tiles_) {
        const QPointF from = one.area.center() - whole.topLeft();
        const int column = static_cast<int>(from.x() / whole.width() * columns);
        const int row = static_cast<int>(from.y() / whole.height() * rows);
        points.setPixelColor(std::clamp(column, 0, columns - 1), std::clamp(row, 0, rows - 1),
                             toolkit_colour(one.ink));
    }
    painter_.drawImage(whole, points);
    tiles_.clear();
}

}  // namespace vantora::ui::desktop
