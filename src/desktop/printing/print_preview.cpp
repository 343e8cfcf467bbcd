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
QFrame* preview_bar(QPrintPreviewWidget& view, QDialog& dialog, const std::function<void()>& save) {
    auto* bar = new QFrame(&dialog);
    bar->setProperty("role", "bar");
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(8, 5, 8, 5);
    row->setSpacing(2);
    const auto add = [&](const char* what, const char* keys, const std::function<void()>& action) {
        auto* button = new QToolButton(bar);
        const QString named = QKeySequence(keys).toString(QKeySequence::NativeText);
        button->setText(what);
        button->setToolTip(QString("%1 (%2)").arg(what, named));
        button->setAccessibleName(what);
        button->setShortcut(QKeySequence(keys));
        if (action) QObject::connect(button, &QToolButton::clicked, bar, action);
        row->addWidget(button);
        return button;
    };
    constexpr int gap = 14;
    add(words::print, "Ctrl+P", [&dialog] { dialog.accept(); });
    add(words::save_pdf, "Ctrl+S", save);
    row->addSpacing(gap);
    add("Ingrandisce", "Ctrl++", [&view] { view.zoomIn(); });
    add("Riduce", "Ctrl+-", [&view] { view.zoomOut(); });
    add("Larghezza", "Ctrl+1", [&view] { view.fitToWidth(); });
    add("Pagina intera", "Ctrl+0", [&view] { view.fitInView(); });
    row->addSpacing(gap);
    QToolButton* before = add("Precedente", "PgUp", {});
    auto* page = new QLabel(bar);
    page->setMinimumWidth(page->fontMetrics().horizontalAdvance("Pagina 000 di 000"));
    page->setAlignment(Qt::AlignCenter);
    row->addWidget(page);
    QToolButton* after = add("Seguente", "PgDown", {});
    row->addStretch(1);
    add("Chiudi", "Esc", [&dialog] { dialog.reject(); });

    const auto show_page = [&view, before, page, after] {
        page->setText(QString("Pagina %1 di %2").arg(view.currentPage()).arg(view.pageCount()));
        before->setEnabled(view.currentPage() > 1);
        after->setEnabled(view.currentPage() < view.pageCount());
    };
    const auto turn = [&view, show_page](int by) {
        view.setCurrentPage(view.currentPage() + by);
        show_page();
    };
    QObject::connect(before, &QToolButton::clicked, bar, [turn] { turn(-1); });
    QObject::connect(after, &QToolButton::clicked, bar, [turn] { turn(1); });
    QObject::connect(&view, &QPrintPreviewWidget::previewChanged, bar, show_page);
    return bar;
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
    dialog.setWindowTitle(QString("Anteprima: %1").arg(called).replace("[*]", "[*][*]"));
    dialog.setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* view = new QPrintPreviewWidget(&printer, &dialog);
    view->setAccessibleName("Anteprima di stampa");
    QObject::connect(view, &QPrintPreviewWidget::paintRequested, &dialog, [&pages](QPrinter* on) {
        QPainter painter(on);
        draw_pages(pages, painter, *on, {});
    });
    QFrame* bar = preview_bar(*view, dialog, [&] { save_as_pdf(pages, printer, called, &dialog); });
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
