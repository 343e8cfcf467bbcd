#include "entry/new_order.h"

namespace vantora::test {
namespace {

const std::string not_found = "box=Articolo non esistente";

class article_lookup : public new_order {
 protected:
    article_lookup() {
        auto bolt = article("BULLONE", "Bullone zincato", 2);
        bolt.codice_barre = "8001";
        bolt.giacenza = 12;
        bolt.impegnato = 3.5;
        auto gone = article("GONE", "Dado fuori produzione", 9);
        gone.codice_barre = "8002";
        gone.eliminato = 1;
        auto nut = article("ab", "Dado", 10);
        nut.codice_barre = "x03";
        nut.iva = 2;
        articles = {bolt, gone, article("ABC", "Chiodo", 7), nut};
        company.articles(articles);
    }
    /// Types a code and confirms it, as a bar code reader does too.
    static script enter(int row, const std::string& code) {
        const std::string cell = "mirorcs.artic(" + std::to_string(row) + ")";
        return {"type " + cell + " \"" + code + "\"", "key " + cell + " Enter"};
    }

    std::vector<rec_art> articles;
};

TEST_F(article_lookup, OnlyWhatTheLastKeyFoundCounts) {
    const struct {
        script commands;
        const char* code;  ///< what the line gets; null: nothing is found
    } cases[] = {
        {enter(0, "AB"), "ab"},
        {enter(0, "ABC"), "ABC"},
        {enter(0, "GONE"), nullptr},
        {{"type mirorcs.artic(0) \"AB\"", "key mirorcs.artic(0) Backspace",
          "key mirorcs.artic(0) Enter"},
         nullptr},
        // A text that was pasted is looked up when the cell is come back to.
        {{set("artic(0)", "ABC"), "key mirorcs.artic(0) Enter"}, nullptr},
        {{set("artic(0)", " abc "), "focus mirorcs.um(0)", "key mirorcs.artic(0) Enter"}, "ABC"},
        // What another cell's keys found doesn't count here.
        {{"type mirorcs.artic(1) \"ABC\"", set("artic(0)", "zzz"), "key mirorcs.artic(0) Enter"},
         nullptr},
        // The key joins the end of the text, blanks around it don't count.
        {together({{set("artic(0)", " a ")}, enter(0, "b")}), "ab"},
    };
    for (const auto& one : cases) {
        if (one.code) {
            expect_after(one.commands,
                         {std::string("artic(0)=") + one.code, "focus=quantita(0)", "box="});
        } else {
            expect_after(one.commands, {not_found, "focus=artic(0)", "ds(0)="});
        }
    }
    EXPECT_EQ(run(enter(0, "GONE"))[1]["box"]["icon"], "stop");
}

TEST_F(article_lookup, PickingAgainKeepsQuantityAndDiscounts) {
    expect_after(together({enter(0, "ABC"),
                           {set("quantita(0)", "3"), set("sc1(0)", "4"), set("prezzo(0)", "99"),
                            "focus mirorcs.civ(0)", "pick mirorcs.Combo1 20",
                            "click mirorcs.prezz(1)", "key mirorcs.artic(0) Enter"},
                           enter(1, "ABC"),
                           {"click mirorcs.prezz(0)"}}),
                 {"row(0)=ABC|Chiodo|PZ|3|4||3.5|04", "row(1)=ABC|Chiodo|PZ||||3.5|04"});
}

TEST_F(article_lookup, TheCustomersVatCodeGoesFirst) {
    for (const auto& [own, shown] :
         {std::pair{0, "civ(0)=02"}, {25, "civ(0)=02"}, {1, "civ(0)=01"}, {24, "civ(0)=24"}}) {
        customer.iva_cliente = static_cast<std::int16_t>(own);
        expect_after(enter(0, "ab"), {shown});
    }
    // An article without a code gets that of the company with its price.
    customer.iva_cliente = 0;
    articles[3].iva = std::int16_t{0};
    company.articles(articles);
    expect_after(enter(0, "ab"), {"civ(0)=04"});
}

TEST_F(article_lookup, AClickIntoTheDescriptionCutsTheArticleOff) {
    const script cut = together(
        {enter(0, "ABC"), enter(1, "BULLONE"), {"focus mirorcs.ds(0)", "focus mirorcs.um(0)"}});
    // Without an article, the line has no stock to show: that of the other line stays.
    const json shown = run(cut).back();
    EXPECT_EQ(found(shown, "row(0)"), "|Chiodo|PZ||||7|04");
    EXPECT_TRUE(found(shown, "listx").ends_with("00001"));
    // The line itself has lost it, too: it sorts behind the other one.
    expect_after(
        together({cut, {"focus mirorcs.um(1)", scroll(9), scroll(1), "click mirorcs.riordina"}}),
        {"artic(0)=BULLONE", "ds(1)=Chiodo"});
}

TEST_F(article_lookup, TheListFollowsTheCodeAndPicksByClick) {
    const script typed = {"type mirorcs.artic(2) \"B\""};
    expect_after(typed, {"List1.index=2", "List1.count=3"});
    expect_after(together({typed, {"pick mirorcs.List1 0"}}), {"focus=quantita(2)", "artic(2)=ab"});
    // Arrows pick the neighbour, the cell's focus moves the list to its own article.
    const script down = together({enter(0, "ABC"), {"key mirorcs.List1 Down"}});
    expect_after(down, {"artic(0)=BULLONE"});
    expect_after(together({down, {"focus mirorcs.artic(3)", "focus mirorcs.artic(0)"}}),
                 {"List1.index=2"});
}

TEST_F(article_lookup, BarCodesAreLookedUpInTheirIndex) {
    const script scan = {"click mirorcs.barcode"};
    for (const char* code : {"8001", "X03", "x03 "}) {
        expect_after(
            together({scan, enter(0, code)}),
            {code[0] == '8' ? "ds(0)=Bullone zincato" : "ds(0)=Dado", "focus=quantita(0)"});
    }
    for (const char* code : {"8002", "800", "ABC"}) {
        expect_after(together({scan, enter(0, code)}),
                     {not_found, std::string("row(0)=") + code + "|||||||"});
    }
    // The line keeps the bar code, and sorts by it.
    expect_after(together({scan, enter(0, "x03"), enter(1, "8001"), {"click mirorcs.riordina"}}),
                 {"artic(0)=8001", "artic(1)=x03"});
}

TEST_F(article_lookup, TheBarCodeMarkTurnsTheListOffAndOn) {
    const script off = {"focus mirorcs.um(4)", "click mirorcs.barcode"};
    expect_after(off, {"focus=artic(4)", "List1.enabled=false", "List1.count=3"});
    expect_after(together({off, {"click mirorcs.barcode"}}), {"List1.enabled=true"});

    company.counter(contatori::articoli, 0);
    expect_after(enter(0, "ABC"), {"List1.count=0", not_found});
    // The block behind the count is read, too.
    expect_after(together({{"click mirorcs.command3d3"}, enter(0, "ABC")}),
                 {"List1.count=3", "List1.enabled=true", "focus=quantita(0)"});
}

TEST_F(article_lookup, F1FindsTheFirstArticleByItsDescription) {
    const struct {
        const char* description;
        const char* code;  ///< what the line gets; null: F1 does nothing
    } cases[] = {{"chio", "ABC"},
                 {" BULLONE Z ", "BULLONE"},
                 {"", "BULLONE"},
                 {"vite", nullptr},
                 // The first match is a deleted article: the one behind it isn't tried.
                 {"dado", nullptr}};
    for (const auto& one : cases) {
        expect_after(
            {"type mirorcs.artic(5) \"AB\"", set("ds(3)", one.description), "key mirorcs.ds(3) F1"},
            {std::string("artic(3)=") + (one.code ? one.code : ""),
             one.code ? "focus=quantita(3)" : "focus=ds(3)", "box="});
    }
}

TEST_F(article_lookup, ALongTextOverwritesTheLinesBelow) {
    company.long_text(3, {"", "  ", "terza\trighe", "", "\x01\x02", "sesta"});
    const script filled = {set("ds(1)", "sotto"), set("quantita(1)", "5"), set("prezzo(1)", "6"),
                           set("sc1(1)", "7"),    set("um(1)", "KG"),      set("ds(2)", "due"),
                           set("ds(3)", "resta")};
    const script commands = together({filled, enter(0, "ABC")});
    expect_after(commands, {"focus=quantita(0)", "artic(0)=ABC", "row(1)=|terzarighe||||||",
                            "row(2)=|sesta||||||", "ds(3)=resta", "tota(2)=0 "});

    rec_prx unmarked{};
    unmarked.righe[0] = "niente";
    unmarked.marca_testo = 122;
    company.files.prx.write(3, unmarked);
    expect_after(commands, {"ds(1)=sotto", "ds(2)=due"});

    company.long_text(3, std::vector<std::string>(5, "testo"));
    expect_after(together({{scroll(189)}, enter(6, "ABC")}), {"ds(6)=Chiodo", "ds(11)=testo"});
    EXPECT_EQ(run(together({{scroll(189)}, enter(7, "ABC")})).back()["fatal"],
              "Errore di run-time '9': Indice non incluso nell'intervallo");
}

}  // namespace
}  // namespace vantora::test
