#include "desktop/printing/print_preview.h"

#include <QBoxLayout>
#include <QBuffer>
#include <QDialog>
#include <QFrame>
#include <QLabel>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QScreen>
#include <QShortcut>
#include <QToolButton>

#include "desktop/dialogs/file_dialog.h"
#include "desktop/look/words.h"

namespace vantora::ui::desktop {

namespace {

void save_as_pdf(const recorded_pages& pages, const QPrinter& like, const QString& called,
                 QWidget* above) {
    const QString file =
        ask_where_to_save(words::save_pdf, called, {words::pdf_files, "pdf"}, above);
    if (file.isEmpty()) return;
    const auto pdf = pdf_of(pages, like, called, {});
    if (pdf) return save_whole(file, *pdf, above);
    tell(QString(words::cannot_write).arg(file, words::no_drawing), above);
}

/// The dialog's bar of commands.
class preview_bar final : public QFrame {
 public:
    preview_bar(QPrintPreviewWidget& view, QWidget* parent)
        : QFrame(parent), view_(view), row_(new QHBoxLayout(this)), page_(new QLabel(this)) {
        setProperty("role", "bar");
        row_->setContentsMargins(8, 5, 8, 5);
        row_->setSpacing(2);
    }

    QToolButton* add(const char* what, const char* keys, const std::function<void()>& action) {
        auto* button = new QToolButton(this);
        const QString text = what;
        button->setText(text);
        button->setToolTip(text + " (" + QKeySequence(keys).toString(QKeySequence::NativeText) +
                           ")");
        button->setAccessibleName(text);
        button->setShortcut(QKeySequence(keys));
        connect(button, &QToolButton::clicked, this, action);
        row_->addWidget(button);
        return button;
    }
    void add_turns(const std::function<void(int by)>& turn) {
        before_ = add(words::page_before, "PgUp", [turn] { turn(-1); });
        add_page_number();
        after_ = add(words::page_after, "PgDown", [turn] { turn(1); });
    }
    void add_space() { row_->addSpacing(14); }
    void add_page_number() {
        page_->setMinimumWidth(page_->fontMetrics().horizontalAdvance("Pagina 000 di 000"));
        page_->setAlignment(Qt::AlignCenter);
        row_->addWidget(page_);
    }
    void add_stretch() { row_->addStretch(1); }

    void show_page() {
        page_->setText(QString(words::page_of).arg(view_.currentPage()).arg(view_.pageCount()));
        before_->setEnabled(view_.currentPage() > 1);
        after_->setEnabled(view_.currentPage() < view_.pageCount());
    }

 private:
    QPrintPreviewWidget& view_;
    QHBoxLayout* row_;
    QLabel* page_;
    QToolButton* before_ = nullptr;
    QToolButton* after_ = nullptr;
};

void fill(preview_bar& bar, QPrintPreviewWidget& view, QDialog& dialog,
          const std::function<void()>& save) {
    const auto turn = [&view, &bar](int by) {
        view.setCurrentPage(view.currentPage() + by);
        bar.show_page();
    };
    bar.add(words::print, "Ctrl+P", [&dialog] { dialog.accept(); });
    bar.add(words::save_pdf, "Ctrl+S", save);
    bar.add_space();
    bar.add(words::zoom_in, "Ctrl++", [&view] { view.zoomIn(); });
    bar.add(words::zoom_out, "Ctrl+-", [&view] { view.zoomOut(); });
    bar.add(words::fit_width, "Ctrl+1", [&view] { view.fitToWidth(); });
    bar.add(words::fit_page, "Ctrl+0", [&view] { view.fitInView(); });
    bar.add_space();
    bar.add_turns(turn);
    bar.add_stretch();
    bar.add(words::close_preview, "Esc", [&dialog] { dialog.reject(); });
}

}  // namespace

bool draw_pages(const recorded_pages& pages, QPainter& painter, QPagedPaintDevice& on,
                const draws_on& goes_on) {
    page_painter page(painter);
    for (std::size_t i = 0; i < pages.count(); ++i) {
        if (goes_on && !goes_on(static_cast<double>(i) / static_cast<double>(pages.count()))) {
            return false;
        }
        if (i > 0) on.newPage();
        pages.draw(i, page);
    }
    return true;
}

std::optional<QByteArray> pdf_of(const recorded_pages& pages, const QPrinter& like,
                                 const QString& called, const draws_on& goes_on) {
    QBuffer pdf;
    pdf.open(QIODevice::WriteOnly);
    QPdfWriter paper(&pdf);
    paper.setResolution(like.resolution());
    QPageLayout sheet = like.pageLayout();
    sheet.setMode(QPageLayout::FullPageMode);
    sheet.setMargins({});
    paper.setPageLayout(sheet);
    paper.setTitle(called);
    paper.setCreator("Vantora Ordini");
    QPainter painter;
    const bool drawn = painter.begin(&paper) && draw_pages(pages, painter, paper, goes_on);
    return painter.end() && drawn ? std::optional(pdf.data()) : std::nullopt;
}

bool wants_printed(const recorded_pages& pages, QPrinter& printer, const QString& called,
                   QWidget* above) {
    const plain_pointer shown_meanwhile;
    QDialog dialog(above);
    dialog.setObjectName("anteprima");
    dialog.setWindowTitle(QString(words::preview_of).arg(called).replace("[*]", "[*][*]"));
    dialog.setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* view = new QPrintPreviewWidget(&printer, &dialog);
    view->setAccessibleName(words::preview);
    QObject::connect(view, &QPrintPreviewWidget::paintRequested, &dialog, [&pages](QPrinter* on) {
        QPainter painter(on);
        draw_pages(pages, painter, *on, {});
    });
    auto* bar = new preview_bar(*view, &dialog);
    fill(*bar, *view, dialog, [&] { save_as_pdf(pages, printer, called, &dialog); });
    QObject::connect(view, &QPrintPreviewWidget::previewChanged, bar, &preview_bar::show_page);
    auto* all = new QVBoxLayout(&dialog);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addWidget(bar);
    all->addWidget(view, 1);
    // With room for the frame; no window may be active after a question.
    dialog.resize(QSize(1040, 820).boundedTo(dialog.screen()->availableSize() * 17 / 20));
    return dialog.exec() == QDialog::Accepted;
}

}  // namespace vantora::ui::desktop
