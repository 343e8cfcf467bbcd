#include <gtest/gtest.h>

#include "entry/article_list.h"
#include "entry/new_order.h"
#include "store/drive.h"
#include "support/faulty_files.h"

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

TEST_F(article_lookup, ALineTakesWhatKeysBarCodesAndListFind) {
    const script bar_codes = {"click mirorcs.barcode"};
    const script nothing = {not_found, "focus=artic(0)", "ds(0)="};
    const auto by_description = [](const std::string& text) {
        return script{"type mirorcs.artic(5) \"AB\"", set("ds(3)", text), "key mirorcs.ds(3) F1"};
    };
    const script cut = together(
        {enter(0, "ABC"), enter(1, "BULLONE"), {"focus mirorcs.ds(0)", "focus mirorcs.um(0)"}});
    const script typed = {"type mirorcs.artic(2) \"B\""};
    const script down = together({enter(0, "ABC"), {"key mirorcs.List1 Down"}});
    const script list_off = {"focus mirorcs.um(4)", "click mirorcs.barcode"};
    const struct {
        script commands;
        script shown;
    } cases[] = {
        {enter(0, "AB"), {"artic(0)=ab", "focus=quantita(0)", "box="}},
        {enter(0, "ABC"), {"artic(0)=ABC"}},
        {enter(0, "GONE"), nothing},
        // Only what the last key found counts, not what another cell's keys did.
        {{"type mirorcs.artic(0) \"AB\"", "key mirorcs.artic(0) Backspace",
          "key mirorcs.artic(0) Enter"},
         nothing},
        {{"type mirorcs.artic(1) \"ABC\"", set("artic(0)", "zzz"), "key mirorcs.artic(0) Enter"},
         nothing},
        // A text that was pasted is looked up when the cell is come back to.
        {{set("artic(0)", "ABC"), "key mirorcs.artic(0) Enter"}, nothing},
        {{set("artic(0)", " abc "), "focus mirorcs.um(0)", "key mirorcs.artic(0) Enter"},
         {"artic(0)=ABC"}},
        // The key joins the end of the text, blanks around it don't count.
        {together({{set("artic(0)", " a ")}, enter(0, "b")}), {"artic(0)=ab"}},
        // Picking again keeps quantity and discounts.
        {together({enter(0, "ABC"),
                   {set("quantita(0)", "3"), set("sc1(0)", "4"), set("prezzo(0)", "99"),
                    "focus mirorcs.civ(0)", "pick mirorcs.Combo1 20", "click mirorcs.prezz(1)",
                    "key mirorcs.artic(0) Enter"},
                   enter(1, "ABC"),
                   {"click mirorcs.prezz(0)"}}),
         {"row(0)=ABC|Chiodo|PZ|3|4||3.5|04", "row(1)=ABC|Chiodo|PZ||||3.5|04"}},
        // A click into the description cuts the article off; the line sorts behind the others.
        {cut, {"row(0)=|Chiodo|PZ||||7|04"}},
        {together({cut, {"focus mirorcs.um(1)", scroll(9), scroll(1), "click mirorcs.riordina"}}),
         {"artic(0)=BULLONE", "ds(1)=Chiodo"}},
        // The list follows the code and the focus; clicks and arrows pick.
        {typed, {"List1.index=2", "List1.count=3"}},
        {together({typed, {"pick mirorcs.List1 0"}}), {"focus=quantita(2)", "artic(2)=ab"}},
        {down, {"artic(0)=BULLONE"}},
        {together({down, {"focus mirorcs.artic(3)", "focus mirorcs.artic(0)"}}), {"List1.index=2"}},
        {list_off, {"focus=artic(4)", "List1.enabled=false", "List1.count=3"}},
        {together({list_off, {"click mirorcs.barcode"}}), {"List1.enabled=true"}},
        // Bar codes have an index of their own; the line keeps them, and sorts by them.
        {together({bar_codes, enter(0, "8001")}), {"ds(0)=Bullone zincato", "focus=quantita(0)"}},
        {together({bar_codes, enter(0, "X03")}), {"ds(0)=Dado"}},
        {together({bar_codes, enter(0, "8002")}), {not_found, "row(0)=8002|||||||"}},
        {together({bar_codes, enter(0, "800")}), {not_found}},
        {together({bar_codes, enter(0, "ABC")}), {not_found}},
        {together({bar_codes, enter(0, "x03 "), enter(1, "8001"), {"click mirorcs.riordina"}}),
         {"artic(0)=8001", "artic(1)=x03"}},
        // F1 takes the first description that begins so, and gives up at a deleted article's.
        {by_description("chio"), {"artic(3)=ABC", "focus=quantita(3)", "box="}},
        {by_description(" BULLONE Z "), {"artic(3)=BULLONE"}},
        {by_description(""), {"artic(3)=BULLONE"}},
        {by_description("vite"), {"artic(3)=", "focus=ds(3)", "box="}},
        {by_description("dado"), {"artic(3)=", "focus=ds(3)", "box="}},
    };
    for (const auto& one : cases) expect_after(one.commands, one.shown);
    EXPECT_EQ(run(enter(0, "GONE"))[1]["box"]["icon"], "stop");

    company.counter(contatori::articoli, 0);
    expect_after(enter(0, "ABC"), {"List1.count=0", not_found});
    // The block behind the count is read, too.
    expect_after(together({{"click mirorcs.command3d3"}, enter(0, "ABC")}),
                 {"List1.count=3", "List1.enabled=true", "focus=quantita(0)"});
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
    // The tax is that of the article that stands there now, though no number changes.
    articles[2].prezzo1 = 10;
    articles[2].iva = 14;
    articles[3].iva = 4;
    company.articles(articles);
    expect_after(together({enter(0, "ab"), {set("artic(0)", "")}, enter(0, "ABC")}),
                 {"tota(0)=10,00 ", "tota(1)=10,00 "});
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
    const script too_low = {scroll(189), set("ds(7)", "resta")};
    EXPECT_EQ(run(together({too_low, enter(7, "ABC")})).back()["fatal"],
              "Errore di run-time '9': Indice non incluso nell'intervallo");
    expect_after(together({{"guards on"}, too_low, enter(7, "ABC"), {"answer ok"}}),
                 {"ds(7)=resta", "quantita(7)=", "ds(8)=", "focus=artic(7)", "box="});
}

