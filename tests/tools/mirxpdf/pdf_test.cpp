#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <regex>
#include <set>
#include <sstream>

#include "run_of_program.h"
#include "store/text/code_page.h"

namespace vantora::test {
namespace {

using rgb = std::array<int, 3>;
constexpr rgb white = {255, 255, 255};
constexpr rgb red = {255, 0, 0};
constexpr rgb blue = {0, 0, 255};
constexpr rgb yellow = {255, 255, 0};
constexpr double red_ink = 0x0000FF;
constexpr double blue_ink = 0xFF0000;
constexpr double yellow_ink = 0x00FFFF;

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

/// A word and the box of its letters, in millimetres.
struct word {
    std::string text;
    double left, top, right, bottom;
};

class mirxpdf_pdf : public testing::Test {
 protected:
    void make(const std::vector<pdf_drive::page>& pages, std::string_view mark = marca_verticale) {
        drive.write_print_file(pages, mark);
        const auto result = drive.run({report_call});
        ASSERT_EQ(result.exit_code, 0) << result.said;
    }
    std::string told_by(std::vector<std::string> tool) {
        tool.emplace_back("doc.pdf");
        if (tool[0] == "pdftotext") tool.emplace_back("-");
        const auto result = drive.run_command(tool);
        EXPECT_EQ(result.exit_code, 0) << tool[0] << result.said;
        return result.said;
    }
    std::vector<word> words() {
        const std::string found = told_by({"pdftotext", "-bbox"});
        const std::regex form(
            R"re(<word xMin="(.*?)" yMin="(.*?)" xMax="(.*?)" yMax="(.*?)">(.*?)</word>)re");
        std::vector<word> all;
        for (std::sregex_iterator at(found.begin(), found.end(), form), end; at != end; ++at) {
            const auto millimetres = [&](std::size_t i) {
                return std::stod((*at)[i].str()) * 25.4 / 72;
            };
            all.push_back(
                {(*at)[5].str(), millimetres(1), millimetres(2), millimetres(3), millimetres(4)});
        }
        return all;
    }
    picture_of_page picture() {
        const std::string resolution = std::to_string(picture_of_page::dots_per_inch);
        return picture_of_page(
            told_by({"pdftoppm", "-r", resolution, "-aa", "no", "-aaVector", "no"}));
    }

