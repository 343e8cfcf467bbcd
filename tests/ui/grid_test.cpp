#include "ui/grid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>

namespace vantora::ui {
namespace {

/// The texts below the head of a grid of one column, given and told with bars between.
std::string sorted(const std::string& texts, sort_order by) {
    grid one;
    one.set_columns({{"capo", 1}});
    std::istringstream given(texts);
    for (std::string text; std::getline(given, text, '|');) {
        one.set_rows(one.rows() + 1);
        one.set_text(one.rows() - 1, 0, text);
    }
    one.sort(0, by);
    EXPECT_EQ(one.text(0, 0), "capo");
    std::string result;
    for (int row = 1; row < one.rows(); ++row) result.append(one.text(row, 0)).append("|");
    return result;
}

TEST(grid, SortsAsTheSystemsListsDo) {
    const auto generic = sort_order::generic_ascending;
    const auto numeric = sort_order::numeric_ascending;
    const std::tuple<sort_order, const char*, const char*> cases[] = {
        {generic, "10|9|-1|2.5|", "-1|2.5|9|10|"},
        {generic, "b|A|a||C|", "|A|a|b|C|"},
        {generic, "rossi|12||Bianchi|", "|12|Bianchi|rossi|"},
        {generic, "1.0|1|01|", "1.0|1|01|"},  // equal keys stay
        {numeric, "20240105||20231224x|20240101|", "|20231224x|20240101|20240105|"},
        {numeric, "-3|abc||0||", "||-3|abc|0|"},
    };
    for (const auto& [by, given, expected] : cases) EXPECT_EQ(sorted(given, by), expected);
    // No order holds for all of these pairs; the rows must still all be there.
    std::string mixed = sorted("2|10|1a|1b|3|2|11|", generic);
    std::ranges::sort(mixed);
    EXPECT_EQ(mixed, "011111223ab|||||||");
}

TEST(grid, RowsKeepTheirCellsTogetherAndCurrentAndTopRowStayInside) {
    std::mt19937 random(3);
    grid one;
    one.set_columns({{"x", 1}, {"y", 1}});
    for (int round = 0; round < 200; ++round) {
        const int rows = static_cast<int>(random() % 60);
        one.set_rows(rows);
        for (int row = 1; row < one.rows(); ++row) {
            if (random() % 3 == 0) continue;
            const auto number = static_cast<colour>(random() % 50);
            one.set_text(row, 0, std::to_string(number));
            one.set_text(row, 1, one.text(row, 0));
            one.set_back_colour(row, 0, 1, number);
        }
        one.set_row(static_cast<int>(random() % 70) - 5);
        one.set_top_row(static_cast<int>(random() % 70));
        one.sort(0, sort_order::generic_ascending);
        ASSERT_FALSE(one.set_text(one.rows(), 0, "x") || one.set_text(1, 2, "x"));
        for (int row = 1; row < one.rows(); ++row) {
            const std::string_view text = one.text(row, 0);
            ASSERT_EQ(one.text(row, 1), text);
            ASSERT_EQ(one.back_colour(row, 1),
                      text.empty() ? white : std::stoul(std::string(text)));
        }
        ASSERT_TRUE(one.row() >= 0 && one.row() < one.rows());
        ASSERT_TRUE(one.top_row() >= 1 && one.top_row() <= std::max(one.rows() - 1, 1));
    }
}

}  // namespace
}  // namespace vantora::ui
