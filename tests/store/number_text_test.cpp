#include "store/text/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "store/text/int16.h"

namespace vantora {
namespace {

TEST(plain_text, ShowsAtMostFifteenDigitsInTheirShortestForm) {
    const std::pair<double, const char*> cases[] = {
        {0, "0"},
        {-0.0, "0"},
        {-0.5, "-0.5"},
        {0.1 + 0.2, "0.3"},
        {2.0 / 3, "0.666666666666667"},
        {999999999999999, "999999999999999"},
        {1E15, "1E+15"},
        {-1E100, "-1E+100"},
        {0.0001, "0.0001"},
        {0.00001, "0.00001"},
        {1.5E-20, "1.5E-20"},
        {1234567890.12345678, "1234567890.12346"},
    };
    for (const auto& [value, text] : cases) EXPECT_EQ(plain_text(value), text);
    EXPECT_EQ(plain_text_signed(3), " 3");
    EXPECT_EQ(plain_text_signed(-2), "-2");
    EXPECT_EQ(plain_text_signed(0), " 0");
}

TEST(plain_text, SurvivesTheWayThroughItsText) {
    std::mt19937_64 random(1);
    for (int i = 0; i < 20000; ++i) {
        const auto digits = static_cast<double>(random() % 1000000000000000);
        const double value = digits / std::pow(10, static_cast<double>(random() % 16));
        EXPECT_EQ(number_at_head(plain_text(value)), value) << plain_text(value);
    }
}

TEST(number_at_head, ReadsLenientlyAndStopsAtTheFirstOtherCharacter) {
    const std::pair<double, std::vector<const char*>> cases[] = {
        {0, {"", "abc", ".", "-", "--3", "1E999", "1E-999", "0x10", "inf", "nan"}},
        {12, {"12abc", "12,5", "00012"}},
        {-0.5, {"-.5"}},
        {1, {"1e", "1e+"}},
        {1.234, {"1.234,56"}},
        {5, {"5.", "+5"}},
        {-4, {"- 4"}},
        {12.5, {"12.5.6"}},
        {1234, {" 1 2\t3\n4 "}},
        {1000, {"1E3"}},
        {0.01, {"1d-2x"}},
        {20, {"2E 1"}}};
    for (const auto& [value, texts] : cases) {
        for (const char* text : texts) EXPECT_EQ(number_at_head(text), value) << text;
    }
}

TEST(whole_number_text, IsANumberOnlyIfNothingIsLeft) {
    EXPECT_EQ(whole_number_text(" 12.5 "), 12.5);
    EXPECT_EQ(whole_number_text("-3"), -3);
    for (const char* text : {"", " ", "1a", "12/03/2024", "1,5", ".", "-"}) {
        EXPECT_FALSE(whole_number_text(text).has_value()) << text;
    }
}

TEST(to_int16, RoundsTiesToEvenAndRefusesWhatDoesntFit) {
    const std::pair<double, int> cases[] = {{7.5, 8}, {6.5, 6},         {-6.5, -6},        {0.5, 0},
                                            {2.4, 2}, {32767.4, 32767}, {-32768.5, -32768}};
    for (const auto& [value, rounded] : cases) EXPECT_EQ(to_int16(value), rounded) << value;
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double value : {32767.5, -32768.6, 1E300, infinity, -infinity, std::nan("")}) {
        EXPECT_FALSE(to_int16(value).has_value()) << value;
    }
    EXPECT_FALSE(add_int16(32767, 1).has_value());
    EXPECT_EQ(add_int16(32766, 1), 32767);
    EXPECT_FALSE(subtract_int16(-32768, 1).has_value());
}

TEST(masked, RoundsTheDecimalTextHalfAwayFromZero) {
    struct {
        const char* mask;
        std::vector<std::pair<double, const char*>> values;
    } cases[] = {
        {"###,###,###,###",
         {{0, ""}, {0.4, ""}, {-0.4, ""}, {0.5, "1"}, {1234567, "1.234.567"}, {-1234, "-1.234"}}},
        {"###,###,###,##0.#0",
         {{0, "0,00"}, {2.675, "2,68"}, {1.005, "1,01"}, {-0.125, "-0,13"}, {-0.004, "0,00"}}},
        {"###,###,###,##0.#0",
         {{999999.995, "1.000.000,00"}, {1E-300, "0,00"}, {std::nan(""), "0,00"}}},
        {"###,###,###,##0.#0", {{1E18, "1.000.000.000.000.000.000,00"}}},
        {"########0.#0", {{0.5, "0,50"}, {1234.5, "1234,50"}}},
        {"###,###,###,##0.###0", {{1.23456, "1,2346"}}},
        {"###,###,##0.###", {{2.0001, "2,"}, {2.5, "2,5"}}},
    };
    for (const auto& one : cases) {
        for (const auto& [value, text] : one.values) EXPECT_EQ(masked(value, one.mask), text);
    }
}

TEST(integer_part, GoesDown) {
    EXPECT_EQ(integer_part(-0.5), -1);
    EXPECT_EQ(integer_part(2.999), 2);
    EXPECT_EQ(integer_part(-3), -3);
}

}  // namespace
}  // namespace vantora
