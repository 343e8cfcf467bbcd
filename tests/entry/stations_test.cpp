#include <gtest/gtest.h>

#include "customer/mirsel.h"
#include "entry/import_picker.h"
#include "entry/order_station.h"

namespace vantora::test {
namespace {

std::string contents(const small_company& company) {
    return company.content("orc") + company.content("art") + company.content("tot");
}

// Of four orders the second is deleted. While one is open here, something happens at another
// station; then the order is saved or deleted here.
TEST(stations, AnOrderIsNotWrittenOverTheOneThatACompactionPutIntoItsBlock) {
    enum { compacts = 1, takes_order = 2, changes_head = 4, alike = 8, undated = 16, at_once = 32 };
    const struct {
        int opened;
        int there;
        bool moved;
    } cases[] = {{1, compacts, false},
                 {1, compacts | takes_order, false},
                 {3, compacts, true},
                 {4, compacts, true},
                 {3, compacts | takes_order, true},
                 {4, compacts | takes_order, true},
                 {3, takes_order, false},
                 {3, changes_head, false},
                 {4, changes_head, false},
                 {3, takes_order | changes_head, false},
                 {3, compacts | alike, true},
                 {1, compacts | alike, false},
                 {3, compacts | takes_order | undated, true},
                 {3, takes_order | undated, false},
                 {4, compacts | undated, true},
                 {3, compacts | at_once, true},
                 {1, compacts | at_once, false},
                 {3, changes_head | at_once, false}};
    for (const auto& one : cases) {
        for (const bool deletes : {false, true}) {
            order_company company;
            for (const int block : {1, 2, 3, 4}) company.order(block, 1, {{1, 5}});
            for (const int block : {1, 2, 3, 4}) {
                company.change_rows(block, [&](rec_orc& row) {
                    if ((one.there & alike) != 0) row.numero = "12";
                    if ((one.there & undated) != 0) row.data_reg = 0;
                    if ((one.there & at_once) != 0) row.data_reg = 45000.5;
                });
            }
            delete_order(company, 2);
            order_station here(company);
            order_station there(company);
            mirorcz& screen = here.open(one.opened);
            screen.ds[0].set_text("a mano");
            if ((one.there & compacts) != 0) there.compact();
            if ((one.there & takes_order) != 0) there.take_order();
            if ((one.there & changes_head) != 0) {
                company.change_rows(one.opened, [](rec_orc& row) { row.numero = "altro"; });
            }

            const std::string before = contents(company);
            deletes ? here.delete_opened() : here.save_opened();
            SCOPED_TRACE(std::to_string(one.opened) + " " + std::to_string(one.there));
            if (one.moved) {
                EXPECT_EQ(contents(company), before);
                EXPECT_TRUE(
                    here.front.told.back().starts_with("Un'altra postazione ha compattato"));
                EXPECT_EQ(here.active(), "mirorcz");
                EXPECT_EQ(screen.ds[0].text(), "a mano");
                continue;
            }
            const rec_orc row = company.row_now(one.opened, 1);
            EXPECT_EQ(here.active(), "mirorc");
            EXPECT_EQ(row.annullato, deletes ? 1 : 0);
            EXPECT_EQ(row.descrizione.trimmed(), deletes ? "merce" : "a mano");
        }
    }
}

/// A list that another station's compaction made stale leads to no other order.
TEST(stations, StaleListsAreReadAnewWithTheMarkOnTheSameOrder) {
    order_company company;
    for (const int block : {1, 2, 3, 4}) company.order(block, 1, {{1, 5}});
    delete_order(company, 2);
    order_station here(company);
    order_station there(company);
    ui::grid& list = here.app.mirorc->elenco;
    there.compact();
    EXPECT_EQ(list.hint_of(3), "");
    here.desk.dispatch([&] { list.click_cell(3, 0); });
    ASSERT_FALSE(here.front.told.empty());
    EXPECT_TRUE(here.front.told.back().starts_with("Un'altra postazione ha compattato"));
    EXPECT_EQ(here.active(), "mirorc");
    EXPECT_EQ(list.text(list.row(), mirorc::ordine), "30");
    EXPECT_EQ(here.open(list.row()).testata.text(), "ROSSI SPA - Ordine 30 del 01/03/2024");
    here.desk.dispatch([&] { here.app.mirorcz->comando[0].click(); });
}

/// What another station moved in its file is not taken for what a list shows there.
TEST(stations, CustomersArticlesAndQuotesThatMovedAreNotTakenForOthers) {
    for (const bool guarded : {true, false}) {
        order_company company;
        company.counter(contatori::preventivi, 1);
        order_station at(company);
        at.desk.guards().switch_to(guarded);
        const auto pick = [&](const std::function<void()>& choose, const char* told) {
            at.front.told.clear();
            at.desk.dispatch(choose);
            EXPECT_EQ(at.front.told.empty() ? "" : at.front.told.back(), std::string(told));
        };
        at.desk.dispatch([&] { at.app.mirorc->bottone[2].click(); });
        change_stored(company.files.art, 2, [](rec_art& one) { one.codice = "B2"; });
        const auto pick_customer = [&] {
            ui::grid& list = at.app.mirsel->elenco;
            change_stored(company.files.cli, 2, [](rec_cli& one) { one.intestazione1 = "NERI"; });
            list.click_cell(2, 0);
            EXPECT_EQ(at.app.mirsel.loaded(), guarded);
            if (!guarded) return;
            EXPECT_EQ(list.text(2, 0), "NERI");
            list.click_cell(1, 0);
        };
        bool chosen = false;
        at.front.meanwhile = [&] {
            const bool shown = at.app.mirsel.loaded() && !at.app.mirsel->elenco.text(2, 0).empty();
            if (shown && !std::exchange(chosen, true)) pick_customer();
        };
        pick([&] { at.app.mirorcx->b_lista.click(); },
             guarded ? "I clienti sono stati cambiati altrove: l'elenco viene riletto." : "");

        at.desk.dispatch([&] { at.app.mirorcx->bottone.click(); });
        mirorcs& order = *at.app.mirorcs;
        change_stored(company.files.art, 2, [](rec_art& one) { one.codice = "C2"; });
        pick([&] { order.lookup().List1.pick(2); },
             guarded ? "Gli articoli sono stati cambiati altrove: l'elenco viene riletto." : "");
        EXPECT_EQ(order.artic[0].text(), guarded ? "" : "C2");
        EXPECT_EQ(order.lookup().List1.item(2).substr(0, 2), guarded ? "C2" : "B2");

        rec_prv quote{};
        quote.numero = "7";
        quote.cliente = at.app.selezione_1;
        company.files.prv.write(1, quote);
        at.desk.dispatch([&] { order.comando[6].click(); });
        quote.numero = "8";
        company.files.prv.write(1, quote);
        company.counter(contatori::preventivi, 1, 8);
        pick([&] { at.app.mirorcb->elenco.click_cell(1, 0); },
             "Un'altra postazione ha cambiato l'archivio: l'elenco viene riletto.");
        EXPECT_EQ(at.app.mirorcb->elenco.text(1, 0), "8");
    }
}

/// A row that can't be read would come as the one before it.
TEST(stations, AnImportOfWhatCantBeReadWholeTakesNothing) {
    order_company company;
    company.order(1, 1, {{1, 5}, {2, 7}});
    order_station at(company);
    at.desk.dispatch([&] {
        at.app.mirorc->bottone[2].click();
        at.app.mirorcx->bottone.click();
    });
    const auto import = [&] {
        at.front.meanwhile = [&] {
            if (at.app.mirpref.loaded()) at.app.mirpref->elenco.click_cell(1, 0);
        };
        at.desk.dispatch([&] { at.app.mirorcs->comando[5].click(); });
    };
    at.faults.read_fails = [&](const std::string& path, std::int64_t from, std::size_t size) {
        constexpr std::int64_t row_2 = sizeof(rec_orc);
        return path.ends_with("orc") && from <= row_2 &&
               row_2 < from + static_cast<std::int64_t>(size);
    };
    import();
    EXPECT_EQ(at.front.told.back(),
              "L'ordine non si può leggere per intero (riga 2): "
              "non viene importato nulla."_cp);
    EXPECT_EQ(at.app.mirorcs->lines()[1].articolo, 0);
    at.faults.read_fails = nullptr;
    import();
    EXPECT_EQ(at.app.mirorcs->lines()[2].articolo, 2);
}

TEST(stations, AnOrderThatCouldNotBeReadWholeIsNeverSavedOver) {
    for (const int unread : {1, 2, 200}) {
        order_company company;
        company.order(1, 1, {{1, 5}, {2, 7}, {3, 9}});
        order_station at(company);
        const std::int64_t broken = (block_record(1, unread) - 1) * channel<rec_orc>::record_length;
        at.faults.read_fails = [&](const std::string& path, std::int64_t from, std::size_t size) {
            return path.ends_with("orc") && from <= broken &&
                   broken < from + static_cast<std::int64_t>(size);
        };
        const std::string before = contents(company);
        at.desk.dispatch([&] { at.app.mirorc->elenco.click_cell(1, 0); });
        const std::string told = at.front.told.back();
        if (unread == 1) {
            EXPECT_EQ(told, "L'ordine non si può leggere: errore su vantora.orc."_cp);
            EXPECT_EQ(at.active(), "mirorc");
            continue;
        }
        EXPECT_TRUE(told.starts_with("L'ordine non si può leggere per intero (riga "_cp +
                                     std::to_string(unread)));
        at.save_opened();
        at.delete_opened();
        EXPECT_EQ(at.front.told, (std::vector<std::string>{told, told, told}));
        at.faults.read_fails = nullptr;
        at.save_opened();  // the answer is no
        EXPECT_EQ(contents(company), before);
        at.front.decide = [] { return true; };
        at.save_opened();
        EXPECT_EQ(contents(company), before) << "what comes now is to be looked at first";
        EXPECT_EQ(at.app.mirorcz->ds[1].text(), "merce");
        at.app.mirorcz->ds[1].set_text("a mano");
        at.front.decide = [] { return false; };
        at.save_opened();
        EXPECT_EQ(company.row_now(1, 2).descrizione.trimmed(), "a mano");
        EXPECT_EQ(company.article_now(2).ordinato_clienti, 7);
    }
}

TEST(stations, AnOrderEditedMeanwhileIsAskedAbout) {
    enum class user { unasked, stays, reads_anew, saves };
    for (const user wants : {user::unasked, user::stays, user::reads_anew, user::saves}) {
        order_company company;
        company.order(1, 1, {{1, 5}, {2, 7}});
        order_station at(company);
        at.desk.guards().switch_to(wants != user::unasked);
        mirorcz& screen = at.open(1);
        screen.ds[1].set_text("a mano");
        company.change_row(1, 1, [](rec_orc& row) { row.evaso = 2; });
        const std::string before = contents(company);
        at.front.decide = [&] {
            const std::string& asked = at.front.told.back();
            return asked.starts_with("Un'altra")
                       ? wants == user::saves
                       : asked.starts_with("Caricare") && wants == user::reads_anew;
        };
        at.save_opened();
        const bool saved = wants == user::saves || wants == user::unasked;
        EXPECT_EQ(company.row_now(1, 1).evaso, saved ? 0 : 2) << "the last one wins";
        EXPECT_EQ(at.active(), saved ? "mirorc" : "mirorcz");
        if (wants != user::unasked) {
            EXPECT_EQ(at.front.told[0],
                      "Un'altra postazione ha cambiato quest'ordine mentre era aperto. Salvare lo "
                      "stesso e perdere quelle modifiche?\nEvasione registrata: riga 1, 2,00");
        }
        if (saved) continue;
        EXPECT_EQ(contents(company), before);
        EXPECT_EQ(screen.ds[1].text(), wants == user::stays ? "a mano" : "merce");
        const std::size_t told = at.front.told.size();
        at.save_opened();
        EXPECT_EQ(at.active(), wants == user::stays ? "mirorcz" : "mirorc");
        EXPECT_EQ(at.front.told[told].starts_with("Un'altra"), wants == user::stays);
    }
}

TEST(stations, WhatIsDeletedAfterAnotherStationChangedItIsAskedAbout) {
    for (const bool wanted : {false, true}) {
        order_company company;
        company.order(1, 1, {{1, 5}, {2, 7}});
        order_station at(company);
        at.desk.guards().switch_to(true);
        at.open(1);
        company.change_row(1, 2, [](rec_orc& row) { row.evaso = 2; });
        at.front.decide = [&] {
            const std::string& asked = at.front.told.back();
            return asked.starts_with("Un'altra") ? wanted : asked == "Sei proprio sicuro?";
        };
        at.delete_opened();
        EXPECT_TRUE(
            at.front.told[1].ends_with("Eliminarlo lo stesso?\nEvasione registrata: riga 2, 2,00"));
        EXPECT_EQ(company.row_now(1, 1).annullato, wanted ? 1 : 0);
        EXPECT_EQ(company.article_now(2).ordinato_clienti, wanted ? 2 : 7);
    }
}

/// What another station deleted was taken out of its articles there.
TEST(stations, AnOrderDeletedMeanwhileIsNotTakenOutOfItsArticlesTwice) {
    for (const bool saves : {true, false}) {
        order_company company;
        company.order(1, 1, {{1, 5}, {2, 7}});
        company.order(2, 1, {{1, 4}});
        order_station at(company);
        at.open(1);
        delete_order(company, 1);
        saves ? at.save_opened() : at.delete_opened();
        EXPECT_EQ(at.active(), "mirorc");
        EXPECT_EQ(company.article_now(1).ordinato_clienti, saves ? 9 : 4);
        EXPECT_EQ(problems(company), "");
    }
}

/// In the midst of a compaction the list is the one of before, and nothing opens.
TEST(stations, NothingOfTheRegisterMovesDuringACompaction) {
    order_company company;
    for (const int block : {1, 2, 3}) company.order(block, 1, {{1, 5}});
    delete_order(company, 1);
    order_station at(company);
    int times = 0;
    at.front.meanwhile = [&] {
        const mirorc& screen = *at.app.mirorc;
        if (!screen.srt.visible()) return;
        ++times;
        at.desk.dispatch([&] { at.app.mirorc->elenco.click_cell(2, 0); });
        at.app.mirorc->bottone[1].click();
        at.compact();
        EXPECT_EQ(at.active(), "mirorc");
        EXPECT_EQ(screen.elenco.text(1, mirorc::cliente), "Ordine eliminato");
        EXPECT_EQ(screen.elenco.hint_of(2), "");
        EXPECT_EQ(at.front.told.size(), 2U);
    };
    at.compact();
    EXPECT_EQ(times, 3) << "it tells how far it is, block by block";
    EXPECT_EQ(at.app.mirorc->elenco.text(1, mirorc::ordine), "20");
}

}  // namespace
}  // namespace vantora::test
