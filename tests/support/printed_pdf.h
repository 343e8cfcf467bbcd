#pragma once

#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <filesystem>

namespace vantora::test {

/// What independent readers find in a PDF file. Places are in millimetres.
class printed_pdf {
 public:
    explicit printed_pdf(const std::filesystem::path& file)
        : file_(QString::fromStdString(file.string())) {}

    [[nodiscard]] QString facts() const { return output_of("pdfinfo", {file_}); }
    [[nodiscard]] QString fonts() const { return output_of("pdffonts", {file_}); }
    [[nodiscard]] bool has_pages(int count) const {
        return facts().contains(QRegularExpression(QString("Pages: +%1\n").arg(count)));
    }
    /// Empty if the word isn't there.
    [[nodiscard]] QRectF place_of(const char* word) const {
        constexpr double point = 25.4 / 72;
        const auto found =
            QRegularExpression(QString("xMin=\"(.*?)\" yMin=\"(.*?)\" xMax=\"(.*?)\" "
                                       "yMax=\"(.*?)\">%1<")
                                   .arg(QString::fromUtf8(word)))
                .match(output_of("pdftotext", {"-bbox", file_, "-"}));
        if (!found.hasMatch()) return {};
        const auto number = [&](int i) { return found.captured(i).toDouble() * point; };
        return {QPointF(number(1), number(2)), QPointF(number(3), number(4))};
    }
    /// A page as a picture, ten dots a millimetre.
    [[nodiscard]] QImage page(int number) const {
        const QString at = QString::number(number);
        output_of("pdftoppm",
                  {"-png", "-r", "254", "-f", at, "-l", at, "-singlefile", file_, file_});
        return QImage(file_ + ".png");
    }
    static QColor at(const QImage& page, double x, double y) {
        return page.pixelColor(static_cast<int>(x * 10), static_cast<int>(y * 10));
    }

 private:
    static QString output_of(const QString& program, const QStringList& arguments) {
        QProcess run;
        run.start(program, arguments);
        run.waitForFinished();
        return QString::fromUtf8(run.readAllStandardOutput());
    }

    QString file_;
};

}  // namespace vantora::test
