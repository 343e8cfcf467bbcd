#include <gtest/gtest.h>

#include "entry/order_head.h"
#include "entry/order_station.h"

namespace vantora::test {
namespace {

/// Three orders, of which the second one is worked on.
struct edited_company : order_company {
    edited_company() {
        for (const int block : {1, 2, 3}) {
            order(block, 1, {{1, 5, 2}, {2, 3}, {0, 0, 0, "testo"}}, true);
        }
    }
};

TEST(mirorcs, ANewOrderTakesItsHeadFromTheCustomersScreenAndIsPrinted) {
    order_company company;
    company.counter(contatori::ordini, 0, 41);
    order_station at(company);
    at.front.decide = [&] {
        mirorcs& screen = *at.app.mirorcs;
        screen.comando[0].click();
        at.desk.close(screen);
        at.app.mirorcx->show();
        screen.show();
        EXPECT_EQ(screen.quantita[0].text(), "2") << "nothing else happens during a save";
        EXPECT_EQ(at.desk.pointer_shape(), ui::pointer::normal);
        EXPECT_EQ(head_to_print(*at.app.mirorcx).combo1[1], "Pagamento 2");
        return at.front.told.back() != "Stampa altra copia?";
    };
    at.desk.dispatch([&] {
        at.app.mirorc->bottone[2].click();
        at.app.mirorcx->Text3[3].set_text("cantiere");
        at.app.mirorcx->Combo1[customer_head::porto].choose(1);
        at.app.mirorcx->Combo1[customer_head::trasporto].choose(2);
        at.app.mirorcx->bottone.click();
        at.app.mirorcs->lookup().List1.pick(0);
        at.app.mirorcs->quantita[0].set_text("2");
        at.app.mirorcs->artic[1].set_focus();
        at.app.mirorcs->lookup().List1.pick(1);
        at.app.mirorcs->ds[1].set_focus();
        at.app.mirorcs->impegno.set_on(true);
        at.app.mirorcs->prezz[1].set_on(true);
        at.app.mirorcs->comando[1].click();
    });
    EXPECT_EQ(at.front.told, (std::vector<std::string>{
                                 "Stampare l'ordine?", "Iniziare la stampa?", "Stampa altra copia?",
                                 "Generare il file PDF ed eventualmente inviarlo tramite posta "
                                 "elettronica?"}));
    EXPECT_EQ(at.paper.take_jobs().size(), 1U);
    EXPECT_TRUE(at.programs.take_started().at(0).ends_with("C:\\orc42.pdf,***"));
    EXPECT_FALSE(at.app.mirorcs.loaded() || at.app.mirorcx.loaded());
    std::string shown;
    for (int col = 0; col < 6; ++col) {
        shown.append(at.app.mirorc->elenco.text(1, col)).append("|");
    }
    EXPECT_EQ(shown, "1|42|06/05/2024|ROSSI SPA|cantiere|06/05/2024|");

    const rec_orc first = company.row_now(1, 1);
    EXPECT_EQ(first.articolo, 1);
    EXPECT_EQ(first.quantita, 2);
    EXPECT_EQ(company.row_now(1, 2).articolo, 0) << "its description was entered";
    EXPECT_EQ(first.impegno.full(), "1");
    EXPECT_NEAR(first.data_reg, 45418.43090, 0.00001);
    EXPECT_EQ(company.row_now(1, 2).testo3.trimmed(), "amm indirizzo");
    EXPECT_EQ(company.row_now(1, 3).testo2.trimmed(), "amm citta");
    EXPECT_EQ(company.row_now(1, 3).testo3.trimmed(), "1211") << "port, transport, payment, price";
    EXPECT_EQ(company.row_now(1, 4).testo3.trimmed(), "corriere 3");
}

enum class road { takes, compacts, edits, deletes };

void take(road which, order_station& at) {
    if (which == road::takes) return at.take_order();
    if (which == road::compacts) return at.compact();
    if (at.app.mirorc->elenco.text(2, 0).empty()) return;  // the register could list nothing
    mirorcz& screen = at.open(2);
    if (which == road::deletes) return at.delete_opened();
    screen.quantita[1].set_text("7");
    at.save_opened();
}

/// From the n-th read, write, flush or opening of a file on all of them fail: what the archive's
/// check then finds wrong was told, and nothing ends the program. What a compaction makes of heads
/// that it can't read is told apart.
TEST(order_screens, WhateverRefusesIsTold) {
    for (const road which : {road::takes, road::compacts, road::edits, road::deletes}) {
        for (const char fault : {'r', 'w', 'f', 'o'}) {
            for (const int n : {0, 1, 2, 3, 5, 8, 60, 203}) {
                if (which == road::compacts && fault == 'r') continue;
                edited_company company;
                if (which == road::compacts) delete_order(company, 1);
                order_station at(company, fault != 'o');
                int count = 0;
                const auto refuses = [&](auto&&...) { return count++ >= n; };
                if (fault == 'r') at.faults.read_fails = refuses;
                if (fault == 'w') at.faults.write_fails = refuses;
                if (fault == 'f') at.faults.flush_fails = refuses;
                if (fault == 'o') at.faults.open_fails = refuses;
                if (fault == 'o') at.run();
                take(which, at);
                EXPECT_FALSE(at.desk.ended());
                EXPECT_EQ(at.desk.pointer_shape(), ui::pointer::normal);
                const bool told = std::ranges::any_of(at.front.told, [](const std::string& text) {
                    return text.find("rrore su") != std::string::npos;
                });
                const std::string found = problems(company);
                EXPECT_TRUE(told || (found.empty() && (fault != 'f' || n > 0)))
                    << static_cast<int>(which) << fault << n << found;
            }
        }
    }
}

TEST(mirorcs, APersonIsAskedAboutAnOrderWithoutLinesOrCustomerAndGetsTheArticleInTheCell) {
    edited_company company;
    order_station at(company);
    at.desk.guards().switch_to(true);
    const auto orders = company.counter_now(contatori::ordini).quanti;
    at.desk.dispatch([&] {
        at.app.mirorc->bottone[2].click();
        at.app.mirorcx->bottone.click();
        at.app.mirorcs->comando[1].click();
        EXPECT_EQ(at.front.told.back(), "L'ordine non ha righe. Salvarlo lo stesso?");
        ui::text_box& code = at.app.mirorcs->artic[0];
        code.set_focus();
        for (const char one : {'A', '2'}) code.press_key(ui::key::of(one), one);
        code.set_text("A1");
        code.on_edited();
        code.press_key(ui::key::enter, '\r');
        EXPECT_EQ(code.text(), "A1");
        at.app.mirorcs->comando[1].click();
    });
    EXPECT_NE(at.front.told.back().find("cliente"), std::string::npos);
    EXPECT_EQ(company.counter_now(contatori::ordini).quanti, orders);
}

TEST(mirorcz, NewLinesOfAMovedOrderAreThoseOfItsNewCustomer) {
    edited_company company;
    rec_cli moved_to = customer_named("VERDI SRL");
    moved_to.iva_cliente = 14;
    moved_to.sconto1 = 7;
    moved_to.listino = "1";
    moved_to.email = "verdi@example.it";
    company.customers({customer_named("ROSSI SPA"), moved_to});
    order_station at(company);
    at.front.decide = [&] { return at.front.told.back() != "Stampa altra copia?"; };
    mirorcz& screen = at.open(2);
    at.desk.dispatch([&] {
        screen.comando[5].click();
        at.app.mirorcm->HScroll1.drag(2);
        at.app.mirorcm->bottone.click();
        EXPECT_EQ(screen.ds[2].text(), "testo");
        EXPECT_TRUE(screen.impegno.on() && !screen.postael.on());
        screen.artic[3].set_focus();
        screen.lookup().List1.pick(2);
        screen.sc1[3].set_focus();
        screen.postael.set_on(true);
    });
    EXPECT_EQ(screen.prezzo[3].text() + screen.civ[3].text() + screen.sc1[3].text(), "5147");
    at.save_opened();
    EXPECT_TRUE(at.programs.take_started().at(0).ends_with("orc20.pdf,verdi@example.it"));
}

TEST(mirorcz, APastedLineHasLeftNothingOfTheOneThatItPushesDown) {
    edited_company company;
    company.change_row(2, 200, [](rec_orc& last) { last.um = ""; });
    order_station at(company);
    mirorcz& screen = at.open(2);
    at.desk.dispatch([&] { screen.artic[0].on_paste_lines({"A2;4\n", true}, {}); });
    EXPECT_EQ(screen.artic[0].text() + " " + screen.evaso[0].text(), "A2 ");
    EXPECT_EQ(screen.artic[1].text() + " " + screen.evaso[1].text(), "A1 2");
}

TEST(mirorcz, AnOrderIsFoundAgainAsItWasLeft) {
    edited_company company;
    order_station at(company);
    mirorcz& screen = at.open(2);
    EXPECT_EQ(screen.evaso[0].text(), "2");
    EXPECT_TRUE(at.app.selezione_2 == 1 && at.app.modo_ordine == 0);
    EXPECT_TRUE(screen.impegno.on());
    at.desk.dispatch([&] {
        screen.comando[5].click();
        at.app.mirorcm->HScroll1.drag(2);
        at.app.mirorcm->Text3[0].set_text("20/B");
        at.app.mirorcm->bottone.click();
        screen.quantita[1].set_text("7");
        screen.um[2].set_focus();
        screen.comando[2].click();
        screen.riordina.click();
        screen.eva.set_on(true);
        screen.impegno.set_on(false);
    });
    at.save_opened();
    EXPECT_EQ(at.active(), "mirorc");
    EXPECT_FALSE(at.app.mirorcz.loaded() || at.app.mirorcm.loaded());
    EXPECT_EQ(at.app.mirorc->elenco.text(2, mirorc::evasione), "EVASO");

    const mirorcz& again = at.open(2);
    EXPECT_EQ(again.testata.text(), "VERDI SRL - Ordine 20/B del 01/03/2024");
    std::string rows;
    for (int row = 0; row < 4; ++row) {
        rows += again.artic[row].text() + "," + again.ds[row].text() + "," +
                again.quantita[row].text() + "," + again.evaso[row].text() + "|";
    }
    EXPECT_EQ(rows, "A1,merce,5,2|A2,merce,7,|,,,|,testo,,|");
    EXPECT_TRUE(again.eva.on() && !again.impegno.on());
    EXPECT_EQ(company.row_now(2, 200).riservato_e.trimmed(), "altrui");
    EXPECT_EQ(company.row_now(2, 1).data_reg, 45002.5);
    // Nothing was freed: what the order had committed stays so.
    EXPECT_EQ(company.article_now(2).ordinato_clienti, 13);
    EXPECT_EQ(company.article_now(2).impegnato, 4);

    at.delete_opened();
    EXPECT_EQ(at.active(), "mirorc");
    EXPECT_EQ(company.row_now(2, 200).annullato, 1);
    EXPECT_EQ(company.article_now(1).ordinato_clienti, 6);
    EXPECT_EQ(company.counter_now(contatori::ordini).ultimo_numero, 30);
    EXPECT_EQ(problems(company), "");
}

}  // namespace
}  // namespace vantora::test
