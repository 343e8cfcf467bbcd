#include "mirxpdf/document_pdf.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <map>

#include "store/text/code_page.h"
#include "ui/desktop/page_painter.h"

namespace vantora::mirxpdf {

namespace {

using ui::desktop::page_painter;

constexpr int dots_per_inch = 1200;
constexpr double largest_letter = 2000;  // points

/// A point of a picture takes 15 twips on paper. Documents place it by a scale a little off the
/// true one, and the PDF is to match the paper.
constexpr double twips_per_millimetre = 1440 / 25.4;
constexpr double point_size = 15 / twips_per_millimetre;
constexpr double picture_scale = 56.6868 / twips_per_millimetre;

/// What the toolkit can't write: a PDF of no page.
constexpr std::string_view no_page =
    "%PDF-1.4\n"
    "1 0 obj\n<< /Type /Catalog /Pages 2 0 R >>\nendobj\n"
    "2 0 obj\n<< /Type /Pages /Kids [] /Count 0 >>\nendobj\n"
    "xref\n0 3\n0000000000 65535 f \n0000000009 00000 n \n0000000058 00000 n \n"
    "trailer\n<< /Size 3 /Root 1 0 R >>\nstartxref\n110\n%%EOF\n";

ui::colour ink_of(const record_di_stampa& mark) {
    return mark.colore >= 0 && mark.colore <= ui::white ? static_cast<ui::colour>(mark.colore) : 0;
}

class pdf_pages {
 public:
    pdf_pages(const documento_di_stampa& document, const QString& title,
              const picture_source& pictures)
        : document_(document), writer_(&buffer_), pictures_(pictures) {
        buffer_.open(QIODevice::WriteOnly);
        writer_.setTitle(title);
        writer_.setCreator("Vantora");
        writer_.setResolution(dots_per_inch);
        writer_.setPageLayout(QPageLayout(
            QPageSize(QPageSize::A4),
            document.orizzontale ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()));
    }

    QByteArray make() {
        QPainter painter;
        if (!painter.begin(&writer_)) return {};
        for (std::size_t i = 0; i < document_.pagine.size(); ++i) {
            if (i > 0 && !writer_.newPage()) return {};
            page_painter page(painter);
            for (const record_di_stampa& mark : document_.pagine[i]) draw(page, mark);
            page.finish_page();
        }
        if (!painter.end()) return {};
        return buffer_.data();
    }

 private:
    void draw(page_painter& page, const record_di_stampa& mark) {
        switch (mark.tipo) {
            case tipo_record::linea:
                page.line(mark.x1, mark.y1, mark.x2, mark.y2, ink_of(mark));
                break;
            case tipo_record::riquadro:
                page.box(mark.x1, mark.y1, mark.x2, mark.y2, ink_of(mark), mark.grassetto == 1);
                break;
            case tipo_record::testo:
                draw_text(page, mark);
                break;
            case tipo_record::figura:
                draw_picture(page, mark);
                break;
            case tipo_record::pagina:
                break;
        }
    }

    void draw_text(page_painter& page, const record_di_stampa& mark) {
        if (mark.testo.empty()) return;
        const ui::font face{mark.carattere, std::min(mark.corpo, largest_letter),
                            mark.grassetto != 0, mark.corsivo != 0};
        double left = mark.x1;
        if (mark.y2 == 1) left -= ui::desktop::page_text_width(mark.testo, face, writer_);
        page.text(left, mark.y1, mark.testo, face, ink_of(mark));
    }

    void draw_picture(page_painter& page, const record_di_stampa& mark) {
        const std::string path(trimmed(mark.testo));
        if (path.empty() || mark.x1 <= 0 || mark.y1 <= 0) return;
        const QImage& image = picture(path);
        if (image.isNull()) return;
        page.image(mark.x1 * picture_scale, mark.y1 * picture_scale, image.width() * point_size,
                   image.height() * point_size, image);
    }

    /// Each file is read once, and lies in the PDF once.
    const QImage& picture(const std::string& path) {
        const auto [place, is_new] = read_.try_emplace(path);
        if (is_new) {
            if (const auto points = pictures_(path)) place->second = ui::desktop::image_of(*points);
        }
        return place->second;
    }

    const documento_di_stampa& document_;
    QBuffer buffer_;
    QPdfWriter writer_;
    const picture_source& pictures_;
    std::map<std::string, QImage> read_;
};

}  // namespace

QByteArray make_pdf(const documento_di_stampa& document, const QString& title,
                    const picture_source& pictures) {
    if (document.pagine.empty()) return {no_page.data(), static_cast<qsizetype>(no_page.size())};
    return pdf_pages(document, title, pictures).make();
}

}  // namespace vantora::mirxpdf
