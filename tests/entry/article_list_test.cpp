#include "entry/article_list.h"

#include <gtest/gtest.h>

#include "scripted/small_company.h"
#include "store/drive.h"
#include "support/faulty_files.h"

namespace vantora::test {
namespace {

class article_list : public testing::Test {
 protected:
    /// So many articles, "ART1" and on.
    void fill(int count) {
        std::vector<rec_art> all;
        for (int i = 1; i <= count; ++i) {
            const std::string number = std::to_string(i);
            all.push_back(article("ART" + number, "Descrizione " + number, i));
        }
        company.articles(all);
    }
    std::vector<std::string> entries(int count, modo_lista mode = per_codice) {
        return voci_articoli(company.files.art_blocchi, static_cast<std::int16_t>(count), mode);
    }

    small_company company;
};

TEST_F(article_list, EntriesHaveFullWidthsAndEndWithTheNumber) {
    auto ugly = article("A\tB", "Uno", 1);
    auto deleted = article("GONE", "Tolto", 1);
    deleted.eliminato = 1;
    auto odd = article("ODD", "Byte alto", 1);
    odd.eliminato = 256;  // the low byte alone says whether it is deleted
    company.articles({article("x1", "Vite", 1), deleted, ugly, odd, article("", "senza", 1)});
    const std::string blanks(90, ' ');
    const auto wide = [](std::string text, std::size_t width) {
        text.resize(width, ' ');
        return text;
    };
    EXPECT_EQ(entries(5), (std::vector<std::string>{
                              wide("x1", 15) + " - " + wide("Vite", 40) + blanks + "1",
                              wide("A\tB", 15) + " - " + wide("Uno", 40) + blanks + "3",
                              wide("ODD", 15) + " - " + wide("Byte alto", 40) + blanks + "4",
                              wide("", 15) + " - " + wide("senza", 40) + blanks + "5"}));
    EXPECT_EQ(entries(5, per_descrizione)[0],
              wide("Vite", 40) + " - " + wide("x1", 15) + blanks + "1");
}

TEST_F(article_list, ReadsWholeBlocksUpToTheOneBehindTheCount) {
    fill(60);
    for (const auto& [count, read] : {std::pair{-32768, 0},
                                      {-1, 0},
                                      {0, 20},
                                      {1, 20},
                                      {19, 20},
                                      {20, 40},
                                      {59, 60},
                                      {60, 60},
                                      {32767, 60}}) {
        const auto all = entries(count);
        EXPECT_EQ(all.size(), static_cast<std::size_t>(read)) << count;
        EXPECT_EQ(all.empty() ? 0 : numero_articolo(all.back()), read) << count;
    }
}

TEST_F(article_list, NumbersBeyondSixteenBitsAreNotListed) {
    for (const int number : {32760, 32767, 32768, 32780}) {
        company.files.art.write(number, article("FINE", "", 1));
    }
    const auto all = entries(32767);
    ASSERT_EQ(all.size(), 2U);
    EXPECT_EQ(numero_articolo(all.back()), 32767);
}

TEST_F(article_list, ReadsFewTimesAndLeavesOutWhatCantBeRead) {
    fill(3000);
    drive real(company.drive());
    faulty_files port(real);
    archivi files;
    apri_archivi(files, port, 1);
    port.reads = 0;
    EXPECT_EQ(voci_articoli(files.art_blocchi, 3000, per_codice).size(), 3000U);
    EXPECT_LE(port.reads, 10U);
    port.reads = 0;
    EXPECT_EQ(cerca_descrizione(files.art, 3000, "descrizione 2999"), 2999);
    EXPECT_LE(port.reads, 12U);

    port.read_fails = [](const std::string&, std::int64_t offset, std::size_t) {
        return offset == 0;
    };
    const auto rest = voci_articoli(files.art_blocchi, 3000, per_codice);
    EXPECT_LT(rest.size(), 3000U);
    EXPECT_EQ(numero_articolo(rest.back()), 3000);
    EXPECT_TRUE(voci_articoli(archivi{}.art_blocchi, 3000, per_codice).empty());
}

TEST_F(article_list, SearchesTakeTheFirstThatBeginsWithTheText) {
    const std::vector<std::string> all = {"ab1", "AB", "abc", "\xE0"};
    const std::pair<const char*, int> cases[] = {{"AB", 0},   {"ABC", 2},  {"AB1", 0},
                                                 {"", 0},     {"B", -1},   {"ABCD", -1},
                                                 {"\xC0", 3}, {"AB\b", -1}};
    for (const auto& [text, place] : cases) EXPECT_EQ(cerca_voce(all, text), place) << text;
    EXPECT_EQ(cerca_voce({}, ""), -1);

    auto deleted = article("A", "tubo lungo", 1);
    deleted.eliminato = 1;
    company.articles({article("B", "Vite", 1), deleted, article("C", "TUBO", 1)});
    const std::string forty(40, ' ');
    const std::pair<std::string, int> descriptions[] = {{"", 1},
                                                        {"v", 1},
                                                        {"Tubo", 2},
                                                        {"tubo ", 2},
                                                        {"tubo  ", 3},
                                                        {"chiodo", 0},
                                                        {"TUBO" + forty.substr(4), 3},
                                                        {"TUBO" + forty, 0}};
    for (const auto& [text, number] : descriptions) {
        EXPECT_EQ(cerca_descrizione(company.files.art, 3, text), number) << text;
    }
    EXPECT_EQ(cerca_descrizione(company.files.art, 1, "tubo"), 0);
    EXPECT_EQ(cerca_descrizione(company.files.art, 32767, "chiodo"), 0);
}

TEST_F(article_list, TheStockLineCarriesTheNumberBehind140Characters) {
    auto one = article("CODICE", "Descrizione", 1);
    one.giacenza = -2.5;
    one.impegnato = 1000;
    const std::string line = riga_giacenza(one, 42);
    EXPECT_EQ(line.size(), 145U);
    EXPECT_TRUE(line.starts_with("CODICE          - Descrizione "));
    EXPECT_EQ(line.substr(98, 42), " - Giacenza:-2.5 - Impegnato:1000         ");
    EXPECT_EQ(line.substr(140), "00042");
    EXPECT_EQ(numero_articolo(line), 42);

    one.giacenza = 123456789012345.0;
    one.impegnato = -123456789012345.0;
    EXPECT_EQ(numero_articolo(riga_giacenza(one, 32767)), 32767);
}

}  // namespace
}  // namespace vantora::test
