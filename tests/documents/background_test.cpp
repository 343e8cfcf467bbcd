#include "documents/background.h"

#include <gtest/gtest.h>

#include "documents/document_bench.h"

namespace vantora::test {
namespace {

using ui::script::printed_box;
using ui::script::printed_line;
using ui::script::printed_text;

/// One page on an empty order, with its background.
struct background_bench : document_bench {
    background_bench() {
        body("100", "104");
        fill_lines(1);
        tables.tabella_layout[99].posizione = "000001";
    }
    void element(std::array<double, 9> values, std::string text = "", std::string font = "") {
        const auto place = static_cast<std::size_t>(++background.elementi);
        background.elenco[place] = {values, {std::move(text), std::move(font)}};
    }
};

TEST(background, DrawsFilledBoxesUnderTheRestAndPullsItIntoThePage) {
    background_bench order;
    order.element({3, 10, 20, 0, 0, 255, 1, 1, 0}, "Nota", "Verdana");
    order.element({1, 300, -5, 100, 400, 7});
    order.element({2, -3, 5, 250, 60, 9, 0});
    order.element({2, 10, 10, 50, 60, 8, 1});
    order.element({2, 10, 10, 50, 60, 8, 2});
    order.element({7, 10, 10, 50, 60, 8, 1});
    const auto pages = order.print();
    ASSERT_EQ(pages.size(), 1U);
    ASSERT_EQ(pages[0].size(), 4U);
    const auto& filled = std::get<printed_box>(pages[0][0]);
    EXPECT_TRUE(filled.filled);
    EXPECT_EQ(filled.ink, 8U);
    const auto& text = std::get<printed_text>(pages[0][1]);
    EXPECT_EQ(text.font, (ui::font{"Verdana", 2, true, false})) << "no text is below 2 points";
    const auto& line = std::get<printed_line>(pages[0][2]);
    EXPECT_EQ(std::tie(line.x1, line.y1, line.x2, line.y2),
              std::make_tuple(300.0, 0.0, 100.0, 297.0));
    const auto& outline = std::get<printed_box>(pages[0][3]);
    EXPECT_FALSE(outline.filled);
    EXPECT_EQ(std::tie(outline.x1, outline.x2), std::make_tuple(0.0, 210.0));

    const auto file = order.print_file();
    std::vector<std::string> kinds;
    for (std::size_t i = 1; i < file.size(); i += 11) kinds.push_back(file[i]);
    EXPECT_EQ(kinds, (std::vector<std::string>{" 2 \r", " 3 \r", " 1 \r", " 2 \r", " 9 \r"}));
    EXPECT_EQ(file[12 + 5], " 1 \r") << "the file keeps the size as it stands";
    EXPECT_EQ(file[23 + 9], " 1 \r") << "lines carry a mark";
    EXPECT_EQ(file[34 + 3], " 210 \r");
}

TEST(background, CountsOnlyTheElementsInUseAndOnlyWhenSwitchedOn) {
    for (const double count : {-1.0, 0.0, 1.0, 500.0, 501.0, 1e9}) {
        background_bench order;
        for (std::size_t i = 1; i <= 500; ++i) order.background.elenco[i].valori = {1, 1, 1, 2, 2};
        order.background.elementi = count;
        const auto pages = order.print();
        ASSERT_EQ(pages.size(), 1U);
        EXPECT_EQ(pages[0].size(), static_cast<std::size_t>(std::clamp(count, 0.0, 500.0)));
    }
    background_bench order;
    order.element({1, 1, 1, 2, 2});
    order.tables.tabella_layout[99].posizione = "000002";
    EXPECT_TRUE(order.print().at(0).empty());
}

TEST(background, InvoiceNumbersBecomeCreditNotes) {
    const struct {
        const char* text;
        std::int16_t selezione_2;
        const char* printed;
    } cases[] = {
        {"FATTURA NUMERO", 1, "Nota credito numero"},
        {" Fattura numero ", 1, "Nota credito numero"},
        {"FATTURA NUMERO", 2, "FATTURA NUMERO"},
        {"FATTURA N.", 1, "FATTURA N."},
    };
    for (const auto& one : cases) {
        background_bench order;
        order.element({3, 10, 20, 0, 0, 0, 9}, one.text, "Arial");
        order.app.selezione_2 = one.selezione_2;
        const auto pages = order.print();
        EXPECT_EQ(std::get<printed_text>(pages.at(0).at(0)).text, one.printed);
        EXPECT_EQ(order.print_file().at(8), std::string(one.printed) + "\r");
    }
}

/// A bitmap file of two points a row: red and light grey, light grey and blue.
std::string small_bitmap() {
    const unsigned char bytes[] = {'B', 'M', 70, 0, 0, 0, 0, 0, 0, 0, 54, 0, 0, 0, 40, 0, 0, 0, 2,
                                   0, 0, 0, 2, 0, 0, 0, 1, 0, 24, 0, 0, 0, 0, 0, 16, 0, 0, 0, 0, 0,
                                   0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
                                   // from the bottom row up: blue, green, red
                                   192, 192, 192, 255, 0, 0, 0, 0, 0, 0, 255, 192, 192, 192, 0, 0};
    return {reinterpret_cast<const char*>(bytes), sizeof bytes};
}

TEST(background, PicturesArePrintedPointByPointWithoutTheirLightGrey) {
    background_bench order;
    std::ofstream(order.folder.path() / "logo.bmp", std::ios::binary) << small_bitmap();
    order.element({4, 10, 20, 3, 4}, " c:\\LOGO.bmp ");
    const auto pages = order.print();
    ASSERT_EQ(pages.at(0).size(), 2U);
    const auto& red = std::get<printed_box>(pages[0][0]);
    const auto& blue = std::get<printed_box>(pages[0][1]);
    EXPECT_EQ(red.ink, 0x0000FFU);
    EXPECT_EQ(blue.ink, 0xFF0000U);
    constexpr double point = 25.4 / 96;
    EXPECT_NEAR(red.x1, 10, 0.01);
    EXPECT_NEAR(red.y1, 20, 0.01);
    EXPECT_NEAR(red.x2 - red.x1, point, 0.001);
    EXPECT_NEAR(blue.x1 - red.x1, point, 0.001);
    EXPECT_NEAR(blue.y1 - red.y1, point, 0.001);
    EXPECT_FALSE(order.figure.visible());
    const std::vector<std::string> record = {" 0 \r", " 10 \r", " 20 \r", " 3 \r",
                                             " 4 \r", " 0 \r",  "\r",     " c:\\LOGO.bmp \r",
                                             "\r",    " 0 \r",  " 0 \r"};
    const auto file = order.print_file();
    EXPECT_EQ(std::vector<std::string>(file.begin() + 1, file.begin() + 12), record);
}

TEST(background, APictureThatCantBeReadLeavesTheOneBefore) {
    background_bench order;
    std::ofstream(order.folder.path() / "logo.bmp", std::ios::binary) << small_bitmap();
    std::ofstream(order.folder.path() / "rotto.bmp", std::ios::binary)
        << small_bitmap().substr(0, 40);
    order.element({4, 10, 20}, "\\rotto.bmp");
    order.element({4, 10, 20}, "\\logo.bmp");
    order.element({4, 10, 20}, "\\manca.bmp");
    order.element({4, 0, 20}, "\\logo.bmp");
    order.element({4, 10, 20}, "  ");
    const auto pages = order.print();
    EXPECT_EQ(pages.at(0).size(), 4U) << "nothing, the logo, the logo again, and no place";
    EXPECT_EQ(order.print_file().size(), 1U + 11 * 6) << "each has its record all the same";
}

}  // namespace
}  // namespace vantora::test
