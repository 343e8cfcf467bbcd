#include <fstream>
#include <functional>

#include "entry/new_order.h"

namespace vantora::test {
namespace {

class line_grid : public new_order {
 protected:
    /// What a cell's line holds: what the cell shows after its line was painted anew.
    std::string kept(const std::string& control, const std::string& text) {
        return text_after({set(control, text), scroll(60), scroll(1)}, control);
    }
    void general(const std::function<void(rec_gnr&)>& change) {
        rec_gnr record{};
        std::ifstream(company.file("gnr"), std::ios::binary)
            .read(reinterpret_cast<char*>(&record), sizeof record);
        change(record);
        std::ofstream(company.file("gnr"), std::ios::binary)
            .write(reinterpret_cast<const char*>(&record), sizeof record);
    }
};

TEST_F(line_grid, OpensWithTheOptionsOfCompanyAndCustomer) {
    struct {
        const char* listino;
        const char* invio_email;
        const char* mail_allowed;
        int usa_barcode;
        int price;
        bool mail;
    } cases[] = {
        {"1", "1", "1", 0, 1, true},   {"0", "1", "0", 0, 0, false}, {"2", "1", "x", 1, 0, false},
        {" ", "0", "1", -1, 0, false}, {"1", "2", "1", 1, 1, false},
    };
    company.articles({article("A", "Uno", 1)});
    for (const auto& one : cases) {
        customer.listino = one.listino;
        customer.invio_email = one.invio_email;
        std::vector<std::string> pdf(80);
        pdf[5 * 4 + 1] = one.mail_allowed;
        company.text("pdf", pdf);
        general([&](rec_gnr& record) {
            record.usa_barcode = static_cast<std::int16_t>(one.usa_barcode);
        });
        const json controls = controls_after({});
        EXPECT_EQ(controls["prezz(0)"]["on"], one.price == 0) << one.listino;
        EXPECT_EQ(controls["prezz(1)"]["on"], one.price == 1) << one.listino;
        EXPECT_EQ(controls["postael"]["on"], one.mail) << one.invio_email << one.mail_allowed;
        EXPECT_EQ(controls["barcode"]["on"], one.usa_barcode != 0);
        // The list is loaded only where codes are looked up in it.
        EXPECT_EQ(controls["List1"]["count"], one.usa_barcode != 0 ? 0 : 1);
        EXPECT_EQ(controls["List1"]["enabled"], one.usa_barcode == 0);
    }
}

TEST_F(line_grid, EnterInTheLastRowScrollsAsFarAsLine190) {
    for (const auto& [before, after] :
         {std::pair{1, 2}, {177, 178}, {178, 179}, {179, 179}, {189, 189}}) {
        const auto replies =
            run({scroll(before), "key mirorcs.prezzo(11) Enter", "get mirorcs.VScroll1"});
        EXPECT_EQ(replies[1]["focus"], "artic(11)") << before;
        EXPECT_EQ(replies[2]["value"]["value"], after) << before;
    }
    EXPECT_EQ(focus_after({scroll(189), "key mirorcs.prezzo(10) Enter"}), "artic(11)");
}

TEST_F(line_grid, LinesKeepWhatTheHeadOfATextSays) {
    const std::string long_text(70, 'x');
    struct {
        const char* control;
        std::string text;
        std::string kept;
    } cases[] = {
        {"quantita(0)", " 1 2.50x", "12.5"},
        {"prezzo(3)", "-7,25", "-7"},
        {"prezzo(11)", "0.00", ""},
        {"sc1(1)", "6.5", "6"},
        {"sc2(1)", "32767.4", "32767"},
        {"sc2(1)", "-32768.5", "-32768"},
        {"um(4)", "pezzi", "pe"},
        {"ds(4)", "  con rientro ", "con rientro"},
        {"ds(4)", long_text, long_text.substr(0, 60)},
        {"artic(5)", "non scelto", ""},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(kept(one.control, one.text), one.kept) << one.control << ' ' << one.text;
    }
}

TEST_F(line_grid, ADiscountBeyondSixteenBitsEndsTheProgram) {
    for (const char* control : {"sc1(0)", "sc2(11)"}) {
        const json last = run({set(control, "32767.5")}).back();
        EXPECT_EQ(last["fatal"], "Errore di run-time '6': Overflow");
    }
}

TEST_F(line_grid, TotalsFollowEveryNumberCell) {
    const json controls =
        controls_after({set("prezzo(0)", "10"), set("quantita(0)", "3"), set("sc1(0)", "10"),
                        set("sc2(0)", "5"), set("prezzo(2)", "1234.5")});
    EXPECT_EQ(controls["tota(0)"]["text"], "1.260,15 ");
    EXPECT_EQ(controls["tota(1)"]["text"], "1.537,38 ");
    EXPECT_EQ(controls["tota(2)"]["text"], "3 ");
    EXPECT_EQ(run({set("prezzo(0)", "1E300"), set("quantita(0)", "1E200")}).back()["ended"],
              "fatal");
}

TEST_F(line_grid, TheCustomersDiscountsComeWithTheFocusOfTheFirst) {
    customer.sconto1 = 10;
    customer.sconto2 = 5;
    const struct {
        script commands;
        const char* both;
    } cases[] = {
        {{set("sc2(0)", "7"), "focus mirorcs.sc1(0)"}, "10+5"},
        {{set("sc1(0)", "3"), set("sc2(0)", "7"), "focus mirorcs.sc1(0)"}, "3+7"},
        {{set("sc1(0)", "0"), "focus mirorcs.um(0)"}, "+5"},
        {{set("sc1(0)", "0x"), set("sc2(0)", "0.0"), "focus mirorcs.um(0)"}, "+"},
        // The line has them, too: they show again when it is painted anew.
        {{"focus mirorcs.sc1(0)", scroll(9), scroll(1)}, "10+5"},
    };
    for (const auto& one : cases) {
        const script row = row_of(controls_after(one.commands), 0);
        EXPECT_EQ(row[4] + "+" + row[5], one.both) << json(one.commands);
    }
}

TEST_F(line_grid, APriceBringsAVatCodeToALineWithout) {
    const script picked = {"focus mirorcs.civ(1)", "pick mirorcs.Combo1 13", set("prezzo(1)", "3")};
    struct {
        int own;
        const char* base;
        script commands;
        const char* shown;
        const char* painted;
    } cases[] = {
        {0, "04", {set("prezzo(1)", "10")}, "04", "04"},
        {25, "9 ", {set("prezzo(1)", "10")}, "9 ", "09"},
        {24, "04", {set("prezzo(1)", "-1")}, "24", "24"},
        {0, "04", {set("prezzo(1)", "1"), set("prezzo(1)", "0")}, "04", "04"},
        {7, "04", picked, "14", "14"},
    };
    for (auto& one : cases) {
        customer.iva_cliente = static_cast<std::int16_t>(one.own);
        general([&](rec_gnr& record) { record.codice_iva_base = one.base; });
        EXPECT_EQ(text_after(one.commands, "civ(1)"), one.shown) << one.own << one.base;
        one.commands.insert(one.commands.end(), {scroll(50), scroll(1)});
        EXPECT_EQ(text_after(one.commands, "civ(1)"), one.painted) << one.own << one.base;
    }
}

TEST_F(line_grid, AVatPickTakesOneKey) {
    const auto replies = run({set("prezzo(2)", "100"), "focus mirorcs.civ(2)", "get mirorcs.Combo1",
                              "key mirorcs.Combo1 Down", "controls mirorcs"});
    EXPECT_EQ(replies[1]["focus"], "Combo1");
    EXPECT_EQ(replies[2]["value"]["visible"], true);
    EXPECT_EQ(replies[2]["value"]["index"], 3);
    EXPECT_EQ(replies[3]["focus"], "prezzo(2)");
    const json& controls = replies[4]["value"];
    EXPECT_EQ(controls["civ(2)"]["text"], "05");
    EXPECT_EQ(controls["Combo1"]["visible"], false);
    EXPECT_EQ(controls["tota(1)"]["text"], "100,00 ");  // code 5 has no rate

    // The entry that is chosen already counts as well, a blank cell stands for code 1.
    EXPECT_EQ(text_after({"focus mirorcs.civ(0)", "pick mirorcs.Combo1 0"}, "civ(0)"), "01");
    // Opening, typing and leaving change nothing.
    for (const script& nothing :
         {script{"type mirorcs.civ(0) \"7\"", "key mirorcs.civ(1) Enter", "focus mirorcs.um(0)"},
          script{set("civ(0)", "07"), scroll(5), "focus mirorcs.um(0)", scroll(1)}}) {
        const json after = controls_after(nothing);
        EXPECT_EQ(row_of(after, 0), script(8, "")) << json(nothing);
        EXPECT_EQ(after["Combo1"]["visible"], false) << json(nothing);
    }
}

TEST_F(line_grid, AVatPickBehindAScrollGoesToTheLineOfOldAndTheRowOfTheBar) {
    const script open = {"focus mirorcs.civ(3)", scroll(6), "pick mirorcs.Combo1 4"};
    const auto replies =
        run({open[0], open[1], open[2], "get mirorcs.civ(6)", scroll(1), "controls mirorcs"});
    EXPECT_EQ(replies[2]["focus"], "prezzo(6)");
    EXPECT_EQ(replies[3]["value"]["text"], "05");
    EXPECT_EQ(replies[5]["value"]["civ(3)"]["text"], "05");
    EXPECT_EQ(replies[5]["value"]["civ(6)"]["text"], "");
    EXPECT_EQ(replies[5]["value"]["civ(11)"]["text"], "");

    // No row has that number: the line alone takes the code.
    const json controls = controls_after({open[0], scroll(60), open[2], scroll(1)});
    EXPECT_EQ(controls["civ(3)"]["text"], "05");
    EXPECT_EQ(controls["Combo1"]["visible"], false);
}

TEST_F(line_grid, BehindTheVatCellTheLineNumberStandsForTheRow) {
    json controls = controls_after({set("ds(3)", "quattro"), set("ds(4)", "cinque"),
                                    "focus mirorcs.civ(3)", "click mirorcs.comando(2)"});
    EXPECT_EQ(controls["ds(3)"]["text"], "quattro");
    EXPECT_EQ(controls["ds(4)"]["text"], "");
    EXPECT_EQ(controls["ds(5)"]["text"], "cinque");

    // Line 12 is the row behind the last: nothing happens.
    company.articles({article("A", "Uno", 1)});
    for (const char* command :
         {"click mirorcs.comando(2)", "click mirorcs.comando(3)", "pick mirorcs.List1 0"}) {
        const auto replies =
            run({scroll(9), set("ds(0)", "nove"), set("ds(4)", "tredici"), "focus mirorcs.civ(3)",
                 command, "controls mirorcs", "click mirorcs.riordina", "click mirorcs.command3d3",
                 "click mirorcs.barcode"});
        controls = replies[5]["value"];
        EXPECT_EQ(controls["ds(0)"]["text"], "nove") << command;
        EXPECT_EQ(controls["ds(4)"]["text"], "tredici") << command;
        EXPECT_EQ(row_of(controls, 3), script(8, "")) << command;
        EXPECT_EQ(replies.back()["focus"], "artic(0)") << command;
        EXPECT_FALSE(replies.back().contains("ended"));
    }
}

TEST_F(line_grid, InsertAndDeleteWorkOnTheRowLastInFocus) {
    const script filled = {set("ds(0)", "uno"),   set("prezzo(0)", "1"), set("ds(1)", "due"),
                           set("prezzo(1)", "2"), set("ds(2)", "tre"),   set("prezzo(2)", "3")};
    auto commands = filled;
    commands.insert(commands.end(),
                    {set("artic(0)", "a meta"), "focus mirorcs.um(1)", "click mirorcs.comando(2)",
                     "controls mirorcs", "focus mirorcs.um(2)", "click mirorcs.comando(3)"});
    const json after_both = controls_after(commands);
    const json inserted = run(commands).at(9).at("value");
    EXPECT_EQ(inserted["artic(0)"]["text"], "a meta") << "rows above aren't painted";
    EXPECT_EQ(row_of(inserted, 1), script(8, ""));
    EXPECT_EQ(row_of(inserted, 2), (script{"", "due", "", "", "", "", "2", "04"}));
    EXPECT_EQ(row_of(inserted, 3), (script{"", "tre", "", "", "", "", "3", "04"}));
    EXPECT_EQ(inserted["tota(0)"]["text"], "6,00 ");
    EXPECT_EQ(row_of(after_both, 2)[1], "tre");
    EXPECT_EQ(after_both["tota(0)"]["text"], "4,00 ");
    EXPECT_EQ(focus_after(commands), "artic(2)");
}

TEST_F(line_grid, WhatFallsOffTheEndLeavesTheTotalsUntilTheNextNumber) {
    const auto replies =
        run({scroll(189), set("prezzo(11)", "5"), set("prezzo(10)", "7"), scroll(1),
             "focus mirorcs.um(0)", "click mirorcs.comando(2)", "get mirorcs.tota(0)",
             set("quantita(0)", "1"), "get mirorcs.tota(0)", scroll(189), "controls mirorcs"});
    EXPECT_EQ(replies[6]["value"]["text"], "12,00 ");
    EXPECT_EQ(replies[8]["value"]["text"], "7,00 ");
    EXPECT_EQ(replies[10]["value"]["prezzo(11)"]["text"], "7");
    EXPECT_EQ(replies[10]["value"]["prezzo(10)"]["text"], "");
}

}  // namespace
}  // namespace vantora::test
