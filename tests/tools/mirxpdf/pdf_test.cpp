#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <regex>
#include <sstream>

#include "run_of_program.h"

namespace vantora::test {
namespace {

using rgb = std::array<int, 3>;
constexpr rgb white = {255, 255, 255};
constexpr rgb red = {255, 0, 0};
constexpr rgb blue = {0, 0, 255};

struct mirxpdf_pdf : testing::Test {
    void make(const std::vector<pdf_drive::page>& pages, std::string_view mark = marca_verticale) {
        drive.write_print_file(pages, mark);
        const auto result = drive.run({report_call});
        ASSERT_EQ(result.exit_code, 0) << result.said;
    }
    pdf_drive drive;
};

TEST_F(mirxpdf_pdf, PagesHaveTheSizeAndNumberThatTheFileSays) {
    const pdf_drive::page text = {text_at(20, 30, "Pagina")};
    make({{}, text, {}});
    EXPECT_TRUE(std::regex_search(drive.run_command({"pdfinfo", "doc.pdf"}).said,
                                  std::regex("Pages: +3\n[\\s\\S]*595 x 842 pts")));
    make({text}, marca_orizzontale);
    EXPECT_TRUE(std::regex_search(drive.run_command({"pdfinfo", "doc.pdf"}).said,
                                  std::regex("Pages: +1\n[\\s\\S]*842 x 595 pts")));
}

record_di_stampa shape(tipo_record kind, double x1, double y1, double x2, double y2, double colour,
                       double mark) {
    return {kind, x1, y1, x2, y2, 0, colour, "", "", mark, 0};
}

/// How marks look is the painter's affair; here, that each record becomes its mark.
TEST_F(mirxpdf_pdf, EveryRecordIsDrawnInItsPlaceAndOrder) {
    // Two points, red and the light grey that is left out.
    std::string logo(54, '\0');
    logo.replace(0, 2, "BM");
    constexpr std::pair<std::size_t, char> head[] = {{10, 54}, {14, 40}, {18, 2},
                                                     {22, 1},  {26, 1},  {28, 24}};
    for (const auto& [at, value] : head) logo[at] = value;
    put(drive.at("mirwin/logo.bmp"), logo + std::string("\0\0\xFF\xC0\xC0\xC0\0\0", 8));
    auto right_end = text_at(95, 100, "1.234,50");
    right_end.y2 = right_end.grassetto = 1;
    using enum tipo_record;
    make({{shape(riquadro, 20, 20, 80, 60, 0x0000FF, 1),
           shape(riquadro, 40, 30, 60, 50, 0xFF0000, 1),
           shape(linea, 20, 40, 80, 40, 0xFFFFFF, 1),
           shape(riquadro, 120, 60, 100, 20, 0xFF0000, 0),
           {figura, 50, 70, 0, 0, 0, 0, " C:\\MIRWIN\\LOGO.BMP ", "", 0, 0},
           right_end,
           text_at(100, 110, "sinistra")}});

    constexpr double dots_per_inch = 384;  // four dots for each point of a picture
    const std::string picture =
        drive.run_command({"pdftoppm", "-r", "384", "-aa", "no", "-aaVector", "no", "doc.pdf"})
            .said;
    std::istringstream header(picture);
    std::string magic;
    std::size_t width = 0, height = 0, depth = 0;
    header >> magic >> width >> height >> depth;
    ASSERT_EQ(magic, "P6");
    const auto begin = static_cast<std::size_t>(header.tellg()) + 1;
    const auto at = [&](double x, double y) {
        const auto dot = [](double mm) {
            return static_cast<std::size_t>(std::floor(mm / 25.4 * dots_per_inch));
        };
        const auto part = [&](std::size_t i) {
            const std::size_t from = begin + 3 * (dot(y) * width + dot(x));
            return static_cast<int>(static_cast<unsigned char>(picture.at(from + i)));
        };
        return rgb{part(0), part(1), part(2)};
    };
    constexpr double point = 25.4 / 96;
    const std::tuple<double, double, rgb> dots[] = {{30, 30, red},
                                                    {50, 45, blue},
                                                    {50, 40, white},
                                                    {110, 20, blue},
                                                    {110, 40, white},
                                                    {50 + 0.5 * point, 70 + 0.5 * point, red},
                                                    {50 + 1.5 * point, 70 + 0.5 * point, white}};
    for (const auto& [x, y, colour] : dots) EXPECT_EQ(at(x, y), colour) << x << " " << y;

    const std::string words = drive.run_command({"pdftotext", "-bbox", "doc.pdf", "-"}).said;
    const auto edge = [&](const std::string& side, const std::string& word) {
        const std::regex form("<word [^>]*" + side + "=\"([0-9.]+)\"[^>]*>" + word + "<");
        std::smatch found;
        return std::regex_search(words, found, form) ? std::stod(found[1]) * 25.4 / 72 : -1;
    };
    EXPECT_NEAR(edge("xMax", "1.234,50"), 95, 0.1);
    EXPECT_NEAR(edge("xMin", "sinistra"), 100, 0.1);
}

}  // namespace
}  // namespace vantora::test
