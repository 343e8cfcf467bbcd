#include "ui/paper/page_painter.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainter>

#include "ui/paper/toolkit_values.h"

namespace vantora::ui {

namespace {

constexpr double pen_width = 0.2;  // millimetres

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

}  // namespace

QFont page_font(const font& wanted) {
    QStringList families{to_qt(wanted.name)};
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
    // Character by character, as the suite's pages are measured: a text is as wide as the sum.
    made.setKerning(false);
    return made;
}

double page_text_width(std::string_view text, const font& in, const QPaintDevice& on) {
    const QFontMetricsF metrics(page_font(in), &on);
    return metrics.horizontalAdvance(to_qt(text)) * 25.4 / on.logicalDpiX();
}

page_painter::page_painter(QPainter& painter)
    : painter_(painter), dots_per_millimetre_(painter.device()->logicalDpiX() / 25.4) {
    painter_.setRenderHint(QPainter::LosslessImageRendering);
    painter_.setRenderHint(QPainter::SmoothPixmapTransform, false);
}

double page_painter::dots(double millimetres) const {
    return millimetres * dots_per_millimetre_;
}

void page_painter::text(double x, double y, std::string_view text, const font& in, colour ink) {
    const QFont face = page_font(in);
    painter_.setFont(face);
    painter_.setPen(toolkit_colour(ink));
    const double ascent = QFontMetricsF(face, painter_.device()).ascent();
    painter_.drawText(QPointF(dots(x), dots(y) + ascent), to_qt(text));
}

void page_painter::line(double x1, double y1, double x2, double y2, colour ink) {
    painter_.setPen(QPen(toolkit_colour(ink), dots(pen_width)));
    painter_.drawLine(QPointF(dots(x1), dots(y1)), QPointF(dots(x2), dots(y2)));
}

void page_painter::box(double x1, double y1, double x2, double y2, colour ink, bool filled) {
    const QRectF area =
        QRectF(QPointF(dots(x1), dots(y1)), QPointF(dots(x2), dots(y2))).normalized();
    if (filled) {
        painter_.fillRect(area, toolkit_colour(ink));
        return;
    }
    painter_.setPen(QPen(toolkit_colour(ink), dots(pen_width)));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(area);
}

void page_painter::picture(double x, double y, double side,
                           const std::shared_ptr<const bitmap>& image) {
    const auto [place, is_new] = pictures_.try_emplace(image);
    if (is_new) place->second = image_of(*image);
    painter_.drawImage(
        QRectF(dots(x), dots(y), dots(image->width * side), dots(image->height * side)),
        place->second);
}

}  // namespace vantora::ui
