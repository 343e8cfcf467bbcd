#include "desktop/lists/list_search.h"
#include "desktop/lists/list_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

#include "text/code_page.h"

namespace vantora::ui {
namespace {

using row = std::vector<std::string>;

/// The letters of all texts, and how a search reads them.
const std::string letters = from_utf8("abAB1 àÀñ");
constexpr const char* read_as = "abab1 aan";

std::string as_read(std::string text) {
    for (char& one : text) one = read_as[letters.find(one)];
    return text;
}

std::vector<int> plain_search(const std::vector<row>& rows, const std::string& wanted) {
    std::vector<int> found;
    for (std::size_t i = 0; i < rows.size() && !wanted.empty(); ++i) {
        const auto holds = [&](const std::string& cell) {
            return as_read(cell).find(as_read(wanted)) != std::string::npos;
        };
        if (std::ranges::any_of(rows[i], holds)) found.push_back(static_cast<int>(i));
    }
    return found;
}

TEST(ListSearch, FindsTheRowsThatAPlainSearchFinds) {
    std::mt19937 random(7);
    const auto text = [&](std::size_t longest) {
        std::string made(random() % (longest + 1), 'a');
        for (char& one : made) one = letters[random() % letters.size()];
        return made;
    };
    list_search texts;
    for (int round = 0; round < 300; ++round) {
        std::vector<row> rows(random() % 20);
        texts.clear();
        for (row& one : rows) {
            one = {text(6), text(3)};
            for (const std::string& cell : one) texts.add_cell(cell);
            texts.end_row();
        }
        ASSERT_EQ(texts.rows(), static_cast<int>(rows.size()));
        const std::string wanted = text(4);
        ASSERT_EQ(texts.rows_with(wanted), plain_search(rows, wanted)) << wanted;
    }
}

TEST(list_text, CellsThatASpreadsheetWouldComputeAreCopiedAndSavedAsTexts) {
    const std::pair<const char*, const char*> cells[] = {
        {"=1+1", "'=1+1"},    {"@SUM(A1)", "'@SUM(A1)"},
        {"-2+3", "'-2+3"},    {"+cmd|' /C'!A0", "'+cmd|' /C'!A0"},
        {"-12,50", "-12,50"}, {"+39 055 1", "+39 055 1"},
        {"-----", "-----"},   {"=====", "====="},
        {"A=1", "A=1"},       {"", ""},
        {" =1+1", "' =1+1"},  {" 5,00", " 5,00"}};
    for (const auto& [cell, kept] : cells) {
        const std::string_view row[] = {cell};
        std::string tabbed;
        add_tabbed_row(tabbed, row);
        EXPECT_EQ(tabbed, std::string(kept) + "\n");
        std::string csv;
        add_csv_row(csv, row);
        EXPECT_EQ(csv, std::string(kept) + "\r\n");
    }
    // Quotes go where it is pasted, and bytes that can't be shown before.
    for (const std::string_view cell : {"\"=1+1\"", "\x01=1+1", "\n@A1"}) {
        std::string tabbed;
        add_tabbed_row(tabbed, std::array{cell});
        EXPECT_TRUE(tabbed.starts_with('\'')) << tabbed;
    }
}

}  // namespace
}  // namespace vantora::ui