    pdf_drive drive;
};

TEST_F(mirxpdf_pdf, PagesHaveTheSizeAndNumberThatTheFileSays) {
    const pdf_drive::page text = {text_at(20, 30, "Pagina")};
    const struct {
        std::string_view mark;
        std::vector<pdf_drive::page> pages;
        std::vector<const char*> told;
    } cases[] = {
        {marca_verticale, {text}, {"Pages:           1\n", "595 x 842 pts (A4)"}},
        {marca_orizzontale, {text, text, text}, {"Pages:           3\n", "842 x 595 pts (A4)"}},
        {marca_verticale, {{}, text, {}}, {"Pages:           3\n"}},
    };
    for (const auto& one : cases) {
        make(one.pages, one.mark);
        const std::string info = told_by({"pdfinfo"});
        for (const char* told : one.told) EXPECT_NE(info.find(told), std::string::npos) << info;
    }
}

TEST_F(mirxpdf_pdf, ADocumentWithoutPagesGivesAPdfWithoutPages) {
    make({});
    const std::string pdf = bytes_of(drive.at("doc.pdf"));
    EXPECT_TRUE(pdf.starts_with("%PDF-1.")) << pdf;
    EXPECT_NE(pdf.find("/Kids [] /Count 0"), std::string::npos);
    // Its table of objects is where it says, and says where they are.
    const std::size_t start = pdf.find("startxref\n");
    ASSERT_NE(start, std::string::npos);
    const std::size_t table = std::stoul(pdf.substr(start + 10));
    EXPECT_EQ(pdf.substr(table, 9), "xref\n0 3\n");
    for (std::size_t object = 1; object < 3; ++object) {
        const std::size_t place = std::stoul(pdf.substr(table + 9 + 20 * object, 10));
        EXPECT_EQ(pdf.substr(place, 7), std::to_string(object) + " 0 obj");
    }
}

TEST_F(mirxpdf_pdf, EveryTextStandsOnItsPage) {
    make({{text_at(20, 30, from_utf8("Perché l'articolo costa 12,50 €")),
           text_at(20, 40, "a (b) \\ <c> & %d"), text_at(20, 50, "tab\tulato\x01"),
           text_at(20, 60, "")},
          {text_at(-3, 280, "oltre il margine")},
          {text_at(20, 30, "ultima", "Nessun Carattere", 0.2)}});
    std::vector<std::string> pages;
    std::istringstream all(told_by({"pdftotext", "-layout"}));
    for (std::string page; std::getline(all, page, '\f');) pages.push_back(page);
    ASSERT_EQ(pages.size(), 3U);
    for (const char* text : {"Perché l'articolo costa 12,50 €", "a (b) \\ <c> & %d", "tabulato"}) {
        EXPECT_NE(pages[0].find(text), std::string::npos) << pages[0];
    }
    EXPECT_NE(pages[1].find("il margine"), std::string::npos);
    EXPECT_NE(pages[2].find("ultima"), std::string::npos);
}

TEST_F(mirxpdf_pdf, TextStandsByItsUpperLeftCornerOrItsRightEnd) {
    constexpr double exact = 0.1;
    pdf_drive::page page;
    const double sizes[] = {7, 8.5, 12, 24};
    const auto top_for = [](double size) { return 20 + 8 * size; };
    for (const double size : sizes) {
        page.push_back(text_at(100, top_for(size), "sinistra", "Arial", size));
        page.push_back(text_at(95, top_for(size), "1.234,50", "Arial", size));
        page.back().y2 = 1;
        page.back().grassetto = 1;
    }
    make({page});
    const auto found = words();
    ASSERT_EQ(found.size(), page.size());
    for (const word& one : found) {
        const bool from_left = one.text == "sinistra";
        EXPECT_NEAR(from_left ? one.left : one.right, from_left ? 100 : 95, exact) << one.text;
        EXPECT_TRUE(std::ranges::any_of(
            sizes, [&](double size) { return std::abs(one.top - top_for(size)) < exact; }))
            << one.text << one.top;
    }
}

TEST_F(mirxpdf_pdf, FontsAreEmbeddedUnderTheirStandIns) {
    auto bold = text_at(20, 30, "grassetto");
    bold.grassetto = 1;
    auto italic = text_at(20, 40, "corsivo", "Verdana");
    italic.corsivo = 1;
    make({{bold, italic, text_at(20, 50, "normale", "arial")}});
    std::istringstream fonts(told_by({"pdffonts"}));
    std::string line;
    std::getline(fonts, line);
    const std::size_t embedded = line.find("emb");
    std::getline(fonts, line);
    std::set<std::string> names;
    while (std::getline(fonts, line)) {
        EXPECT_EQ(line.substr(embedded, 3), "yes") << line;
        names.insert(line.substr(0, line.find(' ')));
    }
    // The real ones are taken where they are installed.
    for (const char* of_kind :
         {"(LiberationSans|Arial).*Bold.*", "(DejaVuSans|Verdana).*(Oblique|Italic).*",
          "(LiberationSans|Arial(MT)?)"}) {
        const auto fits = [kind = std::regex(of_kind)](const std::string& name) {
            return std::regex_match(name, kind);
        };
        EXPECT_TRUE(std::ranges::any_of(names, fits)) << of_kind << testing::PrintToString(names);
    }
}

TEST_F(mirxpdf_pdf, LinesAndBoxesLieOverEachOtherInTheOrderOfTheFile) {
    make({{box_at(20, 20, 80, 60, red_ink, true), box_at(40, 30, 60, 50, blue_ink, true),
           line_at(20, 40, 80, 40, 0xFFFFFF), box_at(120, 60, 100, 20, blue_ink, false),
           line_at(10, 100, 200, 100, red_ink), line_at(10, 110, 20, 110, 1e12)}});
    const auto page = picture();
    EXPECT_EQ(page.at(30, 30), red);
    EXPECT_EQ(page.at(79.8, 59.8), red);
    EXPECT_EQ(page.at(80.2, 60.2), white);
    EXPECT_EQ(page.at(50, 45), blue);
    EXPECT_EQ(page.at(50, 40), white);
    EXPECT_EQ(page.at(110, 20), blue);
    EXPECT_EQ(page.at(100, 40), blue);
    EXPECT_EQ(page.at(110, 40), white);
    EXPECT_EQ(page.at(199, 100), red);
    EXPECT_EQ(page.at(201, 100), white);
    EXPECT_EQ(page.at(15, 110), (rgb{0, 0, 0}));
}

/// A picture file of colours by rows, blue in the low byte.
std::string bmp(const std::vector<std::vector<unsigned>>& rows) {
    const auto number = [](std::size_t value, int bytes) {
        std::string made;
        for (; bytes > 0; --bytes, value >>= 8) made += static_cast<char>(value);
        return made;
    };
    std::string points;
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        std::string line;
        for (const unsigned point : *row) line += number(point, 3);
        line.resize((line.size() + 3) / 4 * 4);
        points += line;
    }
    return "BM" + number(54 + points.size(), 4) + number(0, 4) + number(54, 4) + number(40, 4) +
           number(rows[0].size(), 4) + number(rows.size(), 4) + number(1, 2) + number(24, 2) +
           number(0, 4) + number(points.size(), 4) + number(0, 16) + points;
}

record_di_stampa picture_at(double x, double y, const std::string& path) {
    return {tipo_record::figura, x, y, 0, 0, 0, 0, path, "", 0, 0};
}

TEST_F(mirxpdf_pdf, APointOfAPictureTakesFifteenTwipsAndLightGreyNone) {
    constexpr unsigned grey = 0xC0C0C0;
    constexpr unsigned almost = 0xC1C0C0;
    put(drive.at("mirwin/mirwin/miraz0.001/logo.bmp"),
        bmp({{0xFF0000, grey, 0x0000FF}, {grey, almost, 0xFF0000}}));
    const auto logo = picture_at(50, 70, " C:\\MIRWIN\\MirWin\\miraz0.001\\LOGO.BMP ");
    make({{box_at(40, 60, 60, 80, yellow_ink, true), logo}, {logo}});
    const auto page = picture();
    constexpr double point = 25.4 / 96;
    const rgb expected[2][3] = {{red, yellow, blue}, {yellow, {0xC1, 0xC0, 0xC0}, red}};
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 3; ++column) {
            const rgb found = page.at(50 + (column + 0.5) * point, 70 + (row + 0.5) * point);
            EXPECT_EQ(found, expected[row][column]) << row << ' ' << column;
        }
    }
    EXPECT_EQ(page.at(50 + 3.5 * point, 70 + 0.5 * point), yellow);
    EXPECT_EQ(page.at(50 + 0.5 * point, 70 + 2.5 * point), yellow);
}

TEST_F(mirxpdf_pdf, PicturesThatAreNotDrawnDisturbNothing) {
    put(drive.at("logo.bmp"), bmp({{0xFF0000}}));
    put(drive.at("cut.bmp"), bmp({{0xFF0000}}).substr(0, 30));
    std::filesystem::create_directory(drive.at("folder.bmp"));
    make({{picture_at(20, 20, "\\missing.bmp"), picture_at(20, 30, "\\cut.bmp"),
           picture_at(20, 40, "\\folder.bmp"), picture_at(20, 50, "  "),
           picture_at(0, 60, "\\logo.bmp"), picture_at(20, -1, "\\logo.bmp"),
           text_at(20, 80, "testo")}});
    EXPECT_EQ(words().size(), 1U);
    const std::string images = told_by({"pdfimages", "-list"});
    EXPECT_EQ(std::ranges::count(images, '\n'), 2) << images;
}

}  // namespace
}  // namespace vantora::test
