#include "entry/pasted_lines.h"

#include <gtest/gtest.h>

#include "ui/text_controls.h"

namespace vantora {

using ui::holds_pasted_lines;

namespace {

std::string told(const pasted_line& line) {
    constexpr const char* faults[] = {"", "!code", "!number", "!columns"};
    return std::to_string(line.number) + "|" + line.code + "|" + line.quantity + "|" +
           line.discount1 + "|" + line.discount2 + "|" + line.price +
           faults[static_cast<int>(line.fault)];
}

TEST(PastedLines, ColumnsSeparatorsAndNumbersOfSpreadsheetsAreRead) {
    const struct {
        const char* text;
        std::vector<const char*> lines;
    } cases[] = {{"A\nB\r\nC", {"1|A||||", "2|B||||", "3|C||||"}},
                 {"A\t2\n\n \t \nB\t\n", {"1|A|2|||", "4|B||||"}},
                 {"A;12,5\nB;1.234,50;;7", {"1|A|12.5|||", "2|B|1234.50|||7"}},
                 {"A;2;3,10", {"1|A|2|||3.10"}},
                 {"A;1.234;3,10\nB;0.500;12.500", {"1|A|1234|||3.10", "2|B|0.500|||12500"}},
                 {"A;1.234;3.10", {"1|A|1.234|||3.10"}},
                 {"A;2;10;3,10\nA;2;10+5%;3\nA;2;10;5;3\nA;;;",
                  {"1|A|2|10||3.10", "2|A|2|10|5|3", "3|A|2|10|5|3", "4|A||||"}},
                 {"A 12  3\nAB 12   -3  1,5\nTUBO 12\nABCDEF  2",
                  {"1|A|12|||3", "2|AB|12|-3||1.5", "3|TUBO|12|||", "4|ABCDEF|2|||"}},
                 {"\"A;1\";2\n\"say \"\"x\"\"\"\t1", {"1|A;1;2||||", "2|say \"x\"|1|||"}},
                 {"\"A;1\";2\n\"say \"\"x\"\"\";1", {"1|A;1|2|||", "2|say \"x\"|1|||"}},
                 {";3\nA;dieci\nA;1;2;3;4;5\nA;1;40000;2\nA;1,2,3\nA;1;1+2;3;4",
                  {"1|||||!code", "2|A||||!number", "3|||||!columns", "4|A|1|||2!number",
                   "5|A||||!number", "6|A|1|1|2|4!number"}}};
    const auto commas = read_pasted_lines("\"A, b\",2,3.5\nB,3", true);
    EXPECT_EQ(told(commas.at(0)) + told(commas.at(1)), "1|A, b|2|||3.52|B|3|||");
    EXPECT_EQ(told(read_pasted_lines("AB 1,5\nC  2,5", true).at(0)), "1|AB|1.5|||");
    EXPECT_EQ(told(read_pasted_lines("M6,5\nM6,8").at(0)), "1|M6,5||||") << "a code's own comma";
    for (const auto& one : cases) {
        const auto read = read_pasted_lines(one.text);
        ASSERT_EQ(read.size(), one.lines.size()) << one.text;
        for (std::size_t i = 0; i < read.size(); ++i) EXPECT_EQ(told(read[i]), one.lines[i]);
    }
}

TEST(PastedLines, WhatMayBeMeantOtherwiseAndWhatIsTooMuchIsKnown) {
    const auto read = read_pasted_lines("A;1.234;0.125\nB;1234.5;-12.500");
    EXPECT_EQ(read[0].doubtful + "|" + read[1].doubtful, "1.234|-12.500");
    EXPECT_TRUE(read_pasted_lines("A;1.234;3,1")[0].doubtful.empty());
    EXPECT_TRUE(too_much_to_paste(std::string(200'000, '\n')));
    EXPECT_FALSE(too_much_to_paste(std::string(20'000, '\n')));
}

TEST(PastedLines, OneFieldsTextIsNoLines) {
    for (const char* text : {"", "A", " A100 \n", "A;1", "due parole"}) {
        EXPECT_FALSE(holds_pasted_lines(text)) << text;
    }
    for (const char* text : {"A\t1", "A\nB", "A\t1\n"}) EXPECT_TRUE(holds_pasted_lines(text));
}

}  // namespace
}  // namespace vantora
