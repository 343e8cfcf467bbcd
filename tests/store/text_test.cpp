// The texts of the files: their characters, dates and numbers. How amounts round is held by the
// totals, how many decimals a company has by the reports.

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <sstream>

#include "store/money.h"
#include "text/code_page.h"
#include "text/dates.h"
#include "text/number_text.h"

namespace vantora {
namespace {

TEST(code_page, GoesThroughUtf8AndHasCapitalsOfItsOwn) {
    std::string all;
    for (int code = 0; code < 256; ++code) all.push_back(static_cast<char>(code));
    EXPECT_EQ(from_utf8(to_utf8(all)), all);
    EXPECT_EQ(to_utf8("\x80 \xE8"), "€ è");
    EXPECT_EQ("Città €"_cp, "Citt\xE0 \x80");
    // What it doesn't have becomes a question mark.
    EXPECT_EQ(from_utf8("日本x"), "??x");
    EXPECT_EQ(from_utf8("\xF0\x9F\x98\x80"), "?");
    EXPECT_EQ(from_utf8("a\xFF\xC3"), "a??") << "bytes that are no UTF-8";
    EXPECT_EQ(from_utf8("\xC0\x80"), "??") << "overlong";
    EXPECT_EQ(upper("caff\xE8 \xFF\x9A\xDF\xF7"), "CAFF\xC8 \x9F\x8A\xDF\xF7");
}

TEST(compare_alphabetically, PutsAccentsBesideTheirBaseLetter) {
    std::istringstream order("- 0 9 a à ab ae aè àe b e è èlite eolo f z"_cp);
    std::string before;
    order >> before;
    for (std::string next; order >> next; before = next) {
        EXPECT_LT(compare_alphabetically(before, next), 0) << next;
        EXPECT_GT(compare_alphabetically(next, before), 0) << next;
    }
    EXPECT_EQ(compare_alphabetically("Citt\xC0", "cITT\xE0"), 0);
}

TEST(read_date, TakesDayMonthYearAndElseMonthDayYear) {
    struct {
        const char* text;
        date expected;
    } cases[] = {{"01/02/2024", {2024, 2, 1}},     {"1/2/24", {2024, 2, 1}},
                 {" 31-12-1999 ", {1999, 12, 31}}, {"12/31/2024", {2024, 12, 31}},
                 {"29.02.2024", {2024, 2, 29}},    {"1 1 00", {2000, 1, 1}},
                 {"1/1/29", {2029, 1, 1}},         {"1/1/30", {1930, 1, 1}},
                 {"1/1/99", {1999, 1, 1}},         {"5/6/0100", {100, 6, 5}}};
    for (const auto& one : cases) EXPECT_EQ(read_date(one.text), one.expected) << one.text;
    for (const char* text : {"", "29/02/2023", "31/04/2024", "13/13/2024", "0/1/2024", "1/2",
                             "1/2/", "1/2/202", "1/2/20245", "001/2/2024", "1//2/2024", "1/2/2024x",
                             "a/b/c", "1/2/0099", "30/2/24", "1/2/2024/", "\xE8/2/2024"}) {
        EXPECT_FALSE(read_date(text).has_value()) << text;
    }
}

TEST(dates, NumbersCountFromTheEndOf1899AndAClockIsReadInOneForm) {
    EXPECT_EQ(date_number({{1899, 12, 30}}), 0);
    EXPECT_EQ(date_number({{1900, 1, 1}}), 2);
    EXPECT_EQ(date_number({{2024, 5, 6}, 12, 0, 0}), 45418.5);
    EXPECT_EQ(date_number({{2000, 2, 29}, 6, 0, 0}), 36585.25);
    EXPECT_EQ(read_clock("2024-05-06 10:20:30"), (date_time{{2024, 5, 6}, 10, 20, 30}));
    for (const char* text : {"", "2024-05-06", "2024-05-06 24:00:00", "2024-13-06 10:20:30",
                             "2024-05-06T10:20:30", "06/05/2024 10:20:30"}) {
        EXPECT_FALSE(read_clock(text).has_value()) << text;
    }
}

TEST(plain_text, ShowsAtMostFifteenDigitsInTheirShortestFormAndIsReadAgain) {
    const std::pair<double, const char*> cases[] = {{0, "0"},
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
                                                    {1234567890.12345678, "1234567890.12346"}};
    for (const auto& [value, text] : cases) EXPECT_EQ(plain_text(value), text);
    EXPECT_EQ(plain_text_signed(3), " 3");
    EXPECT_EQ(plain_text_signed(-2), "-2");
    EXPECT_EQ(plain_text_signed(0), " 0");
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
    // As a whole text it is a number only if nothing is left.
    EXPECT_EQ(whole_number_text(" 12.5 "), 12.5);
    EXPECT_EQ(whole_number_text("-3"), -3);
    for (const char* text : {"", " ", "1a", "12/03/2024", "1,5", ".", "-"}) {
        EXPECT_FALSE(whole_number_text(text).has_value()) << text;
    }
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
        {"########0.#0", {{0.5, "0,50"}, {1234.5, "1234,50"}, {1E15, "1000000000000000,00"}}},
        {"###,###,###,##0.###0", {{1.23456, "1,2346"}}},
        {"###,###,##0.###", {{2.0001, "2,"}, {2.5, "2,5"}}},
    };
    for (const auto& one : cases) {
        for (const auto& [value, text] : one.values) EXPECT_EQ(masked(value, one.mask), text);
    }
}

valuta lire() {
    valuta currency;
    currency.centesimi = false;
    return currency;
}

TEST(values, TypedTextsAreItalian) {
    const std::pair<double, std::vector<const char*>> cases[] = {
        {0, {"abc", ""}}, {12.5, {"12,5"}},         {1, {"1..5"}},   {15, {"1.5"}},
        {5, {".5"}},      {-1000, {"-1.000"}},      {1.5, {"1.,5"}}, {1.2, {"1,2,3"}},
        {3, {"3."}},      {1234.56, {" 1.234,56 "}}};
    for (const auto& [value, texts] : cases) {
        for (const char* text : texts) EXPECT_EQ(testo_a_numero(text), value) << text;
    }
}

TEST(values, NothingIsShownForZeroAndLireHaveNoDecimals) {
    EXPECT_EQ(formato_importo(0, lire()) + formato_importo(0, valuta()), "");
    EXPECT_EQ(formato_importo(1234.5, valuta()), "1.234,50");
    EXPECT_EQ(formato_importo(1234, lire()), "1.234");
    EXPECT_EQ(formato_importo(-0.5, valuta()), "-0,50");
    EXPECT_EQ(formato_prezzo(1234.4, lire()), "1.234");
    const std::pair<const char*, const char*> quantities[] = {
        {"0", ""}, {"", ""}, {"1500", "1.500"}, {"2.5", "2,50"}, {"2,5", "2"}, {"-3", "-3"}};
    for (const auto& [text, shown] : quantities) EXPECT_EQ(formato_quantita(text), shown);
}

}  // namespace
}  // namespace vantora
