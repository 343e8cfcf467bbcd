#include <random>

#include "entry/new_order.h"

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

}  // namespace
}  // namespace vantora::test
