#include "documents/background.h"

#include <gtest/gtest.h>

#include <ctime>
#include <fstream>
#include <sstream>

#include "documents/document_bench.h"
#include "documents/document_pictures.h"

namespace vantora::test {
namespace {

using ui::script::printed_box;
using ui::script::printed_line;
using ui::script::printed_picture;
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

    std::vector<std::string> file;
    std::istringstream lines(order.print_file());
    for (std::string row; std::getline(lines, row);) file.push_back(row);
    std::string kinds;
    for (std::size_t i = 1; i < file.size(); i += 11) kinds += file[i].at(1);
    EXPECT_EQ(kinds, "23129");
    EXPECT_EQ(file[12 + 5], " 1 \r") << "the file keeps the size as it stands";
    EXPECT_EQ(file[23 + 9], " 1 \r") << "lines carry a mark";
    EXPECT_EQ(file[34 + 3], " 210 \r");
}

TEST(background, CountsOnlyTheElementsInUseAndOnlyWhenSwitchedOn) {
    for (const double count : {-1.0, 1.0, 500.0, 1e9}) {
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
        {"FATTURA NUMERO", 2, "FATTURA NUMERO"},
        {"FATTURA N.", 1, "FATTURA N."},
    };
    for (const auto& one : cases) {
        background_bench order;
        order.element({3, 10, 20, 0, 0, 0, 9}, one.text, "Arial");
        order.app.selezione_2 = one.selezione_2;
        const auto pages = order.print();
        EXPECT_EQ(std::get<printed_text>(pages.at(0).at(0)).text, one.printed);
        EXPECT_NE(order.print_file().find(std::string("\r\n") + one.printed + "\r\n"),
                  std::string::npos);
    }
}

/// A bitmap file of white points, with any size in its head.
std::string bitmap_file(int width, int height, int claimed_width, int claimed_height) {
    std::string bytes(54, '\0');
    const auto put = [&](std::size_t at, int value) {
        for (int i = 0; i < 4; ++i) bytes[at++] = static_cast<char>(value >> 8 * i);
    };
    bytes[0] = 'B';
    bytes[1] = 'M';
    put(10, 54);
    put(14, 40);
    put(18, claimed_width);
    put(22, claimed_height);
    put(26, 1 | 24 << 16);
    const int row = (width * 3 + 3) / 4 * 4;
    put(2, 54 + row * height);
    put(34, row * height);
    return bytes + std::string(static_cast<std::size_t>(row * height), '\xFF');
}

TEST(background, PicturesAreOneMarkEachAndOnlyAsFarAsThePaperGoes) {
    constexpr double side = 25.4 / 96;
    // Paper holds 780 points of 15 twips behind 3.6 mm.
    const struct {
        const char* what;
        std::string file;
        double x, y;
        double width, height;  ///< points; 0: not drawn
        bool told;
    } cases[] = {
        {"small", bitmap_file(5, 2, 5, 2), 10, 20, 5, 2, false},
        {"off the paper", bitmap_file(5, 2, 5, 2), 10, 300, 0, 0, false},
        {"over the edge", bitmap_file(9, 2, 9, 2), 209, 20, 4, 2, false},
        {"no picture", bitmap_file(5, 2, 5, 2).substr(0, 40), 10, 20, 0, 0, false},
        {"claims too many", bitmap_file(5, 2, 30000, 30000), 10, 20, 0, 0, true},
        {"largest", bitmap_file(2000, 2000, 2000, 2000), 10, 20, 756, 1047, false},
    };
    for (const auto& one : cases) {
        background_bench order;
        std::ofstream(order.folder.path() / "logo.bmp", std::ios::binary) << one.file;
        order.element({4, one.x, one.y, 3, 4}, " c:\\LOGO.bmp ");
        order.bench.desk.queue_answer(ui::answer::yes);
        order.bench.desk.queue_answer(ui::answer::ok);
        stampa_documento(order.app, order.document());
        const auto pages = order.bench.paper.take_jobs().at(0).pages;
        const bool told = order.bench.desk.take_answered().size() == 2;
        EXPECT_EQ(told, one.told) << one.what;
        ASSERT_EQ(pages.at(0).size(), one.width > 0 ? 1U : 0U) << one.what;
        if (one.width > 0) {
            const auto& drawn = std::get<printed_picture>(pages[0][0]);
            EXPECT_NEAR(drawn.x, one.x, 0.03) << one.what;
            EXPECT_NEAR(drawn.width, one.width * side, 0.01) << one.what;
            EXPECT_NEAR(drawn.height, one.height * side, 0.01) << one.what;
            EXPECT_FALSE(order.figure.visible()) << one.what;
        }
        EXPECT_NE(order.print_file().find("\r\n c:\\LOGO.bmp \r\n"), std::string::npos)
            << "its record stands in any case";
    }
}

TEST(background, APictureThatCantBeReadLeavesTheOneBeforeAndManyAreReadOnce) {
    background_bench order;
    std::ofstream(order.folder.path() / "logo.bmp", std::ios::binary)
        << bitmap_file(300, 300, 300, 300);
    order.element({4, 10, 20}, "\\manca.bmp");
    for (int i = 0; i < 498; ++i) order.element({4, 10, 20}, i == 1 ? "\\manca.bmp" : "\\logo.bmp");
    order.fill_lines(20);
    order.bench.desk.queue_answer(ui::answer::yes);
    order.bench.desk.queue_answer(ui::answer::ok);
    const std::clock_t begin = std::clock();
    stampa_documento(order.app, order.document());
    EXPECT_LT(std::clock() - begin, 2 * CLOCKS_PER_SEC);
    const auto pages = order.bench.paper.take_jobs().at(0).pages;
    ASSERT_EQ(pages.size(), 20U);
    EXPECT_EQ(pages[19].size(), punti_per_pagina / (300 * 300)) << "as many as a page has room for";
    const auto told = order.bench.desk.take_answered();
    ASSERT_EQ(told.size(), 2U) << "once, however many";
    EXPECT_NE(told[1].box.text.find("\\logo.bmp"), std::string::npos);
}

}  // namespace
}  // namespace vantora::test
