#include "entry/article_list.h"

#include <gtest/gtest.h>

#include "scripted/small_company.h"
#include "store/drive.h"
#include "support/faulty_files.h"

namespace vantora::test {
namespace {

std::string wide(std::string text, std::size_t width) {
    text.resize(width, ' ');
    return text;
}

/// Articles 1 to 3000, "ART1" and on; every seventh is deleted, and in the low byte of its mark
/// alone it says so.
struct many_articles : small_company {
    many_articles() {
        std::vector<rec_art> all;
        for (int i = 1; i <= 3000; ++i) {
            const std::string number = std::to_string(i);
            all.push_back(article("ART" + number, "Descrizione " + number, i));
            all.back().eliminato = static_cast<std::int16_t>(i % 7 == 0   ? 257
                                                             : i % 5 == 0 ? 256
                                                                          : 0);
        }
        articles(all);
    }
};

TEST(article_list, ListsLivingArticlesOfWholeBlocksUpToTheOneBehindTheCount) {
    const many_articles company;
    for (const int count : {-32768, -1, 0, 1, 19, 20, 59, 2999, 3000, 32767}) {
        std::vector<std::string> expected;
        const int read = count < 0 ? 0 : std::min(3000, (count / 20 + 1) * 20);
        for (int i = 1; i <= read; ++i) {
            if (i % 7 == 0) continue;
            const std::string number = std::to_string(i);
            expected.push_back(wide("ART" + number, 15) + " - " +
                               wide("Descrizione " + number, 130) + number);
        }
        EXPECT_EQ(article_entries_of(company.files.art_blocchi, static_cast<std::int16_t>(count)),
                  expected)
            << count;
    }
    small_company full;
    for (const int number : {32760, 32767, 32768, 32780}) {
        full.files.art.write(number, article("FINE", "", 1));
    }
    const auto all = article_entries_of(full.files.art_blocchi, 32767);
    ASSERT_EQ(all.size(), 2U) << "numbers beyond sixteen bits";
    EXPECT_EQ(article_number(all.back()), 32767);
}

TEST(article_list, ReadsFewTimesAndLeavesOutWhatCantBeRead) {
    const many_articles company;
    drive real(company.drive());
    faulty_files port(real);
    archivi files;
    apri_archivi(files, port, 1);
    port.reads = 0;
    EXPECT_EQ(article_entries_of(files.art_blocchi, 3000).size(), 3000U - 3000 / 7);
    EXPECT_LE(port.reads, 10U);
    port.reads = 0;
    EXPECT_EQ(find_description(files.art, 3000, "descrizione 2999"), 2999);
    EXPECT_LE(port.reads, 12U);

    port.read_fails = [](auto&, std::int64_t offset, auto) { return offset == 0; };
    const auto rest = article_entries_of(files.art_blocchi, 3000);
    EXPECT_EQ(rest.size(), 3000U - 3000 / 7 - 18) << "a block of twenty";
    EXPECT_EQ(article_number(rest.back()), 3000);
    EXPECT_TRUE(article_entries_of(archivi{}.art_blocchi, 3000).empty());
}

}  // namespace
}  // namespace vantora::test
