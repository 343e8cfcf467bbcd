#include <gtest/gtest.h>

#include "text/code_page.h"
#include "ui/controls.h"

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

}  // namespace
}  // namespace vantora::ui
