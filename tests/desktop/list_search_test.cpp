#include "desktop/lists/list_search.h"

#include <gtest/gtest.h>

#include <algorithm>
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

}  // namespace
}  // namespace vantora::ui
