#include "ui/desktop/system_ports.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>

#include "ui/desktop/binder.h"

namespace vantora::ui::desktop {

namespace {

/// A name that isn't taken yet, in the user's folder of documents.
QString proposed_file() {
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    QString name = "Documento.pdf";
    for (int i = 2; folder.exists(name); ++i) name = QString("Documento %1.pdf").arg(i);
    return folder.filePath(name);
}

QString ask_by_dialog() {
    // Long work may have set the busy pointer.
    const QCursor* busy = QGuiApplication::overrideCursor();
    if (busy) QGuiApplication::changeOverrideCursor(Qt::ArrowCursor);
    QString file = QFileDialog::getSaveFileName(QApplication::activeWindow(),
                                                "Nessuna stampante: salva il documento in PDF",
                                                proposed_file(), "Documenti PDF (*.pdf)");
    if (busy) QGuiApplication::changeOverrideCursor(Qt::WaitCursor);
    if (!file.isEmpty() && QFileInfo(file).suffix().isEmpty()) file += ".pdf";
    return file;
}

}  // namespace

/// A job that is printed; without a painter, one that is dropped.
struct system_printer::job {
    std::unique_ptr<QPainter> painter;
    std::unique_ptr<page_painter> page;
};

system_printer::system_printer() : printer_(QPrinter::HighResolution), ask_(ask_by_dialog) {
    printer_.setPageSize(QPageSize(QPageSize::A4));
    printer_.setFullPage(true);
    printer_.setDocName("Vantora Ordini");
}

system_printer::system_printer(ask_for_file ask) : system_printer() {
    ask_ = std::move(ask);
    printer_.setOutputFormat(QPrinter::PdfFormat);
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

double system_printer::text_width(std::string_view text, const font& in) const {
    return page_text_width(text, in, printer_);
}

void system_printer::begin_job() {
    job_ = std::make_unique<job>();
    const bool to_file = printer_.outputFormat() == QPrinter::PdfFormat ||
                         QPrinterInfo::availablePrinterNames().isEmpty();
    if (to_file && printer_.outputFileName().isEmpty()) {
        const QString file = ask_();
        if (file.isEmpty()) return;
        printer_.setOutputFormat(QPrinter::PdfFormat);
        printer_.setOutputFileName(file);
    }
    printer_.setFullPage(true);
    auto painter = std::make_unique<QPainter>();
    if (!painter->begin(&printer_)) return;
    job_->page = std::make_unique<page_painter>(*painter);
    job_->painter = std::move(painter);
}

page_painter* system_printer::page() {
    if (!job_) {
        begin_job();
    } else if (page_ended_ && job_->page) {
        printer_.newPage();
    }
    page_ended_ = false;
    return job_->page.get();
}

void system_printer::text(double x, double y, std::string_view text, const font& in, colour ink) {
    if (page_painter* on = page()) on->text(x, y, text, in, ink);
}

void system_printer::line(double x1, double y1, double x2, double y2, colour ink) {
    if (page_painter* on = page()) on->line(x1, y1, x2, y2, ink);
}

void system_printer::box(double x1, double y1, double x2, double y2, colour ink, bool filled) {
    if (page_painter* on = page()) on->box(x1, y1, x2, y2, ink, filled);
}

void system_printer::new_page() {
    if (page_ended_ || !job_) page();
    if (job_->page) job_->page->finish_page();
    page_ended_ = true;
}

void system_printer::end_job() {
    if (!job_) return;
    job_.reset();
    page_ended_ = false;
    // The next document must not take this one's place.
    if (printer_.outputFormat() == QPrinter::PdfFormat) printer_.setOutputFileName(QString());
}

bool system_printer::choose_settings() {
    QPrintDialog dialog(&printer_, QApplication::activeWindow());
    dialog.setWindowTitle("Imposta stampante");
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
    // Nothing is printed here.
    if (const auto* buttons = dialog.findChild<QDialogButtonBox*>()) {
        if (auto* accept = buttons->button(QDialogButtonBox::Ok)) accept->setText("OK");
    }
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
