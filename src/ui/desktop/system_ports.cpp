#include "ui/desktop/system_ports.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>

#include "ui/look/box_look.h"
#include "ui/paper/toolkit_values.h"

namespace vantora::ui::desktop {

namespace {

constexpr const char* nameless = "Documento";

/// A name that isn't taken yet, in the user's folder of documents.
QString proposed_file(const QString& called) {
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    QString name = called + ".pdf";
    for (int i = 2; folder.exists(name); ++i) name = QString("%1 (%2).pdf").arg(called).arg(i);
    return folder.filePath(name);
}

/// Long work may have set the busy pointer; a dialog is no place for it.
class plain_pointer {
 public:
    plain_pointer() : busy_(QGuiApplication::overrideCursor() != nullptr) {
        if (busy_) QGuiApplication::changeOverrideCursor(Qt::ArrowCursor);
    }
    ~plain_pointer() {
        if (busy_) QGuiApplication::changeOverrideCursor(Qt::WaitCursor);
    }
    plain_pointer(const plain_pointer&) = delete;
    plain_pointer& operator=(const plain_pointer&) = delete;

 private:
    bool busy_;
};

QString ask_by_dialog(const QString& called) {
    const plain_pointer shown_meanwhile;
    QFileDialog dialog(QApplication::activeWindow(), "Nessuna stampante: salva il documento in PDF",
                       proposed_file(called), "Documenti PDF (*.pdf)");
    // The system's own dialog speaks the system's language.
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("pdf");
    dialog.setLabelText(QFileDialog::LookIn, "Cerca in:");
    dialog.setLabelText(QFileDialog::FileName, "Nome del file:");
    dialog.setLabelText(QFileDialog::FileType, "Tipo di file:");
    dialog.setLabelText(QFileDialog::Accept, "&Salva");
    dialog.setLabelText(QFileDialog::Reject, "&Annulla");
    dialog.selectFile(proposed_file(called));
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

void tell_by_box(const QString& why) {
    const plain_pointer shown_meanwhile;
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle("Attenzione");
    box.setText(why);
    dress_box(box, icon::warning);
    box.exec();
}

}  // namespace

/// A job that is printed; without a painter, one that is dropped.
struct system_printer::job {
    std::unique_ptr<QPainter> painter;
    std::unique_ptr<page_painter> page;
};

system_printer::system_printer()
    : printer_(QPrinter::HighResolution),
      ask_(ask_by_dialog),
      tell_(tell_by_box),
      job_name_(nameless) {
    printer_.setPageSize(QPageSize(QPageSize::A4));
    printer_.setFullPage(true);
    printer_.setDocName("Vantora Ordini");
}

system_printer::system_printer(ask_for_file ask, tell_failure tell) : system_printer() {
    ask_ = std::move(ask);
    tell_ = std::move(tell);
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
        const QString file = ask_(job_name_);
        if (file.isEmpty() || !open_file(file)) return;
        printer_.setOutputFormat(QPrinter::PdfFormat);
        printer_.setOutputFileName(file);
    }
    printer_.setFullPage(true);
    auto painter = std::make_unique<QPainter>();
    if (!painter->begin(&printer_)) {
        tell_(QString::fromUtf8("Il documento non si può stampare su ") + printer_.printerName());
        return;
    }
    job_->page = std::make_unique<page_painter>(*painter);
    job_->painter = std::move(painter);
}

bool system_printer::open_file(const QString& file) {
    QFile target(file);
    if (target.open(QIODevice::ReadWrite)) return true;
    tell_(QString::fromUtf8("Il file %1 non si può scrivere: %2").arg(file, target.errorString()));
    return false;
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

void system_printer::picture(double x, double y, double side,
                             const std::shared_ptr<const bitmap>& image) {
    if (page_painter* on = page()) on->picture(x, y, side, image);
}

void system_printer::new_page() {
    if (page_ended_ || !job_) page();
    page_ended_ = true;
}

void system_printer::end_job() {
    if (!job_) return;
    job_.reset();
    job_name_ = nameless;
    page_ended_ = false;
    // The next document must not take this one's place.
    if (printer_.outputFormat() == QPrinter::PdfFormat) printer_.setOutputFileName(QString());
}

void system_printer::set_job_name(std::string_view name) {
    job_name_ = shown(name).replace('/', '-').trimmed();
    if (job_name_.isEmpty()) job_name_ = nameless;
    printer_.setDocName(job_name_);
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
