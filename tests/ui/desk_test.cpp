#include <gtest/gtest.h>

#include "bench_desk.h"
#include "ui/controls.h"
#include "ui/errors.h"
#include "ui/screen.h"

namespace vantora::ui {
namespace {

using log = std::vector<std::string>;

/// Two text boxes and a button; notes what happens to it.
class noting_form : public form {
 public:
    noting_form(ui::desk& on, const std::string& named, log& notes)
        : form(on, named, named), notes_(notes) {
        add("primo", primo);
        add("secondo", secondo);
        add("scritta", scritta);
        add("bottone", bottone);
        for (text_box* box : {&primo, &secondo}) {
            box->on_focus = [this, box] { note("+" + box->name()); };
            box->on_blur = [this, box] { note("-" + box->name()); };
        }
    }

    text_box primo;
    text_box secondo;
    label scritta;
    button bottone;
    std::function<void()> when_activated;

 protected:
    void load() override { note("load"); }
    void activate() override {
        note("activate");
        if (when_activated) when_activated();
    }

 private:
    void note(const std::string& what) { notes_.push_back(name() + " " + what); }

    log& notes_;
};

class desk_test : public testing::Test {
 protected:
    desk_test() {
        provide(a, "a");
        provide(b, "b");
    }
    void provide(screen<noting_form>& place, const char* named) {
        place.made_by(bench.desk, [this, named] {
            return std::make_unique<noting_form>(bench.desk, named, notes);
        });
    }
    log taken() { return std::exchange(notes, {}); }

