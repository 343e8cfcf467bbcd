#include "desktop/printing/system_printer.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QPushButton>
#include <QSettings>
#include <QTimer>

#include "desktop/dialogs/file_dialog.h"
#include "desktop/look/words.h"
#include "desktop/printing/print_preview.h"
#include "ui/paper/toolkit_values.h"

namespace vantora::ui::desktop {

namespace {

constexpr const char* preview_setting = "printing/preview";

QString ask_by_dialog(const QString& called) {
    return ask_where_to_save(QString::fromUtf8(words::no_printer), called,
                             {QString::fromUtf8(words::pdf_files), "pdf"},
                             QApplication::activeWindow());
}

/// Where every job asks for its file, the settings ask for none. The dialog shows these parts anew
/// as it comes up.
void hide_file(QPrintDialog& dialog) {
    for (const char* name : {"lOutput", "filename", "fileBrowser"}) {
        auto* part = dialog.findChild<QWidget*>(name);
        if (!part) continue;
        part->setEnabled(false);
        part->hide();
    }
}

void tell_by_box(const QString& why) {
    tell(why, QApplication::activeWindow());
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
      job_name_(words::nameless_job) {
    printer_.setPageSize(QPageSize(QPageSize::A4));
    printer_.setFullPage(true);
    printer_.setDocName("Vantora Ordini");
    preview_ = QSettings().value(preview_setting).toBool();
}

system_printer::system_printer(ask_for_file ask, tell_failure tell) : system_printer() {
    ask_ = std::move(ask);
    tell_ = std::move(tell);
    printer_.setOutputFormat(QPrinter::PdfFormat);
    preview_ = false;
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
        tell_(QString::fromUtf8(words::cannot_print) + printer_.printerName());
        return;
    }
    job_->page = std::make_unique<page_painter>(*painter);
    job_->painter = std::move(painter);
}

bool system_printer::open_file(const QString& file) {
    QFile target(file);
    if (target.open(QIODevice::ReadWrite)) return true;
    tell_(QString::fromUtf8(words::cannot_write).arg(file, target.errorString()));
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

void system_printer::put(recorded_pages::mark mark) {
    if (shows_first()) {
        if (recorded_.count() == 0) recorded_orientation_ = orientation();
        recorded_.add(std::move(mark));
    } else if (page_painter* on = page()) {
        mark(*on);
    }
}

void system_printer::text(double x, double y, std::string_view text, const font& in, colour ink) {
    put([=, kept = std::string(text)](page_painter& on) { on.text(x, y, kept, in, ink); });
}

void system_printer::line(double x1, double y1, double x2, double y2, colour ink) {
    put([=](page_painter& on) { on.line(x1, y1, x2, y2, ink); });
}

void system_printer::box(double x1, double y1, double x2, double y2, colour ink, bool filled) {
    put([=](page_painter& on) { on.box(x1, y1, x2, y2, ink, filled); });
}

void system_printer::picture(double x, double y, double side,
                             const std::shared_ptr<const bitmap>& image) {
    put([=](page_painter& on) { on.picture(x, y, side, image); });
}

void system_printer::new_page() {
    if (shows_first()) {
        if (recorded_.count() == 0) recorded_orientation_ = orientation();
        return recorded_.end_page();
    }
    if (page_ended_ || !job_) page();
    page_ended_ = true;
}

/// What was recorded is shown, and goes the way of any other job if the user wants it.
void system_printer::print_recorded() {
    const int now = orientation();
    set_orientation(recorded_orientation_);
    printer_.setFullPage(true);
    recorded_pages pages = std::exchange(recorded_, {});
    pages.add_to_last(note_mark());
    if (wants_printed(pages, printer_, job_name_, QApplication::activeWindow())) {
        begin_job();
        for (std::size_t i = 0; i < pages.count() && job_->page; ++i) {
            if (i > 0) printer_.newPage();
            pages.draw(i, *job_->page);
        }
    }
    set_orientation(now);
}

void system_printer::end_job() {
    preview_next_ = false;
    if (recorded_.count() > 0) {
        print_recorded();
    } else if (!job_) {
        return;
    } else if (job_->page) {
        note_mark()(*job_->page);
    }
    job_.reset();
    job_name_ = words::nameless_job;
    page_ended_ = false;
    // The next document must not take this one's place.
    if (printer_.outputFormat() == QPrinter::PdfFormat) printer_.setOutputFileName(QString());
}

recorded_pages::mark system_printer::note_mark() const {
    constexpr double from_left = 10;
    constexpr double from_bottom = 9;
    constexpr colour red = 0x1c27a3;
    return [note = note_, y = page_height() - from_bottom](page_painter& on) {
        if (!note.empty()) on.text(from_left, y, note, {"Arial", 9, true, false}, red);
    };
}

void system_printer::set_job_name(std::string_view name) {
    job_name_ = to_qt(name).replace('/', '-').trimmed();
    if (job_name_.isEmpty()) job_name_ = words::nameless_job;
    printer_.setDocName(job_name_);
}

bool system_printer::choose_settings() {
    QPrintDialog dialog(&printer_, QApplication::activeWindow());
    dialog.setWindowTitle(words::printer_settings);
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
    auto* preview = new QCheckBox(QString::fromUtf8(words::preview_first), &dialog);
    preview->setChecked(preview_);
    if (auto* column = qobject_cast<QBoxLayout*>(dialog.layout())) {
        column->insertWidget(column->count() - 1, preview);
        QWidget::setTabOrder(dialog.findChild<QWidget*>("properties"), preview);
    }
    // Nothing is printed here.
    if (const auto* buttons = dialog.findChild<QDialogButtonBox*>()) {
        if (auto* accept = buttons->button(QDialogButtonBox::Ok)) accept->setText("OK");
    }
    const bool asks = QPrinterInfo::availablePrinterNames().isEmpty();
    if (asks) QTimer::singleShot(0, &dialog, [&dialog] { hide_file(dialog); });
    if (dialog.exec() != QDialog::Accepted) return false;
    if (asks) printer_.setOutputFileName(QString());
    preview_ = preview->isChecked();
    QSettings().setValue(preview_setting, preview_);
    return true;
}

}  // namespace vantora::ui::desktop
