#include <fstream>
#include <functional>

#include "entry/new_order.h"

namespace vantora::test {
namespace {

class line_grid : public new_order {
 protected:
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
    const struct {
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
        const bool codes = one.usa_barcode != 0;
        const auto state = [](const char* of, bool is) {
            return std::string(of) + (is ? "=true" : "=false");
        };
        // The list is loaded only where codes are looked up in it.
        expect_after({},
                     {state("prezz(0).on", one.price == 0), state("prezz(1).on", one.price == 1),
                      state("postael.on", one.mail), state("barcode.on", codes),
                      codes ? "List1.count=0" : "List1.count=1", state("List1.enabled", !codes)});
    }
}

TEST_F(line_grid, EnterInTheLastRowScrollsAsFarAsLine190) {
    for (const auto& [before, after] :
         {std::pair{1, 2}, {177, 178}, {178, 179}, {179, 179}, {189, 189}}) {
        expect_after({scroll(before), "key mirorcs.prezzo(11) Enter"},
                     {"focus=artic(11)", "VScroll1.value=" + std::to_string(after)});
    }
    expect_after({scroll(189), "key mirorcs.prezzo(10) Enter"}, {"focus=artic(11)"});
}

TEST_F(line_grid, LinesKeepWhatTheHeadOfATextSays) {
    const std::string long_text(70, 'x');
    const struct {
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
    // What the cell shows after its line was painted anew.
    for (const auto& one : cases) {
        expect_after({set(one.control, one.text), scroll(60), scroll(1)},
                     {one.control + ("=" + one.kept)});
    }
    for (const char* control : {"sc1(0)", "sc2(11)"}) {
        EXPECT_EQ(run({set(control, "32767.5")}).front()["fatal"],
                  "Errore di run-time '6': Overflow");
    }
}

TEST_F(line_grid, TotalsFollowEveryNumberCell) {
    expect_after({set("prezzo(0)", "10"), set("quantita(0)", "3"), set("sc1(0)", "10"),
                  set("sc2(0)", "5"), set("prezzo(2)", "1234.5")},
                 {"tota(0)=1.260,15 ", "tota(1)=1.537,38 ", "tota(2)=3 "});
    EXPECT_EQ(run({set("prezzo(0)", "1E300"), set("quantita(0)", "1E200")})[1]["ended"], "fatal");
    // What falls off the end leaves the totals until the next number.
    const script fallen = {scroll(189), set("prezzo(11)", "5"), set("prezzo(10)", "7"),
                           scroll(1),   "focus mirorcs.um(0)",  "click mirorcs.comando(2)"};
    expect_after(fallen, {"tota(0)=12,00 "});
    expect_after(together({fallen, {set("quantita(0)", "1"), scroll(189)}}),
                 {"tota(0)=7,00 ", "prezzo(11)=7", "prezzo(10)="});
}

TEST_F(line_grid, TheCustomersDiscountsComeWithTheFocusOfTheFirst) {
    customer.sconto1 = 10;
    customer.sconto2 = 5;
    const struct {
        script commands;
        script both;
    } cases[] = {
        {{set("sc2(0)", "7"), "focus mirorcs.sc1(0)"}, {"sc1(0)=10", "sc2(0)=5"}},
        {{set("sc1(0)", "3"), set("sc2(0)", "7"), "focus mirorcs.sc1(0)"},
         {"sc1(0)=3", "sc2(0)=7"}},
        {{set("sc1(0)", "0"), "focus mirorcs.um(0)"}, {"sc1(0)=", "sc2(0)=5"}},
        {{set("sc1(0)", "0x"), set("sc2(0)", "0.0"), "focus mirorcs.um(0)"},
         {"sc1(0)=", "sc2(0)="}},
        // The line has them, too: they show again when it is painted anew.
        {{"focus mirorcs.sc1(0)", scroll(9), scroll(1)}, {"sc1(0)=10", "sc2(0)=5"}},
    };
    for (const auto& one : cases) expect_after(one.commands, one.both);
}

TEST_F(line_grid, APriceBringsAVatCodeToALineWithout) {
    const script picked = {"focus mirorcs.civ(1)", "pick mirorcs.Combo1 13", set("prezzo(1)", "3")};
    const struct {
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
    for (const auto& one : cases) {
        customer.iva_cliente = static_cast<std::int16_t>(one.own);
        general([&](rec_gnr& record) { record.codice_iva_base = one.base; });
        expect_after(one.commands, {std::string("civ(1)=") + one.shown});
        expect_after(together({one.commands, {scroll(50), scroll(1)}}),
                     {std::string("civ(1)=") + one.painted});
    }
}

TEST_F(line_grid, AVatPickTakesOneKey) {
    const script open = {set("prezzo(2)", "100"), "focus mirorcs.civ(2)"};
    expect_after(open, {"focus=Combo1", "Combo1.visible=true", "Combo1.index=3"});
    // Code 5 has no rate.
    expect_after(together({open, {"key mirorcs.Combo1 Down"}}),
                 {"focus=prezzo(2)", "civ(2)=05", "Combo1.visible=false", "tota(1)=100,00 "});
    // The entry that is chosen already counts as well, a blank cell stands for code 1.
    expect_after({"focus mirorcs.civ(0)", "pick mirorcs.Combo1 0"}, {"civ(0)=01"});
    // Opening, typing and leaving change nothing.
    for (const script& nothing :
         {script{"type mirorcs.civ(0) \"7\"", "key mirorcs.civ(1) Enter", "focus mirorcs.um(0)"},
          script{set("civ(0)", "07"), scroll(5), "focus mirorcs.um(0)", scroll(1)}}) {
        expect_after(nothing, {"row(0)=|||||||", "Combo1.visible=false"});
    }
}

TEST_F(line_grid, AVatPickBehindAScrollGoesToTheLineOfOldAndTheRowOfTheBar) {
    const script picked = {"focus mirorcs.civ(3)", scroll(6), "pick mirorcs.Combo1 4"};
    expect_after(picked, {"focus=prezzo(6)", "civ(6)=05"});
    expect_after(together({picked, {scroll(1)}}), {"civ(3)=05", "civ(6)=", "civ(11)="});
    // No row has that number: the line alone takes the code.
    expect_after({picked[0], scroll(60), picked[2], scroll(1)},
                 {"civ(3)=05", "Combo1.visible=false"});
}

TEST_F(line_grid, BehindTheVatCellTheLineNumberStandsForTheRow) {
    company.articles({article("A", "Uno", 1)});
    expect_after({set("ds(3)", "quattro"), set("ds(4)", "cinque"), "focus mirorcs.civ(3)",
                  "click mirorcs.comando(2)"},
                 {"ds(3)=quattro", "ds(4)=", "ds(5)=cinque"});
    // Line 12 is the row behind the last: nothing happens.
    for (const char* command :
         {"click mirorcs.comando(2)", "click mirorcs.comando(3)", "pick mirorcs.List1 0"}) {
        const script one = {scroll(9), set("ds(0)", "nove"), set("ds(4)", "tredici"),
                            "focus mirorcs.civ(3)", command};
        expect_after(one, {"ds(0)=nove", "ds(4)=tredici", "row(3)=|||||||"});
        expect_after(together({one,
                               {"click mirorcs.riordina", "click mirorcs.command3d3",
                                "click mirorcs.barcode"}}),
                     {"focus=artic(0)"});
    }
}

TEST_F(line_grid, InsertAndDeleteWorkOnTheRowLastInFocus) {
    const script inserted = {
        set("ds(0)", "uno"),   set("prezzo(0)", "1"), set("ds(1)", "due"),
        set("prezzo(1)", "2"), set("ds(2)", "tre"),   set("prezzo(2)", "3"),
        set("artic(0)", "a"),  "focus mirorcs.um(1)", "click mirorcs.comando(2)"};
    // Rows above aren't painted.
    expect_after(inserted, {"artic(0)=a", "row(1)=|||||||", "row(2)=|due|||||2|04",
                            "row(3)=|tre|||||3|04", "tota(0)=6,00 "});
    expect_after(together({inserted, {"focus mirorcs.um(2)", "click mirorcs.comando(3)"}}),
                 {"ds(2)=tre", "tota(0)=4,00 ", "focus=artic(2)"});
}

}  // namespace
}  // namespace vantora::test
