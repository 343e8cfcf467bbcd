#include "store/suite_table.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "store/drive.h"
#include "support/scratch_folder.h"

namespace vantora {
namespace {

/// Lines of a group in each of the fifteen sections, and how many groups there are.
struct section {
    int groups;
    int lines;
};
constexpr section sections[] = {{8, 4},  {8, 3},  {9, 2}, {9, 2}, {30, 2}, {9, 2}, {40, 1}, {40, 1},
                                {30, 5}, {40, 6}, {8, 4}, {8, 3}, {8, 2},  {8, 2}, {30, 2}};

/// A whole table file in which every line tells its section, group and line: "s10 g3 l2".
std::vector<std::string> telling_lines() {
    std::vector<std::string> lines;
    for (int s = 1; s <= 15; ++s) {
        for (int g = 1; g <= sections[s - 1].groups; ++g) {
            for (int l = 1; l <= sections[s - 1].lines; ++l) {
                lines.push_back("s" + std::to_string(s) + " g" + std::to_string(g) + " l" +
                                std::to_string(l));
            }
        }
    }
    return lines;
}

class suite_table : public testing::Test {
 protected:
    tabella_suite read(const std::vector<std::string>& lines) {
        std::string content;
        for (const auto& line : lines) content += line + "\r\n";
        return read_content(content);
    }
    tabella_suite read_content(const std::string& content) {
        const auto company = folder.path() / "mirwin/mirwin/miraz0.001";
        std::filesystem::create_directories(company);
        std::ofstream file(company / "vantora.tab", std::ios::binary);
        file << content;
        file.close();
        drive files(folder.path());
        return leggi_tabella_suite(files, 1);
    }

    test::scratch_folder folder;
};

TEST_F(suite_table, EverySectionIsFoundAtItsPlace) {
    const tabella_suite table = read(telling_lines());
    for (const int code : {1, 8, 9, 16}) {
        const std::string group = " g" + std::to_string((code - 1) % 8 + 1) + " l1";
        EXPECT_EQ(table.iva.aliquota_iva[code], (code <= 8 ? "s1" : "s11") + group);
        if (code < 9) continue;
        EXPECT_EQ(table.iva.descrizione_iva[code], "s13" + group);
    }
    EXPECT_EQ(table.iva.descrizione_iva[0], "s3 g1 l1");
    EXPECT_EQ(table.iva.descrizione_iva[8], "s3 g9 l1");
    ASSERT_EQ(table.pagamenti.size(), 60U);
    EXPECT_EQ(table.pagamenti[29], "s5 g30 l1");
    EXPECT_EQ(table.pagamenti[30], "s15 g1 l1");
    EXPECT_EQ(table.pagamenti[59], "s15 g30 l1");
    ASSERT_EQ(table.vettori.size(), 40U);
    EXPECT_EQ(table.causali[39], "s10 g40 l1");
    EXPECT_EQ(table.aspetti[39], "s10 g40 l2");
    EXPECT_EQ(table.vettori[39], (vettore{"s10 g40 l3", "s10 g40 l4", "s10 g40 l5"}));
}

TEST_F(suite_table, ItemsThatShareTheirLineMoveAllThatFollows) {
    auto lines = telling_lines();
    // Two items of a group on one line each, then rest of the line behind every item.
    const int section3 = 8 * 4 + 8 * 3;
    const int section6 = section3 + 9 * 2 + 9 * 2 + 30 * 2;
    const int section14 = section6 + 9 * 2 + 40 + 40 + 30 * 5 + 40 * 6 + 8 * 4 + 8 * 3 + 8 * 2;
    const auto shorten = [&](int section, int groups, const char* line) {
        const auto begin = lines.begin() + section;
        lines.erase(begin, begin + groups);
        std::fill_n(begin, groups, line);
    };
    shorten(section14, 8, "\"a,b\" c, d, e");
    shorten(section6, 9, "1, \"2\"");
    lines[section3] = "\"Esente, art. 10\"";
    const tabella_suite table = read(lines);
    EXPECT_EQ(table.iva.descrizione_iva[0], "Esente, art. 10");
    EXPECT_EQ(table.vettori[0][0], "s10 g1 l3");
    EXPECT_EQ(table.iva.descrizione_iva[16], "s13 g8 l1");
    ASSERT_EQ(table.pagamenti.size(), 60U);
    EXPECT_EQ(table.pagamenti[59], "s15 g30 l1");
}

TEST_F(suite_table, AFileCutInsideALineGivesTheBeginningOfTheWhole) {
    auto lines = telling_lines();
    for (auto& line : lines) {
        if (line.starts_with("s3 ") || line.starts_with("s13 ")) line = "\"" + line + ", art.\"";
    }
    const tabella_suite whole = read(lines);
    std::string content;
    for (const auto& line : lines) content += line + "\r\n";
    const auto begins = [](const auto& cut, const auto& all) {
        if (cut.size() > all.size()) return false;
        for (std::size_t i = 0; i + 1 < cut.size(); ++i) {
            if (cut[i] != all[i]) return false;
        }
        return cut.empty() || all[cut.size() - 1].starts_with(cut.back());
    };
    for (std::size_t kept = 0; kept < content.size(); kept += 31) {
        const tabella_suite cut = read_content(content.substr(0, kept));
        EXPECT_TRUE(begins(cut.pagamenti, whole.pagamenti)) << kept;
        EXPECT_TRUE(begins(cut.causali, whole.causali)) << kept;
        EXPECT_TRUE(begins(cut.aspetti, whole.aspetti)) << kept;
        EXPECT_LE(cut.vettori.size(), cut.aspetti.size()) << kept;
        for (std::size_t code = 0; code <= 16; ++code) {
            EXPECT_TRUE(whole.iva.aliquota_iva[code].starts_with(cut.iva.aliquota_iva[code]));
            EXPECT_TRUE(whole.iva.descrizione_iva[code].starts_with(cut.iva.descrizione_iva[code]));
        }
    }
}

TEST_F(suite_table, VatEntriesReadAsTheListShowsThem) {
    tabella_iva iva;
    iva.aliquota_iva[4] = "22";
    iva.descrizione_iva[2] = "Esente";
    const auto entries = voci_iva(iva);
    ASSERT_EQ(entries.size(), 24U);
    EXPECT_EQ(entries[3], "04 Iva 22%");
    EXPECT_EQ(entries[0], "01 Iva %");
    EXPECT_EQ(entries[13], "14 Esente");
    EXPECT_EQ(entries[23], "24 ");
}

}  // namespace
}  // namespace vantora
