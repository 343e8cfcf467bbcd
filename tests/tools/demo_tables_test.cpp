#include <gtest/gtest.h>

#include "demo_folder.h"
#include "store/drive.h"
#include "store/parameters.h"
#include "store/text/code_page.h"
#include "store/text/number_text.h"
#include "store/text_reader.h"

namespace vantora::test {
namespace {

class demo_tables : public testing::Test {
 protected:
    demo_folder made_{{.numero_azienda = 7, .orders = 3, .articles = 5, .customers = 4}};
};

TEST_F(demo_tables, suite_table_has_its_fifteen_sections_and_nothing_else) {
    const struct {
        int groups;
        std::string_view shape;  ///< L a line, I an item
        std::string first;       ///< first value of the section
    } sections[] = {
        {8, "LLLL", "22"},
        {8, "LLL", ""},
        {9, "IL", ""},
        {9, "LL", ""},
        {30, "LL", "Rimessa diretta"},
        {9, "II", ""},
        {40, "L", ""},
        {40, "L", ""},
        {30, "LLLLL", ""},
        {40, "LLLLLL", "Vendita"},
        {8, "LLLL", ""},
        {8, "LLL", ""},
        {8, "IL", ""},
        {8, "IL", ""},
        {30, "LL", "Ri.Ba. 30 gg d.f.f.m. + 10"},
    };
    text_reader table(bytes_of(made_.file("tab")));
    std::vector<std::vector<std::string>> values;
    for (const auto& one : sections) {
        auto& section = values.emplace_back();
        for (int group = 0; group < one.groups; ++group) {
            for (const char form : one.shape) {
                ASSERT_TRUE(form == 'L' ? table.line(section.emplace_back())
                                        : table.item(section.emplace_back()));
            }
        }
        EXPECT_EQ(section.front(), one.first) << "section " << values.size();
    }
    EXPECT_TRUE(table.at_end());
    EXPECT_EQ(values[0][4 * 1], "10");
    EXPECT_EQ(values[0][4 * 2], "4");
    EXPECT_EQ(values[0][4 * 3], "5");
    EXPECT_EQ(values[2][2 * 1], "Esente art. 10 DPR 633/72");
    EXPECT_EQ(values[2][2 * 4], "Non imp. art. 8, lett. c") << "the comma belongs to the wording";
    EXPECT_EQ(values[9][6 * 7 + 2], "Corriere espresso");
    EXPECT_EQ(values[9][6 * 7 + 3], "*");
}

TEST_F(demo_tables, text_files_have_their_count_of_lines) {
    EXPECT_EQ(lines_of(made_.file("int")).size(), 20U);
    EXPECT_EQ(lines_of(made_.file("pdf")).size(), 80U);
    EXPECT_EQ(lines_of(made_.file("lyo")).size(), 600U);
    EXPECT_EQ(lines_of(made_.file("lyb")).size(), 600U);
    EXPECT_EQ(lines_of(made_.general("eur")).size(), 7U);
    EXPECT_EQ(lines_of(made_.general("tbl")).size(), 5U + 36U + 6U + 6U);
    EXPECT_EQ(std::filesystem::file_size(made_.general("gnr")), 346U);
    EXPECT_EQ(std::filesystem::file_size(made_.file("gnr")), 346U);
}

TEST_F(demo_tables, layouts_place_fields_on_the_page_and_switch_the_drawing_on) {
    const struct {
        std::string extension;
        std::size_t fields, body_top, body_bottom, first_column, last_column;
    } layouts[] = {{"lyo", 67, 68, 69, 70, 78}, {"lyb", 50, 51, 52, 53, 58}};
    for (const auto& layout : layouts) {
        const auto lines = lines_of(made_.file(layout.extension));
        const auto number = [&](std::size_t row, std::size_t from) {
            return number_at_head(lines.at((row - 1) * 6).substr(from, 3));
        };
        int placed = 0;
        for (std::size_t row = 1; row <= layout.fields; ++row) {
            ASSERT_EQ(lines[(row - 1) * 6].size(), 6U) << layout.extension << row;
            EXPECT_LE(number(row, 0), 210);
            EXPECT_LE(number(row, 3), 293);
            placed += number(row, 0) > 0 && number(row, 3) > 0 ? 1 : 0;
        }
        EXPECT_GT(placed, 30) << layout.extension;
        const double height = number(layout.body_bottom, 0) - number(layout.body_top, 0);
        EXPECT_GE(height, 100) << layout.extension;
        EXPECT_EQ(static_cast<int>(height) % 4, 0) << layout.extension;
        for (std::size_t row = layout.first_column; row < layout.first_column + 4; ++row) {
            EXPECT_GT(number(row, 0), 0) << layout.extension << row;
        }
        EXPECT_EQ(number_at_head(lines[98 * 6]), 1) << layout.extension;
    }
}

TEST_F(demo_tables, drawings_hold_as_many_elements_as_they_say) {
    for (const std::string extension : {"lko", "lkb"}) {
        text_reader drawing(bytes_of(made_.file(extension)));
        double elements = 0;
        ASSERT_TRUE(drawing.item(elements));
        EXPECT_GT(elements, 30);
        int pictures = 0;
        for (int i = 0; i < static_cast<int>(elements); ++i) {
            std::string text;
            std::string font;
            ASSERT_TRUE(drawing.line(text));
            ASSERT_TRUE(drawing.line(font));
            double value[9] = {};
            for (double& one : value) ASSERT_TRUE(drawing.item(one));
            EXPECT_GE(value[0], 1);
            EXPECT_LE(value[0], 4);
            EXPECT_GT(value[1], 0) << text;
            EXPECT_LE(value[1], 210) << text;
            EXPECT_LE(value[2], 297) << text;
            if (value[0] == 3) {
                EXPECT_FALSE(text.empty() || font.empty()) << i;
            }
            if (value[0] != 4) continue;
            ++pictures;
            EXPECT_EQ(text, "\\mirwin\\mirwin\\miraz0.007\\logo.bmp");
        }
        EXPECT_EQ(pictures, 1) << extension;
        EXPECT_TRUE(drawing.at_end()) << extension;
    }
}

TEST_F(demo_tables, logo_is_a_bitmap_with_the_colour_that_is_left_out) {
    const std::string logo = bytes_of(made_.company() / "logo.bmp");
    ASSERT_EQ(logo.substr(0, 2), "BM");
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(logo.at(i)); };
    EXPECT_EQ(byte(2) + 256U * byte(3), logo.size());
    EXPECT_EQ(byte(28), 24);
    EXPECT_EQ(logo.substr(byte(10), 3), "\xC0\xC0\xC0");
}

TEST_F(demo_tables, program_start_reads_the_parameters_without_repairs) {
    drive suite(made_.drive());
    const std::string before = bytes_of(made_.file("gnr"));
    parametri read;
    read.numero_azienda = 7;
    carica_parametri(read, suite);
    EXPECT_EQ(bytes_of(made_.file("gnr")), before);
    EXPECT_EQ(read.intestazione_ditta[1], "Ferramenta & Idraulica Bassani S.r.l.");
    EXPECT_EQ(read.parametri_valuta[valuta_slot::modo_decimali], "1");
    EXPECT_EQ(read.parametri_valuta[valuta_slot::valuta_principale], "EUR");
    EXPECT_EQ(read.parametri_valuta[valuta_slot::settima_riga], "9");
    EXPECT_EQ(read.tabella_stampa[0].margine_destro, 960);
    EXPECT_EQ(read.tabella_stampa[1].corpo_carattere, 14);
    EXPECT_EQ(read.tabella_stampa[1].stile, 1);
    EXPECT_EQ(read.tabella_stampa[2].sfondo, 16777215);
}

}  // namespace
}  // namespace vantora::test