    test::bench_desk bench;
    log notes;
    screen<noting_form> a;
    screen<noting_form> b;
};

TEST_F(desk_test, ShowingLoadsOnceActivatesAndGivesTheFirstControlTheFocus) {
    a->show();
    EXPECT_EQ(taken(), (log{"a load", "a activate", "a +primo"}));
    a->show();
    EXPECT_EQ(taken(), log{}) << "showing what is active fires nothing";
    b->show();
    EXPECT_EQ(taken(), (log{"b load", "a -primo", "b activate", "b +primo"}));
    a->secondo.set_focus();
    EXPECT_EQ(taken(), (log{"b -primo", "a activate", "a +secondo"}));
    b->when_activated = [&] { b->secondo.set_focus(); };
    b->show();
    EXPECT_EQ(taken(), (log{"a -secondo", "b activate", "b +secondo"}))
        << "a focus given on activation stays";
    a->show();
    EXPECT_TRUE(a->secondo.has_focus()) << "a screen remembers where it had the focus";
}

TEST_F(desk_test, AMessageBoxIsNoReturnFromAnotherScreen) {
    a->show();
    taken();
    bench.user.actions = {[&] { bench.desk.answer_box(answer::ok); }};
    bench.desk.message("testo", "titolo", icon::stop);
    EXPECT_EQ(taken(), log{});
}

TEST_F(desk_test, FocusGoesNowhereHiddenDisabledOrUnshown) {
    EXPECT_FALSE(a->secondo.set_focus());
    a->show();
    a->secondo.set_visible(false);
    EXPECT_FALSE(a->secondo.set_focus());
    a->secondo.set_visible(true);
    a->secondo.set_enabled(false);
    EXPECT_FALSE(a->secondo.set_focus());
    EXPECT_FALSE(a->scritta.set_focus());
    EXPECT_EQ(bench.desk.focus(), &a->primo);
    a->primo.set_visible(false);
    EXPECT_EQ(bench.desk.focus(), &a->bottone) << "hiding passes the focus on";
    a->bottone.set_enabled(false);
    a->primo.set_visible(true);
    EXPECT_EQ(bench.desk.focus(), nullptr) << "nothing comes back by itself";
    a->bottone.set_enabled(true);
    for (ui::control* next :
         {static_cast<ui::control*>(&a->primo), static_cast<ui::control*>(&a->bottone)}) {
        bench.desk.tab(false);
        EXPECT_EQ(bench.desk.focus(), next) << "from nowhere to the first, then past the disabled";
    }
    bench.desk.tab(true);
    EXPECT_EQ(bench.desk.focus(), &a->primo);
}

TEST_F(desk_test, HidingKeepsContentUnloadingDropsIt) {
    a->show();
    a->primo.set_text("resta");
    a->hide();
    EXPECT_EQ(bench.desk.active(), nullptr) << "hiding makes no other screen active";
    EXPECT_EQ(a->primo.text(), "resta");
    bench.desk.dispatch([&] { a->unload(); });
    EXPECT_FALSE(a.loaded());
    taken();
    EXPECT_EQ(a->primo.text(), "");
    EXPECT_EQ(taken(), (log{"a load"}));
}

TEST_F(desk_test, AModalScreenBlocksItsCallerAndReturnsToIt) {
    a->show();
    bool came_back = false;
    a->bottone.on_click = [&] {
        b->show_modal();
        came_back = true;
    };
    bench.user.actions = {[&] {
        EXPECT_EQ(bench.desk.modal(), &*b);
        EXPECT_TRUE(bench.desk.obstacle(a->primo).has_value());
        EXPECT_FALSE(came_back);
        taken();
        bench.desk.dispatch([&] { b->unload(); });
        EXPECT_EQ(taken(), (log{"a activate"}));
    }};
    bench.desk.dispatch([&] { a->bottone.click(); });
    EXPECT_TRUE(came_back);
    EXPECT_EQ(bench.desk.modal(), nullptr);
    EXPECT_EQ(bench.desk.active(), &*a);
}

TEST_F(desk_test, AFocusLossMaySendTheFocusElsewhere) {
    a->show();
    a->primo.on_blur = [&] { a->bottone.set_focus(); };
    taken();
    a->secondo.set_focus();
    EXPECT_EQ(bench.desk.focus(), &a->bottone);
    EXPECT_EQ(taken(), log{"a -secondo"});
}

TEST_F(desk_test, TheProgramsEndUnwindsNestedWaits) {
    int closed = 0;
    bench.desk.at_end = [&] { ++closed; };
    a->show();
    bool ran_on = false;
    bench.user.actions = {
        [&] {
            bench.desk.dispatch([&] {
                bench.desk.ask("dentro?", "", icon::question);
                ran_on = true;
            });
        },
        [&] { bench.desk.dispatch([&] { bench.desk.end_program(); }); },
    };
    bench.desk.dispatch([&] {
        bench.desk.ask("fuori?", "", icon::question);
        ran_on = true;
    });
    EXPECT_FALSE(ran_on);
    EXPECT_EQ(closed, 1);
    ASSERT_TRUE(bench.desk.ended().has_value());
    EXPECT_FALSE(bench.desk.ended()->fatal);
    bench.desk.dispatch([&] { ran_on = true; });
    EXPECT_FALSE(ran_on) << "nothing runs after the end";
}

TEST_F(desk_test, ARunTimeErrorEndsTheProgramWithItsMessage) {
    struct {
        std::function<void()> fails;
        const char* message;
    } cases[] = {
        {[] { throw overflow_error(); }, "Errore di run-time '6': Overflow"},
        {[] { throw subscript_error(); },
         "Errore di run-time '9': Indice non incluso nell'intervallo"},
        {[] { throw type_error(); }, "Errore di run-time '13': Tipo non corrispondente"},
    };
    for (const auto& one : cases) {
        test::bench_desk fresh;
        bool closed = false;
        fresh.desk.at_end = [&] { closed = true; };
        fresh.desk.dispatch(one.fails);
        ASSERT_TRUE(fresh.desk.ended().has_value());
        EXPECT_TRUE(fresh.desk.ended()->fatal);
        EXPECT_EQ(fresh.desk.ended()->message, one.message);
        EXPECT_TRUE(closed);
    }
}

TEST_F(desk_test, WaitingIsToldOnlyWhileNoBoxIsOpen) {
    a->show();
    bool done = false;
    bench.user.actions = {
        [&] {
            EXPECT_TRUE(bench.desk.waiting());
            bench.desk.message("Fatto", "Attenzione", icon::information);
            done = true;
        },
        [&] {
            EXPECT_FALSE(bench.desk.waiting());
            EXPECT_TRUE(bench.desk.obstacle(a->primo).has_value());
            bench.desk.answer_box(answer::ok);
        },
    };
    bench.desk.dispatch([&] { bench.desk.wait_until([&] { return done; }); });
    EXPECT_FALSE(bench.desk.waiting());
    EXPECT_FALSE(bench.desk.ended().has_value());
}

TEST_F(desk_test, AListMayBeEmptiedByTheFocusThatComesToIt) {
    class list_form final : public form {
     public:
        explicit list_form(ui::desk& on) : form(on, "l", "") {
            add("inizio", inizio);
            add("lista", lista);
            lista.add_all({"a", "b"});
            lista.on_focus = [this] { lista.clear(); };
            lista.on_click = [] { ADD_FAILURE() << "there is no entry any more"; };
        }
        button inizio;
        list_box lista;
    };
    auto& shown = static_cast<list_form&>(bench.desk.load(std::make_unique<list_form>(bench.desk)));
    shown.show();
    EXPECT_FALSE(shown.lista.pick(1));
    EXPECT_EQ(shown.lista.chosen(), -1);
}

TEST_F(desk_test, PendingEventsMayEndTheProgramInTheMidstOfWork) {
    a->show();
    bench.user.pending = [&] { bench.desk.dispatch([&] { bench.desk.end_program(); }); };
    bool ran_on = false;
    bench.desk.dispatch([&] {
        bench.desk.let_events_run();
        ran_on = true;
    });
    EXPECT_FALSE(ran_on);
}

TEST_F(desk_test, QueuedAnswersServeTheBoxesThatHaveTheirButton) {
    a->show();
    bench.desk.queue_answer(answer::no);
    EXPECT_FALSE(bench.desk.ask("?", "", icon::question));
    bench.desk.queue_answer(answer::yes);
    bench.user.actions = {[&] {
        EXPECT_FALSE(bench.desk.answer_box(answer::yes)) << "it has no such button";
        EXPECT_TRUE(bench.desk.answer_box(answer::ok));
    }};
    bench.desk.message("!", "", icon::stop);
    EXPECT_TRUE(bench.desk.ask("?", "", icon::question));
    EXPECT_EQ(bench.desk.take_answered().size(), 2U);
}

}  // namespace
}  // namespace vantora::ui