std::string wide(std::string text, std::size_t width) {
    text.resize(width, ' ');
    return text;
}

/// Articles 1 to 3000, "ART1" and on; every seventh is deleted, and in the low byte of its mark
/// alone it says so.
struct many_articles : small_company {
    many_articles() {
        std::vector<rec_art> all;
        for (int i = 1; i <= 3000; ++i) {
            const std::string number = std::to_string(i);
            all.push_back(article("ART" + number, "Descrizione " + number, i));
            all.back().eliminato = static_cast<std::int16_t>(i % 7 == 0   ? 257
                                                             : i % 5 == 0 ? 256
                                                                          : 0);
        }
        articles(all);
    }
};

TEST(article_list, ListsLivingArticlesOfWholeBlocksUpToTheOneBehindTheCount) {
    const many_articles company;
    for (const int count : {-32768, -1, 0, 1, 19, 20, 59, 2999, 3000, 32767}) {
        std::vector<std::string> expected;
        const int read = count < 0 ? 0 : std::min(3000, (count / 20 + 1) * 20);
        for (int i = 1; i <= read; ++i) {
            if (i % 7 == 0) continue;
            const std::string number = std::to_string(i);
            expected.push_back(wide("ART" + number, 15) + " - " +
                               wide("Descrizione " + number, 130) + number);
        }
        EXPECT_EQ(article_entries_of(company.files.art_blocchi, static_cast<std::int16_t>(count)),
                  expected)
            << count;
    }
    small_company full;
    for (const int number : {32760, 32767, 32768, 32780}) {
        full.files.art.write(number, article("FINE", "", 1));
    }
    const auto all = article_entries_of(full.files.art_blocchi, 32767);
    ASSERT_EQ(all.size(), 2U) << "numbers beyond sixteen bits";
    EXPECT_EQ(article_number(all.back()), 32767);
}

TEST(article_list, ReadsFewTimesAndLeavesOutWhatCantBeRead) {
    const many_articles company;
    drive real(company.drive());
    faulty_files port(real);
    archivi files;
    apri_archivi(files, port, 1);
    port.reads = 0;
    EXPECT_EQ(article_entries_of(files.art_blocchi, 3000).size(), 3000U - 3000 / 7);
    EXPECT_LE(port.reads, 10U);
    port.reads = 0;
    EXPECT_EQ(find_description(files.art, 3000, "descrizione 2999"), 2999);
    EXPECT_LE(port.reads, 12U);

    port.read_fails = [](auto&, std::int64_t offset, auto) { return offset == 0; };
    const auto rest = article_entries_of(files.art_blocchi, 3000);
    EXPECT_EQ(rest.size(), 3000U - 3000 / 7 - 18) << "a block of twenty";
    EXPECT_EQ(article_number(rest.back()), 3000);
    EXPECT_TRUE(article_entries_of(archivi{}.art_blocchi, 3000).empty());
}

}  // namespace
}  // namespace vantora::test
