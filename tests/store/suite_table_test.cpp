#include "store/suite_table.h"

#include <gtest/gtest.h>

#include "store/drive.h"
#include "support/file_bytes.h"
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

std::string content_of(const std::vector<std::string>& lines) {
    std::string content;
    for (const std::string& line : lines) content += line + "\r\n";
    return content;
}

tabella_suite read(const std::string& content) {
    const test::scratch_folder folder;
    test::put(folder.path() / "mirwin/mirwin/miraz0.001/vantora.tab", content);
    drive files(folder.path());
    return read_suite_table(files, 1);
}

TEST(suite_table, EverySectionIsFoundAtItsPlace) {
    const tabella_suite table = read(content_of(telling_lines()));
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

TEST(suite_table, VatEntriesReadAsTheListShowsThem) {
    tabella_iva iva;
    iva.aliquota_iva[4] = "22";
    iva.descrizione_iva[2] = "Esente";
    const auto entries = vat_entries(iva);
    ASSERT_EQ(entries.size(), 24U);
    EXPECT_EQ(entries[0] + entries[3] + entries[13] + entries[23],
              "01 Iva %04 Iva 22%14 Esente24 ");
}

}  // namespace
}  // namespace vantora
