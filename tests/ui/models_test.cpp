#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>

#include "text/code_page.h"
#include "ui/controls.h"
#include "ui/grid.h"

namespace vantora::ui {
namespace {

TEST(input_rule, OfCellsPutIntoOneTheFirstCounts) {
    EXPECT_EQ(with_first_cell("9", "9125\t136\n7"), "9125");
    EXPECT_EQ(with_first_cell("ab", "a\r\nx y\tzb"), "ax yb");
    EXPECT_EQ(with_first_cell("a\tb", "a\tbc"), "a\tbc");
}

TEST(input_rule, AHandTypesOnlyWhatAFieldHolds) {
    const auto number = input_rule::number();
    const auto percent = input_rule::small_number();
    const auto four = input_rule::text(4);
    input_rule starred = number;
    starred.alone = '*';
    struct {
        const input_rule& rule;
        const char *before, *now, *admitted;  // null: refused
    } cases[] = {{number, "2", "2,", "2."},
                 {number, "2.", "2.,", nullptr},
                 {number, "", "-1,5", "-1.5"},
                 {number, "1", "1-", nullptr},
                 {number, "", "€ 1.234,50", "1234.50"},
                 {number, "", "1.234.567", "1234567"},
                 {number, "1", "1e", nullptr},
                 {number, "", "1,2,3", nullptr},
                 {number, "", "123456789012345", "123456789012345"},
                 {number, "123456789012345", "1234567890123456", nullptr},
                 {number, "12", "", ""},
                 {number, "", "*", nullptr},
                 {starred, "", "*", "*"},
                 {percent, "3276", "32767", "32767"},
                 {percent, "3276", "32768", nullptr},
                 {percent, "3.99999", "399999", nullptr},
                 {four, "abcd", "abxcd", nullptr},
                 {four, "ab", "aXYZb", "aXYb"},
                 {four, "abcdef", "abcdf", "abcdf"}};
    for (const auto& one : cases) {
        const auto admitted = one.rule.admit(from_utf8(one.before), from_utf8(one.now));
        EXPECT_EQ(admitted, one.admitted ? std::optional<std::string>(one.admitted) : std::nullopt)
            << one.before << " -> " << one.now;
    }
    for (const char* typed : {"24/11", "2411", "24112026", "241126", "24-11-26", " 24.11.2026 "}) {
        EXPECT_EQ(written_out_day(typed, 2026), "24/11/2026") << typed;
    }
    for (const char* typed : {"", "24", "99/99", "3113", "31022026"}) {
        EXPECT_FALSE(written_out_day(typed, 2026)) << typed;
    }
    // As a field shows what it took when it is left, and what it says of a doubtful point.
    const std::tuple<const input_rule&, const char*, const char*, const char*> left[] = {
        {number, "1.000", "1", "preso come 1, non come 1000"},
        {number, "-12.345", "-12.345", "preso come -12.345, non come -12345"},
        {number, "1.0000", "1", ""},
        {number, "0.125", "0.125", ""},
        {number, "1234567.895", "1234567.895", ""},
        {number, "12.50", "12.5", ""},
        {number, "0", "", ""},
        {percent, "6.5", "6", ""},
        {percent, "7.5", "8", ""}};
    for (const auto& [rule, typed, written, hint] : left) {
        EXPECT_EQ(written_out_number(typed, rule), written) << typed;
        EXPECT_EQ(doubtful_number(typed).value_or(""), hint) << typed;
    }
    EXPECT_FALSE(written_out_number("*", starred) || written_out_number("1,00", number));
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
