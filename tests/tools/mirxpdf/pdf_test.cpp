#include <gtest/gtest.h>

#include <QColor>

#include "run_of_program.h"
#include "support/picture_file.h"
#include "support/printed_pdf.h"

namespace vantora::test {
namespace {

struct mirxpdf_pdf : testing::Test {
    printed_pdf make(const std::vector<pdf_drive::page>& pages,
                     std::string_view mark = marca_verticale) {
        drive.write_print_file(pages, mark);
        const auto result = drive.run({report_call});
        EXPECT_EQ(result.exit_code, 0) << result.said;
        return printed_pdf(drive.at("doc.pdf"));
    }
    pdf_drive drive;
};

TEST_F(mirxpdf_pdf, PagesHaveTheSizeAndNumberThatTheFileSays) {
    const pdf_drive::page text = {text_at(20, 30, "Pagina")};
    const printed_pdf upright = make({{}, text, {}});
    EXPECT_TRUE(upright.has_pages(3));
    EXPECT_TRUE(upright.facts().contains("595 x 842 pts"));
    const printed_pdf wide = make({text}, marca_orizzontale);
    EXPECT_TRUE(wide.has_pages(1));
    EXPECT_TRUE(wide.facts().contains("842 x 595 pts"));
}

record_di_stampa shape(tipo_record kind, double x1, double y1, double x2, double y2, double colour,
                       double mark) {
    return {kind, x1, y1, x2, y2, 0, colour, "", "", mark, 0};
}

/// How marks look is the painter's affair; here, that each record becomes its mark.
TEST_F(mirxpdf_pdf, EveryRecordIsDrawnInItsPlaceAndOrder) {
    // Two points, red and the light grey that is left out.
    put(drive.at("mirwin/logo.bmp"),
        picture_file(2, 1, 0, std::string("\0\0\xFF\xC0\xC0\xC0\0\0", 8)));
    auto right_end = text_at(95, 100, "1.234,50");
    right_end.y2 = right_end.grassetto = 1;
    using enum tipo_record;
    const printed_pdf made =
        make({{shape(riquadro, 20, 20, 80, 60, 0x0000FF, 1),
               shape(riquadro, 40, 30, 60, 50, 0xFF0000, 1),
               shape(linea, 20, 40, 80, 40, 0xFFFFFF, 1),
               shape(riquadro, 120, 60, 100, 20, 0xFF0000, 0),
               {figura, 50, 70, 0, 0, 0, 0, " C:\\MIRWIN\\LOGO.BMP ", "", 0, 0},
               right_end,
               text_at(100, 110, "sinistra")}});
    const QImage page = made.page(1);
    constexpr double point = 25.4 / 96;
    const std::tuple<double, double, const char*> dots[] = {
        {30, 30, "red"},
        {50, 45, "blue"},
        {50, 40, "white"},
        {110, 20, "blue"},
        {110, 40, "white"},
        {50 + 0.5 * point, 70 + 0.5 * point, "red"},
        {50 + 1.5 * point, 70 + 0.5 * point, "white"}};
    for (const auto& [x, y, colour] : dots) {
        EXPECT_EQ(printed_pdf::at(page, x, y), QColor(colour)) << x << " " << y;
    }
    EXPECT_NEAR(made.place_of("1.234,50").right(), 95, 0.1);
    EXPECT_NEAR(made.place_of("sinistra").left(), 100, 0.1);
}

}  // namespace
}  // namespace vantora::test
