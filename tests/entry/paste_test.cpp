#include <gtest/gtest.h>

#include <random>

#include "entry/new_order.h"
#include "entry/pasted_lines.h"

namespace vantora::test {
namespace {

/// Lines pasted into a new order, against the same lines typed by hand.
class paste : public new_order {
 protected:
    paste() {
        customer.sconto1 = 10;
        std::vector<rec_art> articles{article("A100", "Dado", 10), article("A200", "Vite", 25),
                                      article("A2001", "Vite lunga", 30)};
        articles[1].codice_barre = "8001";
        company.articles(articles);
        rec_prx text{};
        text.marca_testo = rec_prx::ha_testo;
        text.righe[2] = "zincata";
        text.righe[4] = "UNI 5739";
        company.files.prx.write(2, text);
    }
    static std::string pasted(int row, const std::string& text) {
        return "paste mirorcs.artic(" + std::to_string(row) + ") " + json(text).dump();
    }
    static script typed(int row, const std::string& code, const std::string& quantity,
                        const std::string& price) {
        const std::string at = "(" + std::to_string(row) + ")";
        const auto enter = [&](const char* cell) {
            return "key mirorcs." + (cell + at) + " Enter";
        };
        script all{"type mirorcs.artic" + at + " \"" + code + "\"",
                   enter("artic"),
                   set("quantita" + at, quantity),
                   enter("quantita"),
                   enter("sc1"),
                   enter("sc2")};
        if (!price.empty()) all.push_back(set("prezzo" + at, price));
        return all;
    }
};

TEST_F(paste, FillsTheOrderAsTypingDoes) {
    const json by_hand = run(together({typed(1, "a100", "12.5", ""),
                                       typed(2, "A200", "2", "7.10"),
                                       typed(5, "A2001", "1", ""),
                                       {"focus mirorcs.artic(6)"}}))
                             .back();
    const json by_paste = run({pasted(1, "a100;12,5;;\nA200;2;;7,10\nA2001;1;;\n")}).back();
    EXPECT_EQ(by_paste, by_hand);
    expect_after({pasted(0, "A200\t3\t20+5\t1")},
                 {"row(0)=A200|Vite|PZ|3|20|5|1|04", "row(1)=|zincata||||||", "focus=artic(3)"});
    expect_after({"click mirorcs.barcode", pasted(0, "8001\t4\n")},
                 {"row(0)=8001|Vite|PZ|4|10||25|04", "box="});
}

TEST_F(paste, WhatStandsInTheOrderMovesDownAndNothingIsLost) {
    expect_after({set("ds(0)", "prima"), set("ds(2)", "dopo"), pasted(1, "A200;1\nA100;2")},
                 {"ds(0)=prima", "artic(1)=A200", "ds(2)=zincata", "ds(3)=UNI 5739",
                  "artic(4)=A100", "ds(5)=dopo", "focus=artic(5)"});
    // The last line holds something: what would push it out finds no room.
    expect_after(
        {scroll(189), set("ds(11)", "ultima"), pasted(9, "A200;1\nA100;2\nA100;3\nA100;4")},
        {"ds(11)=ultima", "quantita(9)=2", "quantita(10)=3",
         "box=Righe inserite: 2 di 4\nNon inserite:\nriga 1: A200;1 - non c'è posto\n"
         "riga 4: A100;4 - non c'è posto"});
}

TEST_F(paste, WhatIsntFoundIsToldWithItsLine) {
    std::string many = "A200;1\nA20;1\n\nA100;x\n;5\n";
    std::string told =
        "box=Righe inserite: 1 di 24\nNon inserite:\nriga 2: A20;1 - articolo non trovato\n"
        "riga 4: A100;x - numero non valido\nriga 5: ;5 - manca il codice";
    for (int line = 6; line <= 25; ++line) {
        many += "Z\n";
        if (line <= 22) told += "\nriga " + std::to_string(line) + ": Z - articolo non trovato";
    }
    told += "\ne altre 3";
    expect_after({pasted(0, many)}, {told, "artic(0)=A200", "artic(3)="});
}

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
        EXPECT_FALSE(ui::holds_pasted_lines(text)) << text;
    }
    for (const char* text : {"A\t1", "A\nB", "A\t1\n"}) EXPECT_TRUE(ui::holds_pasted_lines(text));
}

}  // namespace
}  // namespace vantora::test
