#include "store/text/code_page.h"

#include <gtest/gtest.h>

namespace vantora {
namespace {

TEST(code_page, EveryCharacterSurvivesTheWayThroughUtf8) {
    std::string all;
    for (int code = 0; code < 256; ++code) all.push_back(static_cast<char>(code));
    EXPECT_EQ(from_utf8(to_utf8(all)), all);
    EXPECT_EQ(to_utf8("\x80 \xE8"), "€ è");
    EXPECT_EQ("Città €"_cp, "Citt\xE0 \x80");
}

TEST(code_page, WhatItDoesntHaveBecomesAQuestionMark) {
    EXPECT_EQ(from_utf8("日本x"), "??x");
    EXPECT_EQ(from_utf8("\xF0\x9F\x98\x80"), "?");
    EXPECT_EQ(from_utf8("a\xFF\xC3"), "a??") << "bytes that are no UTF-8";
    EXPECT_EQ(from_utf8("\xC0\x80"), "??") << "overlong";
}

TEST(code_page, CapitalsKeepTheLength) {
    EXPECT_EQ(upper("caff\xE8 \xFF\x9A\xDF\xF7"), "CAFF\xC8 \x9F\x8A\xDF\xF7");
}

TEST(code_page, TrimmingTakesBlanksOnly) {
    EXPECT_EQ(trimmed("  a b "), "a b");
    EXPECT_EQ(trimmed("   "), "");
    const std::string zeros("\0a\0", 3);
    EXPECT_EQ(trimmed(zeros), zeros);
    EXPECT_EQ(trimmed("\ta"), "\ta");
}

TEST(compare_alphabetically, PutsAccentsBesideTheirBaseLetter) {
    const std::string order[] = {"-", "0",    "9",        "a",    "\xE0", "ab", "b",
                                 "e", "\xE8", "\xE8lite", "eolo", "f",    "z"};
    for (std::size_t i = 0; i + 1 < std::size(order); ++i) {
        EXPECT_LT(compare_alphabetically(order[i], order[i + 1]), 0) << order[i];
        EXPECT_GT(compare_alphabetically(order[i + 1], order[i]), 0) << order[i];
    }
    EXPECT_EQ(compare_alphabetically("Citt\xC0", "cITT\xE0"), 0);
}

TEST(filtra_stampa, KeepsWhatMayBePrinted) {
    EXPECT_EQ(filtra_stampa("a\tb\r\nc"), "abc");
    EXPECT_EQ(filtra_stampa("caff\xE8 \xFF\xFE"), "caff\xE8 \xFE");
    EXPECT_EQ(filtra_stampa(std::string_view("\0x", 2)), "x");
}

}  // namespace
}  // namespace vantora
