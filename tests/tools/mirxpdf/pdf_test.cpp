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

/// A page as a viewer shows it.
class picture_of_page {
 public:
    static constexpr double dots_per_inch = 384;  // four dots for each point of a picture

    explicit picture_of_page(std::string ppm) : ppm_(std::move(ppm)) {
        std::istringstream head(ppm_);
        std::string magic;
        int height = 0;
        int depth = 0;
        head >> magic >> width_ >> height >> depth;
        if (magic != "P6" || depth != 255) throw std::runtime_error("no picture");
        begin_ = static_cast<std::size_t>(head.tellg()) + 1;
    }

    /// Colour at a place in millimetres.
    [[nodiscard]] rgb at(double x, double y) const {
        const auto dot = [](double mm) {
            return static_cast<std::size_t>(std::floor(mm / 25.4 * dots_per_inch));
        };
        const std::size_t from = begin_ + 3 * (dot(y) * width_ + dot(x));
        const auto part = [&](std::size_t i) {
            return static_cast<int>(static_cast<unsigned char>(ppm_.at(from + i)));
        };
        return {part(0), part(1), part(2)};
    }

 private:
    std::string ppm_;
    std::size_t width_ = 0;
    std::size_t begin_ = 0;
};

class mirxpdf_pdf : public testing::Test {
 protected:
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

/// How marks look is the painter's affair; here, that each record becomes its mark.
TEST_F(mirxpdf_pdf, EveryRecordIsDrawnInItsPlaceAndOrder) {
    // Two points, red and the light grey that is left out.
    std::string logo(54, '\0');
    logo.replace(0, 2, "BM");
    constexpr std::pair<std::size_t, char> head[] = {{10, 54}, {14, 40}, {18, 2},
                                                     {22, 1},  {26, 1},  {28, 24}};
    for (const auto& [at, value] : head) logo[at] = value;
    put(drive.at("mirwin/logo.bmp"), logo + std::string("\0\0\xFF\xC0\xC0\xC0\0\0", 8));
    auto right_end = text_at(95, 100, "1.234,50", "Arial", 12);
    right_end.y2 = 1;
    right_end.grassetto = 1;
    make({{box_at(20, 20, 80, 60, 0x0000FF, true),
           box_at(40, 30, 60, 50, 0xFF0000, true),
           line_at(20, 40, 80, 40, 0xFFFFFF),
           box_at(120, 60, 100, 20, 0xFF0000, false),
           {tipo_record::figura, 50, 70, 0, 0, 0, 0, " C:\\MIRWIN\\LOGO.BMP ", "", 0, 0},
           right_end,
           text_at(100, 110, "sinistra")}});
    const picture_of_page page(
        drive.run_command({"pdftoppm", "-r", "384", "-aa", "no", "-aaVector", "no", "doc.pdf"})
            .said);
    EXPECT_EQ(page.at(30, 30), red);
    EXPECT_EQ(page.at(50, 45), blue);
    EXPECT_EQ(page.at(50, 40), white);
    EXPECT_EQ(page.at(110, 20), blue);
    EXPECT_EQ(page.at(110, 40), white);
    constexpr double point = 25.4 / 96;
    EXPECT_EQ(page.at(50 + 0.5 * point, 70 + 0.5 * point), red);
    EXPECT_EQ(page.at(50 + 1.5 * point, 70 + 0.5 * point), white);

    const std::string words = drive.run_command({"pdftotext", "-bbox", "doc.pdf", "-"}).said;
    const auto edge = [&](const char* side, const char* word) {
        const std::regex form("<word [^>]*" + std::string(side) + "=\"([0-9.]+)\"[^>]*>" + word +
                              "<");
        std::smatch found;
        return std::regex_search(words, found, form) ? std::stod(found[1]) * 25.4 / 72 : -1;
    };
    EXPECT_NEAR(edge("xMax", "1.234,50"), 95, 0.1);
    EXPECT_NEAR(edge("xMin", "sinistra"), 100, 0.1);
}

}  // namespace
}  // namespace vantora::test
