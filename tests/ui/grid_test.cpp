#include "ui/grid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>

namespace vantora::ui {
namespace {

using table = std::vector<std::vector<std::string>>;

/// Every row's texts, then the colour behind its second cell.
table content_of(const grid& shown) {
    table all;
    for (int row = 0; row < shown.rows(); ++row) {
        auto& cells = all.emplace_back();
        for (int col = 0; col < shown.cols(); ++col) cells.emplace_back(shown.text(row, col));
        cells.push_back(std::to_string(shown.back_colour(row, 1)));
    }
    return all;
}

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

/// Random work on a grid against the plainest table that could be.
TEST(grid, HoldsWhatAPlainTableHolds) {
    std::mt19937 random(3);
    grid one;
    one.set_columns({{"x", 1}, {"y", 1}, {"z", 1}});
    const std::string no_colour = std::to_string(white);
    table plain = {{"x", "y", "z", std::to_string(one.back_colour(0, 1))}};
    int current = 0;
    int top = 1;
    for (int step = 0; step < 20000; ++step) {
        const int row = static_cast<int>(random() % 70);
        const int col = static_cast<int>(random() % 4);
        const std::string text(random() % 90, static_cast<char>('a' + random() % 26));
        switch (random() % 60) {
            case 0: {
                const int rows = static_cast<int>(random() % 60);
                one.set_rows(rows);
                plain.resize(static_cast<std::size_t>(std::max(rows, 1)),
                             std::vector<std::string>{"", "", "", no_colour});
                break;
            }
            case 2:
                if (row == 0 || row >= static_cast<int>(plain.size())) break;
                one.set_back_colour(row, 1, 1, static_cast<colour>(step));
                plain[static_cast<std::size_t>(row)][3] = std::to_string(step);
                break;
            case 1:
                one.sort(1, sort_order::generic_ascending);
                std::stable_sort(plain.begin() + 1, plain.end(),
                                 [](const auto& l, const auto& r) { return l[1] < r[1]; });
                break;
            case 3:
                one.set_top_row(row);
                top = row;
                break;
            case 4:
                if (one.set_row(row - 5)) current = row - 5;
                EXPECT_EQ(one.row(), current);
                break;
            default: {
                const bool inside = row < static_cast<int>(plain.size()) && col < 3;
                // Now and then one cell takes over another's text, which lies in the same memory.
                const bool copies = inside && text.size() < 9;
                EXPECT_EQ(one.set_text(row, col, copies ? one.text(0, 1) : text), inside);
                if (inside)
                    plain[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)] =
                        copies ? plain[0][1] : text;
            }
        }
        const int last = static_cast<int>(plain.size()) - 1;
        current = std::clamp(current, 0, last);
        top = std::clamp(top, 1, std::max(last, 1));
        ASSERT_TRUE(one.row() == current && one.top_row() == top) << step;
        if (step % 500 == 0) {
            ASSERT_EQ(content_of(one), plain) << step;
        }
    }
    EXPECT_EQ(content_of(one), plain);
}

}  // namespace
}  // namespace vantora::ui
