#include "entry/new_order.h"

namespace vantora::test {
namespace {

using nlohmann::json;

const json not_found = {{"text", "Articolo non esistente"},
                        {"title", "Attenzione"},
                        {"icon", "stop"},
                        {"buttons", "ok"}};

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
        return {"type mirorcs." + cell("artic", row) + " \"" + code + "\"",
                "key mirorcs." + cell("artic", row) + " Enter"};
    }
    static script together(std::initializer_list<script> parts) {
        script all;
        for (const script& part : parts) all.insert(all.end(), part.begin(), part.end());
        return all;
    }
    static script texts(const json& controls, const std::string& column, int from, int to) {
        script all;
        for (int row = from; row <= to; ++row) {
            all.push_back(controls.at(cell(column, row)).at("text"));
        }
        return all;
    }

    std::vector<rec_art> articles;
};

TEST_F(article_lookup, OnlyWhatTheLastKeyFoundCounts) {
    struct {
        script commands;
        const char* code;  ///< what the line gets; null: nothing is found
    } cases[] = {
        {enter(0, "AB"), "ab"},
        {enter(0, "ABC"), "ABC"},
        {enter(0, "GONE"), nullptr},
        {together({{"type mirorcs.artic(0) \"AB\"", "key mirorcs.artic(0) Backspace"},
                   {"key mirorcs.artic(0) Enter"}}),
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
        auto commands = one.commands;
        commands.insert(commands.end(), {"controls mirorcs"});
        const auto replies = run(commands);
        const json& entered = replies[replies.size() - 2];
        const json& controls = replies.back()["value"];
        if (one.code) {
            EXPECT_EQ(controls["artic(0)"]["text"], one.code) << json(one.commands);
            EXPECT_EQ(entered["focus"], "quantita(0)");
        } else {
            EXPECT_EQ(entered["box"], not_found) << json(one.commands);
            EXPECT_EQ(entered["focus"], "artic(0)");
            EXPECT_NE(controls["artic(0)"]["text"], "");
            EXPECT_EQ(controls["ds(0)"]["text"], "") << json(one.commands);
        }
    }
}

TEST_F(article_lookup, PickingAgainKeepsQuantityAndDiscounts) {
    const json controls = controls_after(
        together({enter(0, "ABC"),
                  {set("quantita(0)", "3"), set("sc1(0)", "4"), set("prezzo(0)", "99"),
                   "focus mirorcs.civ(0)", "pick mirorcs.Combo1 20", "click mirorcs.prezz(1)",
                   "key mirorcs.artic(0) Enter"},
                  enter(1, "ABC"),
                  {"click mirorcs.prezz(0)"}}));
    EXPECT_EQ(row_of(controls, 0), (script{"ABC", "Chiodo", "PZ", "3", "4", "", "3.5", "04"}));
    EXPECT_EQ(row_of(controls, 1), (script{"ABC", "Chiodo", "PZ", "", "", "", "3.5", "04"}));
}

TEST_F(article_lookup, TheCustomersVatCodeGoesFirst) {
    for (const auto& [own, shown] : {std::pair{0, "02"}, {25, "02"}, {1, "01"}, {24, "24"}}) {
        customer.iva_cliente = static_cast<std::int16_t>(own);
        EXPECT_EQ(text_after(enter(0, "ab"), "civ(0)"), shown) << own;
    }
    // An article without a code gets that of the company with its price.
    customer.iva_cliente = 0;
    articles[3].iva = std::int16_t{0};
    company.articles(articles);
    EXPECT_EQ(text_after(enter(0, "ab"), "civ(0)"), "04");
}

TEST_F(article_lookup, AClickIntoTheDescriptionCutsTheArticleOff) {
    const auto replies = run(together(
        {enter(0, "ABC"),
         enter(1, "BULLONE"),
         {"focus mirorcs.ds(0)", "focus mirorcs.um(0)", "controls mirorcs", "focus mirorcs.um(1)",
          scroll(9), scroll(1), "click mirorcs.riordina", "controls mirorcs"}}));
    const json& cut = replies[6]["value"];
    EXPECT_EQ(row_of(cut, 0), (script{"", "Chiodo", "PZ", "", "", "", "7", "04"}));
    // Without an article, the line has no stock to show: that of the other line stays.
    EXPECT_TRUE(cut["listx"]["text"].get<std::string>().ends_with("00001"));
    // The line itself has lost it, too: it sorts behind the other one.
    EXPECT_EQ(row_of(replies.back()["value"], 0)[0], "BULLONE");
    EXPECT_EQ(row_of(replies.back()["value"], 1)[1], "Chiodo");
}

TEST_F(article_lookup, TheListFollowsTheCodeAndPicksByClick) {
    auto replies = run({"type mirorcs.artic(2) \"B\"", "get mirorcs.List1", "pick mirorcs.List1 0",
                        "controls mirorcs", "items mirorcs.List1"});
    EXPECT_EQ(replies[1]["value"]["index"], 2);
    EXPECT_EQ(replies[2]["focus"], "quantita(2)");
    EXPECT_EQ(replies[3]["value"]["artic(2)"]["text"], "ab");
    EXPECT_EQ(replies[4]["value"].size(), 3U);
    // Arrows pick the neighbour, the cell's focus moves the list to its own article.
    replies =
        run(together({enter(0, "ABC"),
                      {"key mirorcs.List1 Down", "get mirorcs.artic(0)", "focus mirorcs.artic(3)",
                       "focus mirorcs.artic(0)", "get mirorcs.List1"}}));
    EXPECT_EQ(replies[3]["value"]["text"], "BULLONE");
    EXPECT_EQ(replies[6]["value"]["index"], 2);
}

TEST_F(article_lookup, BarCodesAreLookedUpInTheirIndex) {
    const script scan = {"click mirorcs.barcode"};
    struct {
        const char* code;
        const char* description;  ///< null: nothing is found
    } cases[] = {{"8001", "Bullone zincato"}, {"X03", "Dado"},  {"x03 ", "Dado"},
                 {"8002", nullptr},           {"800", nullptr}, {"ABC", nullptr}};
    for (const auto& one : cases) {
        const auto replies = run(together({scan, enter(0, one.code), {"controls mirorcs"}}));
        const json& controls = replies.back()["value"];
        if (one.description) {
            EXPECT_EQ(controls["ds(0)"]["text"], one.description);
            EXPECT_EQ(replies[2]["focus"], "quantita(0)");
        } else {
            EXPECT_EQ(replies[2]["box"], not_found) << one.code;
            EXPECT_EQ(row_of(controls, 0), (script{one.code, "", "", "", "", "", "", ""}));
        }
    }
    // The line keeps the bar code, and sorts by it.
    const json controls = controls_after(
        together({scan, enter(0, "x03"), enter(1, "8001"), {"click mirorcs.riordina"}}));
    EXPECT_EQ(texts(controls, "artic", 0, 1), (script{"8001", "x03"}));
}

TEST_F(article_lookup, TheBarCodeMarkTurnsTheListOffAndOn) {
    auto replies = run({"focus mirorcs.um(4)", "click mirorcs.barcode", "get mirorcs.List1",
                        "click mirorcs.barcode", "get mirorcs.List1"});
    EXPECT_EQ(replies[1]["focus"], "artic(4)");
    EXPECT_EQ(replies[2]["value"]["enabled"], false);
    EXPECT_EQ(replies[2]["value"]["count"], 3);
    EXPECT_EQ(replies[4]["value"]["enabled"], true);

    company.counter(contatori::articoli, 0);
    replies = run(together(
        {{"get mirorcs.List1", "click mirorcs.command3d3", "get mirorcs.List1"}, enter(0, "ABC")}));
    EXPECT_EQ(replies[0]["value"]["count"], 0);
    EXPECT_EQ(replies[2]["value"]["count"], 3);  // the block behind the count is read, too
    EXPECT_EQ(replies[2]["value"]["enabled"], true);
    EXPECT_EQ(replies.back()["focus"], "quantita(0)");
    EXPECT_EQ(run(enter(0, "ABC")).back()["box"], not_found);
}

TEST_F(article_lookup, F1FindsTheFirstArticleByItsDescription) {
    struct {
        const char* description;
        const char* code;  ///< what the line gets; null: F1 does nothing
    } cases[] = {{"chio", "ABC"},
                 {" BULLONE Z ", "BULLONE"},
                 {"", "BULLONE"},
                 {"vite", nullptr},
                 // The first match is a deleted article: the one behind it isn't tried.
                 {"dado", nullptr}};
    for (const auto& one : cases) {
        const auto replies = run({"type mirorcs.artic(5) \"AB\"", set("ds(3)", one.description),
                                  "key mirorcs.ds(3) F1", "controls mirorcs"});
        EXPECT_EQ(replies[3]["value"]["artic(3)"]["text"], one.code ? one.code : "");
        EXPECT_EQ(replies[2]["focus"], one.code ? "quantita(3)" : "ds(3)") << one.description;
        EXPECT_FALSE(replies[2].contains("box"));
    }
}

TEST_F(article_lookup, ALongTextOverwritesTheLinesBelow) {
    company.long_text(3, {"", "  ", "terza\trighe", "", "\x01\x02", "sesta"});
    const script filled = {set("ds(1)", "sotto"), set("quantita(1)", "5"), set("prezzo(1)", "6"),
                           set("sc1(1)", "7"),    set("um(1)", "KG"),      set("ds(2)", "due"),
                           set("ds(3)", "resta")};
    auto commands = together({filled, enter(0, "ABC")});
    EXPECT_EQ(focus_after(commands), "quantita(0)");
    const json controls = controls_after(commands);
    EXPECT_EQ(row_of(controls, 0)[0], "ABC");
    EXPECT_EQ(row_of(controls, 1), (script{"", "terzarighe", "", "", "", "", "", ""}));
    EXPECT_EQ(row_of(controls, 2), (script{"", "sesta", "", "", "", "", "", ""}));
    EXPECT_EQ(row_of(controls, 3)[1], "resta");
    EXPECT_EQ(controls["tota(2)"]["text"], "0 ");

    rec_prx unmarked{};
    unmarked.righe[0] = "niente";
    unmarked.marca_testo = 122;
    company.files.prx.write(3, unmarked);
    EXPECT_EQ(texts(controls_after(commands), "ds", 1, 2), (script{"sotto", "due"}));
}

TEST_F(article_lookup, ALongTextPastTheLastLineEndsTheProgram) {
    company.long_text(3, std::vector<std::string>(5, "testo"));
    EXPECT_EQ(texts(controls_after(together({{scroll(189)}, enter(6, "ABC")})), "ds", 6, 11),
              (script{"Chiodo", "testo", "testo", "testo", "testo", "testo"}));
    const json last = run(together({{scroll(189)}, enter(7, "ABC")})).back();
    EXPECT_EQ(last["ended"], "fatal");
    EXPECT_EQ(last["fatal"], "Errore di run-time '9': Indice non incluso nell'intervallo");
}

}  // namespace
}  // namespace vantora::test
