#include "desktop/printing/system_printer.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QFile>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QProgressDialog>
#include <QPushButton>
#include <QSettings>
#include <QTimer>
#include <algorithm>

#include "desktop/dialogs/file_dialog.h"
#include "desktop/look/words.h"
#include "desktop/printing/print_preview.h"
#include "ui/paper/toolkit_values.h"

namespace vantora::ui::desktop {

namespace {

constexpr const char* preview_setting = "printing/preview";

QString ask_by_dialog(const QString& called) {
    return ask_where_to_save("Nessuna stampante: salva il documento in PDF", called,
                             {words::pdf_files, "pdf"}, QApplication::activeWindow());
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

/// What is drawn until the job ends. Nothing reaches the printer before, so that a job can be
/// stopped as long as it is composed.
struct system_printer::job {
    recorded_pages pages;
    int orientation = upright;
    bool dropped = false;  ///< its user named no file
};

/// How far a long print is, with a button that stops it. It comes up when it takes its time.
class system_printer::progress {
 public:
    explicit progress(const QString& called)
        : dialog_(QString("Stampa di %1").arg(called), words::break_off, 0, steps,
                  QApplication::activeWindow()) {
        dialog_.setObjectName("avanzamento");
        dialog_.setWindowTitle(words::print);
        dialog_.setWindowModality(Qt::ApplicationModal);
        dialog_.setMinimumDuration(longest_unshown);
        dialog_.setAutoReset(false);
        dialog_.setAutoClose(false);
        dialog_.setValue(0);
        since_shown_.start();
    }
    /// So much is done, of 0 to 1. False: the user stops it.
    bool shows(double done) {
        if (dialog_.wasCanceled()) return false;
        if (since_shown_.elapsed() < between_steps) return true;
        dialog_.setValue(std::clamp(static_cast<int>(done * steps), 0, steps));
        since_shown_.restart();
        return !dialog_.wasCanceled();
    }

 private:
    static constexpr int steps = 1000;
    static constexpr qint64 between_steps = 40;  ///< milliseconds
    static constexpr int longest_unshown = 500;  ///< milliseconds

    QProgressDialog dialog_;
    QElapsedTimer since_shown_;
};

system_printer::system_printer()
    : printer_(std::make_unique<QPrinter>(QPrinter::HighResolution)),
      ask_(ask_by_dialog),
      tell_(tell_by_box),
      job_name_(words::nameless_job) {
    printer_->setPageSize(QPageSize(QPageSize::A4));
    printer_->setFullPage(true);
    printer_->setDocName("Vantora Ordini");
    preview_ = QSettings().value(preview_setting).toBool();
}

system_printer::system_printer(ask_for_file ask, tell_failure tell) : system_printer() {
    ask_ = std::move(ask);
    tell_ = std::move(tell);
    printer_->setOutputFormat(QPrinter::PdfFormat);
    preview_ = false;
}

system_printer::~system_printer() = default;

int system_printer::orientation() const {
    return printer_->pageLayout().orientation() == QPageLayout::Portrait ? upright : landscape;
}

void system_printer::set_orientation(int orientation) {
    printer_->setPageOrientation(orientation == landscape ? QPageLayout::Landscape
                                                          : QPageLayout::Portrait);
}

double system_printer::page_width() const {
    return printer_->pageLayout().fullRect(QPageLayout::Millimeter).width();
}

double system_printer::page_height() const {
    return printer_->pageLayout().fullRect(QPageLayout::Millimeter).height();
}

double system_printer::text_width(std::string_view text, const font& in) const {
    return page_text_width(text, in, *printer_);
}

system_printer::job& system_printer::drawn() {
    if (job_) return *job_;
    unwanted_ = false;
    job_ = std::make_unique<job>();
    job_->orientation = orientation();
    job_->dropped = !shows_first() && !choose_target();
    return *job_;
}

bool system_printer::prints_into_file() const {
    return printer_->outputFormat() == QPrinter::PdfFormat ||
           QPrinterInfo::availablePrinterNames().isEmpty();
}

bool system_printer::choose_target() {
    if (!prints_into_file()) return true;
    target_ = printer_->outputFileName();
    if (target_.isEmpty()) target_ = ask_(job_name_);
    if (target_.isEmpty()) return false;
    const bool is_new = !QFile::exists(target_);
    QFile target(target_);
    if (!target.open(QIODevice::ReadWrite)) {
        tell_(QString(words::cannot_write).arg(target_, target.errorString()));
        return false;
    }
    if (is_new) target.remove();
    return true;
}

void system_printer::put(recorded_pages::mark mark) {
    job& at_hand = drawn();
    if (!at_hand.dropped) at_hand.pages.add(std::move(mark));
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
    job& at_hand = drawn();
    if (!at_hand.dropped) at_hand.pages.end_page();
}

bool system_printer::goes_on(double done) {
    if (job_ && job_->dropped) return false;
    if (!progress_) progress_ = std::make_unique<progress>(job_name_);
    // What is drawn here is only half done when it is composed.
    const bool on = progress_->shows(job_ ? done / 2 : done);
    if (!on || (done >= 1 && !job_)) progress_.reset();
    return on;
}

void system_printer::drop_job() {
    job_.reset();
    end_job();
}

void system_printer::end_job() {
    const std::unique_ptr<job> ended = std::move(job_);
    if (ended && !ended->dropped) print(*ended);
    preview_next_ = false;
    progress_.reset();
    job_name_ = words::nameless_job;
    // The next document must not take this one's place.
    if (printer_->outputFormat() == QPrinter::PdfFormat) printer_->setOutputFileName(QString());
}

void system_printer::print(job& ended) {
    const int now = orientation();
    set_orientation(ended.orientation);
    printer_->setFullPage(true);
    ended.pages.add_to_last(note_mark());
    if (shows_first()) {
        progress_.reset();
        unwanted_ = !wants_printed(ended.pages, *printer_, job_name_, QApplication::activeWindow());
    }
    const bool chosen = !shows_first() || (!unwanted_ && choose_target());
    if (chosen) prints_into_file() ? print_into_file(ended.pages) : print_on_paper(ended.pages);
    set_orientation(now);
}

draws_on system_printer::shown_drawing() {
    return [this](double done) {
        if (!progress_) progress_ = std::make_unique<progress>(job_name_);
        unwanted_ = !progress_->shows((1 + done) / 2);
        return !unwanted_;
    };
}

void system_printer::print_into_file(const recorded_pages& pages) {
    const auto pdf = pdf_of(pages, *printer_, job_name_, shown_drawing());
    if (unwanted_) return;
    const QString why = pdf ? write_whole(target_, *pdf) : words::no_drawing;
    if (!why.isEmpty()) tell_(QString(words::cannot_write).arg(target_, why));
}

void system_printer::print_on_paper(const recorded_pages& pages) {
    auto painter = std::make_unique<QPainter>();
    if (!painter->begin(printer_.get())) {
        return tell_("Il documento non si può stampare su " + printer_->printerName());
    }
    if (draw_pages(pages, *painter, *printer_, shown_drawing())) return;
    // The toolkit hands to the printing system what it holds, however its painter ends: neither
    // may end.
    QPrinter* given_up = printer_.release();
    painter.release();
    printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer_->setPrinterName(given_up->printerName());
    printer_->setPageLayout(given_up->pageLayout());
    printer_->setCopyCount(given_up->copyCount());
    printer_->setDuplex(given_up->duplex());
    printer_->setColorMode(given_up->colorMode());
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
    printer_->setDocName(job_name_);
}

bool system_printer::choose_settings() {
    QPrintDialog dialog(printer_.get(), QApplication::activeWindow());
    dialog.setWindowTitle("Imposta stampante");
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
    auto* preview = new QCheckBox("&Mostra le pagine prima di stampare", &dialog);
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
    if (asks) printer_->setOutputFileName(QString());
    preview_ = preview->isChecked();
    QSettings().setValue(preview_setting, preview_);
    return true;
}

}  // namespace vantora::ui::desktop
