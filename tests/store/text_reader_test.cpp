#include "store/text_reader.h"

#include <gtest/gtest.h>

namespace vantora {
namespace {

std::vector<std::string> lines_of(const std::string& content) {
    text_reader reader(content);
    std::vector<std::string> lines;
    for (std::string line; reader.line(line);) lines.push_back(line);
    return lines;
}

std::vector<std::string> items_of(const std::string& content) {
    text_reader reader(content);
    std::vector<std::string> items;
    for (std::string item; reader.item(item);) items.push_back(item);
    return items;
}

TEST(text_reader, LinesEndInEachOfTheThreeWays) {
    using texts = std::vector<std::string>;
    EXPECT_EQ(lines_of("a\r\nb\rc\nd"), (texts{"a", "b", "c", "d"}));
    EXPECT_EQ(lines_of("\r\n\r\n"), (texts{"", ""}));
    EXPECT_EQ(lines_of("a\n\nb"), (texts{"a", "", "b"}));
    EXPECT_EQ(lines_of(" \"x\", y \r\n"), texts{" \"x\", y "});
    EXPECT_EQ(lines_of(""), texts{});
}

TEST(text_reader, ItemsLoseQuotesAndTrailingBlanks) {
    using texts = std::vector<std::string>;
    EXPECT_EQ(items_of("1, 2 ,3\r\n4"), (texts{"1", "2", "3", "4"}));
    EXPECT_EQ(items_of("\"a, b\" dropped,c"), (texts{"a, b", "c"}));
    EXPECT_EQ(items_of("  \" kept \"\r\nx"), (texts{" kept ", "x"}));
    EXPECT_EQ(items_of("\"never closed\r\nx"), (texts{"never closed\r\nx"}));
    EXPECT_EQ(items_of(",,\n"), (texts{"", "", ""}));
    EXPECT_EQ(items_of("a\"b\",c"), (texts{"a\"b\"", "c"}));
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
}

TEST(text_reader, ReadingPastTheEndLeavesTheVariable) {
    text_reader reader("1.5");
    double number = 9;
    std::string text = "old";
    EXPECT_TRUE(reader.item(number));
    EXPECT_EQ(number, 1.5);
    EXPECT_FALSE(reader.item(number));
    EXPECT_FALSE(reader.line(text));
    EXPECT_FALSE(reader.item(text));
    EXPECT_EQ(number, 1.5);
    EXPECT_EQ(text, "old");
}

}  // namespace
}  // namespace vantora
