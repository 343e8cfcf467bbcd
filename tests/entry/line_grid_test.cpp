#include "entry/new_order.h"

namespace vantora::test {
namespace {

class line_grid : public new_order {
 protected:
    line_grid() {
        company.articles({article("A", "Uno", 1)});
        customer.sconto1 = 10;
        customer.sconto2 = 5;
    }
    void general(int usa_barcode, const char* codice_iva_base) {
        change_stored(company.gnr, 1, [&](rec_gnr& general) {
            general.usa_barcode = static_cast<std::int16_t>(usa_barcode);
            general.codice_iva_base = codice_iva_base;
        });
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
    for (const auto& one : cases) {
        customer.listino = one.listino;
        customer.invio_email = one.invio_email;
        std::vector<std::string> pdf(80);
        pdf[5 * 4 + 1] = one.mail_allowed;
        company.text("pdf", pdf);
        general(one.usa_barcode, "04");
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

TEST_F(line_grid, CellsFollowHandsKeysAndCommands) {
    const std::string long_text(70, 'x');
    const auto repainted = [](script commands) {
        commands.insert(commands.end(), {scroll(60), scroll(1)});
        return commands;
    };
    const script priced = {set("prezzo(2)", "100"), "focus mirorcs.civ(2)"};
    const script picked = {"focus mirorcs.civ(3)", scroll(6), "pick mirorcs.Combo1 4"};
    const script fallen = {scroll(189), set("prezzo(11)", "5"), set("prezzo(10)", "7"),
                           scroll(1),   "focus mirorcs.um(0)",  "click mirorcs.comando(2)"};
    const script inserted = {
        set("ds(0)", "uno"),   set("prezzo(0)", "1"), set("ds(1)", "due"),
        set("prezzo(1)", "2"), set("ds(2)", "tre"),   set("prezzo(2)", "3"),
        set("artic(0)", "a"),  "focus mirorcs.um(1)", "click mirorcs.comando(2)"};
    const struct {
        script commands;
        script shown;
    } cases[] = {
        // What a line keeps of a text shows when it is painted anew.
        {repainted({set("quantita(0)", " 1 2.50x")}), {"quantita(0)=12.5"}},
        {repainted({set("prezzo(3)", "-7,25")}), {"prezzo(3)=-7"}},
        {repainted({set("prezzo(11)", "0.00")}), {"prezzo(11)="}},
        {repainted({set("sc1(1)", "6.5"), set("sc2(1)", "32767.4")}), {"sc1(1)=6", "sc2(1)=32767"}},
        {repainted({set("sc2(1)", "-32768.5")}), {"sc2(1)=-32768"}},
        {repainted({set("um(4)", "pezzi"), set("ds(4)", "  con rientro ")}),
         {"um(4)=pe", "ds(4)=con rientro"}},
        {repainted({set("ds(4)", long_text)}), {"ds(4)=" + long_text.substr(0, 60)}},
        {repainted({set("artic(5)", "non scelto")}), {"artic(5)="}},
        // Enter in the last row scrolls as far as line 190.
        {{"key mirorcs.prezzo(11) Enter"}, {"focus=artic(11)", "VScroll1.value=2"}},
        {{scroll(178), "key mirorcs.prezzo(11) Enter"}, {"VScroll1.value=179"}},
        {{scroll(179), "key mirorcs.prezzo(11) Enter"}, {"VScroll1.value=179"}},
        {{scroll(100), "key mirorcs.prezzo(10) Enter"}, {"focus=artic(11)", "VScroll1.value=100"}},
        // Totals follow every cell, and what falls off the end.
        {{set("prezzo(0)", "10"), set("quantita(0)", "3"), set("sc1(0)", "10"), set("sc2(0)", "5"),
          set("prezzo(2)", "1234.5")},
         {"tota(0)=1.260,15 ", "tota(1)=1.537,38 ", "tota(2)=3 "}},
        {fallen, {"tota(0)=7,00 "}},
        {together({fallen, {scroll(189)}}), {"prezzo(11)=7", "prezzo(10)="}},
        // The customer's discounts come with the focus of the first.
        {{set("sc2(0)", "7"), "focus mirorcs.sc1(0)", scroll(9), scroll(1)},
         {"sc1(0)=10", "sc2(0)=5"}},
        {{set("sc1(0)", "3"), set("sc2(0)", "7"), "focus mirorcs.sc1(0)"},
         {"sc1(0)=3", "sc2(0)=7"}},
        {{set("sc1(0)", "0"), "focus mirorcs.um(0)"}, {"sc1(0)=", "sc2(0)=5"}},
        {{set("sc1(0)", "0x"), set("sc2(0)", "0.0"), "focus mirorcs.um(0)"},
         {"sc1(0)=", "sc2(0)="}},
        // A VAT pick takes one key; code 5 has no rate. A blank cell stands for code 1.
        {priced, {"focus=Combo1", "Combo1.visible=true", "Combo1.index=3"}},
        {together({priced, {"key mirorcs.Combo1 Down"}}),
         {"focus=prezzo(2)", "civ(2)=05", "Combo1.visible=false", "tota(1)=100,00 "}},
        {{"focus mirorcs.civ(0)", "pick mirorcs.Combo1 0"}, {"civ(0)=01"}},
        {{"type mirorcs.civ(0) \"7\"", "key mirorcs.civ(1) Enter", "focus mirorcs.um(0)"},
         {"row(0)=|||||||", "Combo1.visible=false"}},
        {repainted({set("civ(0)", "07"), scroll(5), "focus mirorcs.um(0)"}), {"row(0)=|||||||"}},
        // Behind a scroll it goes to the line of old and the row of the bar, if there is one.
        {picked, {"focus=prezzo(6)", "civ(6)=05"}},
        {together({picked, {scroll(1)}}), {"civ(3)=05", "civ(6)=", "civ(11)="}},
        {{picked[0], scroll(60), picked[2], scroll(1)}, {"civ(3)=05", "Combo1.visible=false"}},
        // Behind the VAT cell the line's number stands for the row.
        {{set("ds(3)", "quattro"), set("ds(4)", "cinque"), "focus mirorcs.civ(3)",
          "click mirorcs.comando(2)"},
         {"ds(3)=quattro", "ds(4)=", "ds(5)=cinque"}},
        // Rows above the one inserted aren't painted.
        {inserted,
         {"artic(0)=a", "row(1)=|||||||", "row(2)=|due|||||2|04", "row(3)=|tre|||||3|04",
          "tota(0)=6,00 "}},
        {together({inserted, {"focus mirorcs.um(2)", "click mirorcs.comando(3)"}}),
         {"ds(2)=tre", "tota(0)=4,00 ", "focus=artic(2)"}},
    };
    for (const auto& one : cases) expect_after(one.commands, one.shown);

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
    for (const script& fatal :
         {script{set("sc1(0)", "32767.5")}, script{set("sc2(11)", "32767.5")},
          script{set("prezzo(0)", "1E300"), set("quantita(0)", "1E200"), "screens"}}) {
        EXPECT_EQ(run(fatal).at(fatal.size() > 1 ? 1 : 0)["fatal"],
                  "Errore di run-time '6': Overflow");
    }
}

TEST_F(line_grid, APriceBringsAVatCodeToALineWithout) {
    const struct {
        int own;
        const char* base;
        script commands;
        const char* shown;
        const char* painted;
    } cases[] = {{0, "04", {set("prezzo(1)", "10")}, "04", "04"},
                 {25, "9 ", {set("prezzo(1)", "10")}, "9 ", "09"},
                 {24, "04", {set("prezzo(1)", "-1")}, "24", "24"},
                 {0, "04", {set("prezzo(1)", "1"), set("prezzo(1)", "0")}, "04", "04"},
                 {7,
                  "04",
                  {"focus mirorcs.civ(1)", "pick mirorcs.Combo1 13", set("prezzo(1)", "3")},
                  "14",
                  "14"}};
    for (const auto& one : cases) {
        customer.iva_cliente = static_cast<std::int16_t>(one.own);
        general(0, one.base);
        expect_after(one.commands, {std::string("civ(1)=") + one.shown});
        expect_after(together({one.commands, {scroll(50), scroll(1)}}),
                     {std::string("civ(1)=") + one.painted});
    }
}

}  // namespace
}  // namespace vantora::test
