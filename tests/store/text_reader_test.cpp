#include "store/text_reader.h"

#include <gtest/gtest.h>

namespace vantora {
namespace {

using texts = std::vector<std::string>;

TEST(text_reader, LinesAndItemsEndInEachOfTheThreeWays) {
    const struct {
        const char* content;
        texts lines;
        texts items;
    } cases[] = {{"a\r\nb\rc\nd", {"a", "b", "c", "d"}, {"a", "b", "c", "d"}},
                 {"\r\n\r\n", {"", ""}, {"", ""}},
                 {"a\n\nb", {"a", "", "b"}, {"a", "", "b"}},
                 {"", {}, {}},
                 {" \"x\", y \r\n", {" \"x\", y "}, {"x", "y"}},
                 {"1, 2 ,3\r\n4", {"1, 2 ,3", "4"}, {"1", "2", "3", "4"}},
                 {"\"a, b\" dropped,c", {"\"a, b\" dropped,c"}, {"a, b", "c"}},
                 {"  \" kept \"\r\nx", {"  \" kept \"", "x"}, {" kept ", "x"}},
                 {"\"never closed\r\nx", {"\"never closed", "x"}, {"never closed\r\nx"}},
                 {",,\n", {",,"}, {"", "", ""}},
                 {"a\"b\",c", {"a\"b\",c"}, {"a\"b\"", "c"}}};
    for (const auto& one : cases) {
        texts lines;
        texts items;
        text_reader by_line(one.content);
        for (std::string line; by_line.line(line);) lines.push_back(line);
        text_reader by_item(one.content);
        for (std::string item; by_item.item(item);) items.push_back(item);
        EXPECT_EQ(lines, one.lines) << one.content;
        EXPECT_EQ(items, one.items) << one.content;
    }
}

TEST(text_reader, TheRestBehindAnItemIsItsLineOrTheNextOne) {
    text_reader reader("item,rest, of it\nitem\nnext\nlast");
    std::string text;
    ASSERT_TRUE(reader.item(text));
    ASSERT_TRUE(reader.line(text));
    EXPECT_EQ(text, "rest, of it");
    ASSERT_TRUE(reader.item(text));
    ASSERT_TRUE(reader.line(text));
    EXPECT_EQ(text, "next");
    double number = 9;
    EXPECT_TRUE(reader.line(text));
    EXPECT_FALSE(reader.item(number) || reader.line(text) || reader.item(text));
    EXPECT_EQ(number, 9) << "what isn't there leaves the variable";
    EXPECT_EQ(text, "last");
}

}  // namespace
}  // namespace vantora
