#include "mirxpdf/document_pdf.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <cerrno>
#include <filesystem>

#include "store/why_not_written.h"
#include "text/code_page.h"
#include "ui/paper/page_painter.h"
#include "ui/paper/toolkit_values.h"

namespace vantora::mirxpdf {

namespace {

using ui::page_painter;

constexpr int dots_per_inch = 1200;
constexpr double largest_letter = 2000;  // points

/// A4, upright.
constexpr double page_short = 210;
constexpr double page_long = 297;

ui::colour ink_of(const record_di_stampa& mark) {
    return ui::colour_of(mark.colore).value_or(ui::black);
}

class pdf_pages {
 public:
    pdf_pages(const documento_di_stampa& document, const QString& title, figure_documento& pictures)
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
        page_painter page(painter);
        for (std::size_t i = 0; i < document_.pagine.size(); ++i) {
            if (i > 0 && !writer_.newPage()) return {};
            pictures_.begin_page();
            for (const record_di_stampa& mark : document_.pagine[i]) draw(page, mark);
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
        if (mark.y2 == 1) left -= ui::page_text_width(mark.testo, face, writer_);
        page.text(left, mark.y1, mark.testo, face, ink_of(mark));
    }

    void draw_picture(page_painter& page, const record_di_stampa& mark) {
        const bool wide = document_.orizzontale;
        const auto image = pictures_.at(mark.testo, mark.x1, mark.y1, wide ? page_long : page_short,
                                        wide ? page_short : page_long);
        if (!image) return;
        page.picture(mark.x1 * scala_posto_figura, mark.y1 * scala_posto_figura, lato_punto_figura,
                     image);
    }

    const documento_di_stampa& document_;
    QBuffer buffer_;
    QPdfWriter writer_;
    figure_documento& pictures_;
};

}  // namespace

QByteArray make_pdf(const documento_di_stampa& document, const QString& title,
                    figure_documento& pictures) {
    return pdf_pages(document, title, pictures).make();
}

std::optional<QString> save_pdf(const QByteArray& pdf, std::string_view path, file_port& files) {
    const std::filesystem::path place = files.locate(path);
    if (upper(place.extension().string()) != ".PDF") return "il nome non finisce in .pdf";
    std::error_code refused;
    std::filesystem::create_directories(place.parent_path(), refused);
    if (put_whole(files, path, std::as_bytes(std::span(pdf.data(), std::size_t(pdf.size()))))) {
        return {};
    }
    return ui::to_qt(why_not_written(errno, place.parent_path()));
}

}  // namespace vantora::mirxpdf
