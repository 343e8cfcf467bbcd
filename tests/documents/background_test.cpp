#include "documents/background.h"

#include <gtest/gtest.h>

#include <ctime>
#include <fstream>

#include "documents/document_pictures.h"
#include "documents/document_stage.h"
#include "support/faulty_files.h"
#include "support/picture_file.h"

namespace vantora::test {
namespace {

/// One page on an empty order, with its background.
struct background_stage : document_stage {
    background_stage() {
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
    background_stage order;
    order.element({3, 10, 20, 0, 0, 255, 1, 1, 0}, "Nota", "Verdana");
    order.element({1, 300, -5, 100, 400, -1});
    order.element({2, -3, 5, 250, 60, 9, 0});
    order.element({2, 10, 10, 50, 60, 8, 1});
    order.element({2, 10, 10, 50, 60, 8, 2});
    order.element({7, 10, 10, 50, 60, 8, 1});
    order.element({4, 9, 10, 40, -2, 7}, "\\manca.bmp");
    EXPECT_EQ(order.shown(order.print().at(0)),
              "filled 10 10 50 60 ink 8\n"
              "text 10 20 Nota, Verdana 2 bold ink 255\n"
              "line 300 0 100 297 ink 255\n"
              "box 0 5 210 60 ink 9\n")
        << "no text is below 2 points; a colour that is none is the one in force";
    EXPECT_EQ(
        order.print_file(),
        "#FILEFORMAT=KLP-RTO\r\n"
        " 0 \r\n 9 \r\n 10 \r\n 40 \r\n-2 \r\n 0 \r\n\r\n\\manca.bmp\r\n\r\n 0 \r\n 0 \r\n"
        " 2 \r\n 10 \r\n 10 \r\n 50 \r\n 60 \r\n 0 \r\n 8 \r\n\r\n\r\n 1 \r\n 0 \r\n"
        " 3 \r\n 10 \r\n 20 \r\n 0 \r\n 0 \r\n 1 \r\n 255 \r\nNota\r\nVerdana\r\n 1 \r\n 0 \r\n"
        " 1 \r\n 300 \r\n 0 \r\n 100 \r\n 297 \r\n 0 \r\n-1 \r\n\r\n\r\n 1 \r\n 0 \r\n"
        " 2 \r\n 0 \r\n 5 \r\n 210 \r\n 60 \r\n 0 \r\n 9 \r\n\r\n\r\n 0 \r\n 0 \r\n"
        " 9 \r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n")
        << "the file keeps the size as it stands, and the picture that isn't there";
}

TEST(background, CountsOnlyTheElementsInUseAndOnlyWhenSwitchedOn) {
    background_stage order;
    for (std::size_t i = 1; i <= 500; ++i) order.background.elenco[i].valori = {1, 1, 1, 2, 2};
    for (const double count : {-1.0, 1.0, 500.0, 1e9}) {
        order.background.elementi = count;
        EXPECT_EQ(order.print().at(0).size(), std::clamp(count, 0.0, 500.0));
    }
    order.tables.tabella_layout[99].posizione = "000002";
    EXPECT_TRUE(order.print().at(0).empty());
}

/// On every page, and told once.
TEST(background, TextsThatAreTooLongAreCutOrLeftOutAlone) {
    background_stage order;
    order.element({3, 10, 20}, "lungo" + std::string(testo_piu_lungo, 'x'));
    for (std::size_t i = 2; i < caratteri_sfondo / testo_piu_lungo; ++i) {
        order.element({3, 10, 20}, std::string(testo_piu_lungo, 'y'));
    }
    order.element({3, 10, 20}, std::string(testo_piu_lungo - 5, 'z'));
    order.element({3, 10, 20}, "di troppo");
    order.element({3, 10, 20}, "Nota");
    order.fill_lines(2);
    order.front.answers.keep(ui::answer::yes);
    order.front.answers.keep(ui::answer::ok);
    stampa_documento(order.app, order.document());
    const auto pages = order.paper.take_jobs().at(0).pages;
    ASSERT_EQ(pages.size(), 2U);
    for (const auto& page : pages) {
        const auto texts = order.texts(page);
        EXPECT_EQ(texts.front().size(), testo_piu_lungo);
        EXPECT_EQ(std::ranges::count(texts, "Nota"), 1);
        EXPECT_EQ(std::ranges::count(texts, "di troppo"), 0);
    }
    std::string told;
    for (const auto& one : order.front.answers.take_answered()) told = one.box.text;
    EXPECT_TRUE(told.ends_with(": lungo" + std::string(25, 'x') + ", di troppo")) << told;
}

TEST(background, InvoiceNumbersBecomeCreditNotes) {
    background_stage order;
    for (const char* text : {"FATTURA NUMERO", "FATTURA N."}) order.element({3, 10, 20}, text);
    for (const char* printed : {"FATTURA NUMERO", "Nota credito numero"}) {
        EXPECT_EQ(order.texts(order.print().at(0)),
                  (std::vector<std::string>{printed, "FATTURA N."}));
        EXPECT_NE(order.print_file().find("\r\n" + std::string(printed) + "\r\n"),
                  std::string::npos);
        order.app.selezione_2 = 1;
    }
}

std::string of_hex(std::string_view digits) {
    std::string made;
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        made += static_cast<char>(std::stoi(std::string(digits.substr(i, 2)), nullptr, 16));
    }
    return made;
}

TEST(background, PicturesOfFourKindsAreReadAndOthersAreToldWithoutReadingThem) {
    const std::string gif = of_hex("474946383961010001008000000000ff000000");
    const std::string frame = of_hex("2c0000000001000100000202440100");
    std::string frames = gif;
    for (int i = 0; i < 200'000; ++i) frames += frame;
    // Its drawing takes minutes.
    std::string svg = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'><g id='a0'/>";
    for (int i = 1; i < 30; ++i) {
        const std::string use = "<use href='#a" + std::to_string(i - 1) + "'/>";
        svg += "<g id='a" + std::to_string(i) + "'>" + use + use + "</g>";
    }
    const std::string jpeg =
        of_hex("ffd8ffdb004300") + std::string(64, '\1') +
        of_hex(
            "ffc2000b0807d007d001011100ffc4001500010100000000000000000000000000000001ffc4"
            "00151001010000000000000000000000000000e001ffda00080101000000000000");
    const std::string scan = of_hex("ffda0008010100013f000000");
    std::string scans = jpeg;
    for (int i = 0; i < 20'000; ++i) scans += scan;
    using kind = std::tuple<const char*, std::string, bool, bool>;
    const kind kinds[] = {
        {"BMP", picture_file(1, 1), true, false},
        {"PNG",
         of_hex("89504e470d0a1a0a0000000d4948445200000001000000010802000000907753de0000000c49"
                "444154789c63f8cfc0000003010100c9fe92ef0000000049454e44ae426082"),
         true, false},
        {"GIF", gif + frame + ";", true, false},
        {"many GIF", frames, true, false},
        {"JPEG", jpeg + scan + "\xFF\xD9", true, false},
        {"JPEG of many scans", scans, false, false},
        {"SVG", svg + "</svg>", false, true},
        {"XPM", "/* XPM */ static char *x[] = {\"1 1 1 1\", \"a c #FF0000\", \"a\"};", false, true},
        {"PPM", "P6 1 1 255\n\xFF\xFF\x01", false, true},
        {"text", "no picture at all", false, false},
        {"nothing", "", false, false}};
    ui::pixbuf_decoder decoder;
    const auto begun = std::clock();
    for (const auto& [name, bytes, read, told] : kinds) {
        const auto got = decoder.decode(bytes);
        EXPECT_EQ(got.image.has_value(), read) << name;
        EXPECT_EQ(got.other_kind, told) << name;
    }
    EXPECT_LT(std::clock() - begun, CLOCKS_PER_SEC);
}

/// Prints with pictures, and gives what is told of those left out.
std::string told(background_stage& order, const std::string& logo) {
    std::ofstream(order.folder.path() / "logo.bmp", std::ios::binary) << logo;
    order.front.answers.keep(ui::answer::yes);
    order.front.answers.keep(ui::answer::ok);
    stampa_documento(order.app, order.document());
    std::string all;
    for (const auto& one : order.front.answers.take_answered()) all += one.box.text + "|";
    return all;
}

const std::string question = "Iniziare la stampa?|";
const std::string left_out =
    question + "Il documento \xE8 stampato senza figure troppo grandi: c:\\LOGO.bmp|";

TEST(background, PicturesAreOneMarkEachAndOnlyAsFarAsThePaperGoes) {
    constexpr double side = 25.4 / 96;
    // Paper holds 780 points of 15 twips behind 3.6 mm.
    const struct {
        const char* what;
        std::string file;
        double x, y;
        double width, height;  ///< points; 0: not drawn
        std::string told;
    } cases[] = {
        {"small", picture_file(5, 2), 10, 20, 5, 2, question},
        {"off the paper", picture_file(5, 2), 10, 300, 0, 0, question},
        {"over the edge", picture_file(9, 2), 209, 20, 4, 2, question},
        {"no picture", picture_file(5, 2).substr(0, 8), 10, 20, 0, 0, question},
        {"other kind", "P6 1 1 255\n\xFF\xFF\x01", 10, 20, 0, 0,
         question + "Si leggono solo figure BMP, PNG, JPEG e GIF, non queste: c:\\LOGO.bmp|"},
        {"claims too many", picture_file(5, 2, 30000), 10, 20, 0, 0, left_out},
        {"largest", picture_file(2000, 2000), 10, 20, 756, 1047, question}};
    for (const auto& one : cases) {
        background_stage order;
        order.element({4, one.x, one.y, 3, 4}, " c:\\LOGO.bmp ");
        EXPECT_EQ(told(order, one.file), one.told) << one.what;
        const auto page = order.paper.take_jobs().at(0).pages.at(0);
        ASSERT_EQ(page.size(), one.width > 0 ? 1U : 0U) << one.what;
        for (const auto& mark : page) {
            const auto& drawn = std::get<ui::script::printed_picture>(mark);
            EXPECT_NEAR(drawn.x, one.x, 0.03) << one.what;
            EXPECT_NEAR(drawn.width, one.width * side, 0.01) << one.what;
            EXPECT_NEAR(drawn.height, one.height * side, 0.01) << one.what;
            EXPECT_FALSE(order.figure.visible()) << one.what;
        }
    }
}

TEST(background, APictureThatCantBeReadLeavesTheOneBeforeAndManyAreReadOnce) {
    background_stage order;
    for (int i = 0; i < 499; ++i) {
        order.element({4, 10, 20}, i == 0 || i == 2 ? "\\manca.bmp" : "c:\\LOGO.bmp");
    }
    order.fill_lines(20);
    EXPECT_EQ(told(order, picture_file(300, 300)), left_out) << "once, however many";
    const auto pages = order.paper.take_jobs().at(0).pages;
    ASSERT_EQ(pages.size(), 20U);
    EXPECT_EQ(pages[19].size(), punti_per_pagina / (300 * 300)) << "as many as a page has room for";
}

/// Decoding is dear, also of what doesn't find room on the page in the end.
TEST(background, NoMoreFilesAreReadThanADocumentMayCost) {
    document_stage order;
    faulty_files counted(order.files);
    figure_documento pictures(counted, order.pictures);
    const auto first = order.folder.path() / "0";
    std::ofstream(first, std::ios::binary) << picture_file(1000, 1000);
    for (int i = 0; i < 40; ++i) {
        const std::string name = std::to_string(i);
        if (i > 0) std::filesystem::create_hard_link(first, order.folder.path() / name);
        pictures.begin_page();
        pictures.at("c:\\" + name, 1, 1, 210, 297);
    }
    EXPECT_EQ(counted.reads, 10U);
    EXPECT_EQ(pictures.left_out().size(), 36U)
        << "all but four, each whole and as far as paper goes";
}

}  // namespace
}  // namespace vantora::test
