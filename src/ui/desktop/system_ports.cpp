#include "ui/desktop/system_ports.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPrintDialog>
#include <QProcess>

#include "ui/desktop/binder.h"

namespace vantora::ui::desktop {

namespace {

QFont toolkit_font(const font& wanted) {
    QFont made(shown(wanted.name));
    made.setStyleHint(QFont::SansSerif);
    made.setPointSizeF(wanted.size > 0 ? wanted.size : 1);
    made.setBold(wanted.bold);
    made.setItalic(wanted.italic);
    return made;
}

QColor toolkit_colour(colour ink) {
    return {static_cast<int>(ink & 0xFF), static_cast<int>(ink >> 8 & 0xFF),
            static_cast<int>(ink >> 16 & 0xFF)};
}

constexpr double pen_width = 0.2;  // millimetres

}  // namespace

system_printer::system_printer() : printer_(QPrinter::HighResolution) {
    printer_.setPageSize(QPageSize(QPageSize::A4));
    printer_.setFullPage(true);
}

system_printer::~system_printer() = default;

int system_printer::orientation() const {
    return printer_.pageLayout().orientation() == QPageLayout::Portrait ? upright : landscape;
}

void system_printer::set_orientation(int orientation) {
    printer_.setPageOrientation(orientation == landscape ? QPageLayout::Landscape
                                                         : QPageLayout::Portrait);
}

double system_printer::page_width() const {
    return printer_.pageLayout().fullRect(QPageLayout::Millimeter).width();
}

double system_printer::page_height() const {
    return printer_.pageLayout().fullRect(QPageLayout::Millimeter).height();
}

double system_printer::dots(double millimetres) const {
    return millimetres * printer_.resolution() / 25.4;
}

double system_printer::text_width(std::string_view text, const font& in) const {
    const QFontMetricsF metrics(toolkit_font(in), &printer_);
    return metrics.horizontalAdvance(shown(text)) * 25.4 / printer_.resolution();
}

bool system_printer::ready() {
    if (!painter_) {
        painter_ = std::make_unique<QPainter>();
        if (!painter_->begin(&printer_)) painter_.reset();
    } else if (page_ended_) {
        printer_.newPage();
    }
    page_ended_ = false;
    return painter_ != nullptr;
}

void system_printer::text(double x, double y, std::string_view text, const font& in, colour ink) {
    if (!ready()) return;
    const QFont face = toolkit_font(in);
    painter_->setFont(face);
    painter_->setPen(toolkit_colour(ink));
    const double ascent = QFontMetricsF(face, &printer_).ascent();
    painter_->drawText(QPointF(dots(x), dots(y) + ascent), shown(text));
}

void system_printer::line(double x1, double y1, double x2, double y2, colour ink) {
    if (!ready()) return;
    painter_->setPen(QPen(toolkit_colour(ink), dots(pen_width)));
    painter_->drawLine(QPointF(dots(x1), dots(y1)), QPointF(dots(x2), dots(y2)));
}

void system_printer::box(double x1, double y1, double x2, double y2, colour ink, bool filled) {
    if (!ready()) return;
    const QRectF area(QPointF(dots(x1), dots(y1)), QPointF(dots(x2), dots(y2)));
    if (filled) {
        painter_->fillRect(area.normalized(), toolkit_colour(ink));
        return;
    }
    painter_->setPen(QPen(toolkit_colour(ink), dots(pen_width)));
    painter_->setBrush(Qt::NoBrush);
    painter_->drawRect(area.normalized());
}

void system_printer::new_page() {
    if (page_ended_ || !painter_) ready();
    page_ended_ = true;
}

void system_printer::end_job() {
    painter_.reset();
    page_ended_ = false;
}

bool system_printer::choose_settings() {
    QPrintDialog dialog(&printer_);
    return dialog.exec() == QDialog::Accepted;
}

bool system_launcher::start(const std::string& command) {
    const std::size_t end = command.find(' ');
    const std::string program = locate_(command.substr(0, end));
    QStringList arguments;
    if (end != std::string::npos) arguments << shown(command.substr(end + 1));
    return QProcess::startDetached(QString::fromStdString(program), arguments);
}

}  // namespace vantora::ui::desktop
