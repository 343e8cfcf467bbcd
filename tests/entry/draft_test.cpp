#include <algorithm>
#include <random>

#include "enquiry/bozze.h"
#include "entry/draft_files.h"
#include "entry/draft_taking.h"
#include "entry/order_station.h"

namespace vantora::test {
namespace {

TEST(draft_text, ComesBackWholeOrNotAtAll) {
    std::mt19937 random(7);
    const auto text = [&] {
        std::string any;
        for (std::size_t size = random() % 12; size > 0; --size) {
            any += std::string("a= \\\n\r\tz\xE0")[random() % 9];
        }
        return std::string(trimmed(any));
    };
    for (int round = 0; round < 20; ++round) {
        bozza draft;
        draft.nuova = random() % 2 == 0;
        draft.visto.data_reg = 45418.43;
        draft.impronta = random() * 0x100000001ULL;
        draft.testata.combo1 = {-1, 3, 0};
        for (std::string& one : draft.testata.text2) one = text();
        for (int number = 1; number <= righe_ordine::massimo;
             number += 1 + static_cast<int>(random() % 60)) {
            riga_ordine& line = draft.contenuto.lines[number];
            line.descrizione = text();
            line.quantita = static_cast<double>(random()) / 7e3 - 1e5;
            line.iva = static_cast<std::int16_t>(random());
            draft.contenuto.typed_codes[number] = text();
        }
        const std::string whole = write_draft(draft);
        const auto read = read_draft(whole);
        ASSERT_TRUE(read);
        EXPECT_EQ(write_draft(*read), whole);
        EXPECT_EQ(read->testata.text2, draft.testata.text2);
        EXPECT_EQ(read->contenuto.typed_codes, draft.contenuto.typed_codes);
        const std::size_t cut = random() % (whole.size() - 1);
        EXPECT_FALSE(read_draft(whole.substr(0, cut)));
    }
    EXPECT_TRUE(read_draft("Vantora Ordini, bozza 1\nriga9.prezzo=1e999\nriga1.iva=x\nfine\n"));
}

/// A person at a station of a company with one order of two pieces; what ends without a word is
/// found by the next one.
struct draft_station : order_station {
    draft_station(const small_company& company, drive& person)
        : order_station(company, false), guarded(desk) {
        app.person = &person;
        front.decide = [this] { return front.told.back().starts_with("Riprendere"); };
        run();
    }
    struct guards_on {
        explicit guards_on(ui::desk& of) { of.guards().switch_to(true); }
    } guarded;

    void type(mirorcs& on, const char* description) {
        desk.dispatch([&] {
            on.ds[1].set_focus();
            on.ds[1].set_text(description);
            on.prezzo[1].set_text("7.5");
        });
        desk.rest();
    }
    mirorcs& begin_order() {
        desk.dispatch([this] {
            app.mirorc->bottone[2].click();
            app.mirorcx->bottone.click();
            app.mirorcs->lookup().List1.pick(0);
            app.mirorcs->quantita[0].set_text("2");
        });
        return *app.mirorcs;
    }
    void save_new() {
        desk.dispatch([this] { app.mirorcs->comando[1].click(); });
    }
};

class drafts : public testing::Test {
 protected:
    drafts() {
        for (small_company* one : {&company, &twin}) {
            one->customers({customer_named("ROSSI SPA")});
            one->articles({article("A100", "Dado", 10)});
            one->table_file();
        }
    }
    static std::string archive(const small_company& of) {
        return of.content("orc") + of.content("art") + of.content("tot");
    }

    small_company company;
    small_company twin;  ///< whose order is typed without a break
    scratch_folder home;
    drive person{home.path()};
};

TEST_F(drafts, AnOrderThatWasCutOffIsSavedAsIfItHadNotBeen) {
    {
        scratch_folder other;
        drive apart(other.path());
        draft_station at(twin, apart);
        at.type(at.begin_order(), "tubo");
        at.save_new();
        EXPECT_TRUE(waiting_drafts(at.app).empty());
    }
    const std::string before = archive(company);
    {
        draft_station at(company, person);
        at.type(at.begin_order(), "tubo");
        EXPECT_TRUE(waiting_drafts(at.app).empty()) << "a window has it";
        draft_station beside(company, person);
        EXPECT_TRUE(waiting_drafts(beside.app).empty() && beside.front.told.empty());
    }
    EXPECT_EQ(archive(company), before);

    draft_station at(company, person);
    ASSERT_EQ(at.front.told.size(), 1U);
    EXPECT_EQ(at.front.told[0],
              "Riprendere l'ordine di ROSSI SPA non salvato del 06/05/2024 10:20?");
    ASSERT_EQ(at.active(), "mirorcs");
    at.save_new();
    EXPECT_EQ(archive(company), archive(twin));
    EXPECT_TRUE(waiting_drafts(at.app).empty());
}

TEST_F(drafts, AnOpenedOrderIsGoneOnWithOnlyAsItWasLeft) {
    { order_station(company).take_order(); }
    const auto leave_cut_off = [&](const char* description) {
        draft_station at(company, person);
        mirorcz& on = at.open(1);
        at.desk.dispatch([&] { on.ds[3].set_text(description); });
        at.desk.rest();
    };
    leave_cut_off("nota");
    {
        draft_station at(company, person);
        ASSERT_EQ(at.active(), "mirorcz");
        EXPECT_EQ(at.app.mirorcz->ds[3].text(), "nota");
        at.desk.dispatch([&] { at.app.mirorcz->comando[1].click(); });
        EXPECT_TRUE(waiting_drafts(at.app).empty());
    }
    leave_cut_off("altra nota");
    {
        order_station at(company);
        mirorcz& on = at.open(1);
        at.desk.dispatch([&] { on.quantita[0].set_text("5"); });
        at.save_opened();
    }
    draft_station at(company, person);
    ASSERT_EQ(at.front.told.size(), 2U);
    EXPECT_NE(at.front.told[1].find("cambiato dopo la bozza"), std::string::npos);
}

TEST_F(drafts, GivingOneUpTakesNoOtherThatHasItsNameByNow) {
    std::filesystem::create_directory(home.path() / "bozze");
    order_station at(company, false);
    at.app.person = &person;
    at.run();
    bozza draft;
    draft.archivio = archive_name(at.app);
    const auto keep = [&](const char* when) {
        draft.salvata = when;
        EXPECT_TRUE(file_bozza::take(person, "ordine1")->keep(person, write_draft(draft)));
    };
    keep("2024-05-06 10:00:00");
    at.desk.guards().switch_to(true);
    at.front.decide = [&] { return keep("2024-05-06 11:00:00"), true; };
    at.front.meanwhile = [&] {
        if (at.app.bozze.loaded()) at.app.bozze->bottone[at.front.told.empty() ? 2 : 0].click();
    };
    at.desk.dispatch([&] { at.app.bozze.use().show_over(); });
    // Another window kept it while the question stood.
    EXPECT_EQ(draft_in(person, "ordine1").value().salvata, "2024-05-06 11:00:00");
}

}  // namespace
}  // namespace vantora::test
