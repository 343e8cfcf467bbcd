#pragma once

#include <QFont>
#include <QImage>
#include <map>
#include <memory>
#include <string_view>

#include "ui/bitmap.h"
#include "ui/printer.h"

class QPaintDevice;
class QPainter;

namespace vantora::ui {

/// A font of the documents as this machine has it: by name, else by its stand-in of the same
/// widths.
QFont page_font(const font& wanted);

/// Width in millimetres of a text of the code page on a device.
double page_text_width(std::string_view text, const font& in, const QPaintDevice& on);

/// Draws the marks of documents and reports, page after page. Positions are millimetres from the
/// upper left corner of the sheet, a text's position is its upper left corner. Printer and PDF
/// files look alike because both draw through here.
class page_painter {
 public:
    /// REQUIRES: `painter` is active, its origin is the corner of the sheet and its unit a dot of
    /// its device; it outlives this object.
    explicit page_painter(QPainter& painter);
    page_painter(const page_painter&) = delete;
    page_painter& operator=(const page_painter&) = delete;

    void text(double x, double y, std::string_view text, const font& in, colour ink);
    void line(double x1, double y1, double x2, double y2, colour ink);
    void box(double x1, double y1, double x2, double y2, colour ink, bool filled);
    /// A picture, each point a square of `side` millimetres, without smoothing. Drawn several times
    /// in a job, it lies in its file once.
    void picture(double x, double y, double side, const std::shared_ptr<const bitmap>& image);

 private:
    [[nodiscard]] double dots(double millimetres) const;

    QPainter& painter_;
    double dots_per_millimetre_;
    std::map<std::shared_ptr<const bitmap>, QImage> pictures_;
};

}  // namespace vantora::ui
