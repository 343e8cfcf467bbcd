#include <gtest/gtest.h>

#include "desk_stage.h"
#include "ui/controls.h"
#include "ui/screen.h"

namespace vantora::ui {
namespace {

/// Two text boxes, a label and a button; notes what happens to it.
class noting_form : public form {
 public:
    noting_form(ui::desk& on, const std::string& named, std::string& notes)
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

    void save(const std::function<void()>& meanwhile) {
        const work saving(*this);
        meanwhile();
    }

 protected:
    void load() override { note("load"); }
    void settled() override { note("settled"); }
    void activate() override {
        note("activate");
        if (when_activated) when_activated();
    }

 private:
    void note(const std::string& what) { notes_ += name() + what + " "; }

    std::string& notes_;
};

class desk_test : public testing::Test {
 protected:
    desk_test() {
        a.made_by(desk, [this] { return std::make_unique<noting_form>(desk, "a.", notes); });
        b.made_by(desk, [this] { return std::make_unique<noting_form>(desk, "b.", notes); });
    }

    struct step {
        std::function<void()> does;
        const char* notes;  ///< what the screens note of it
        const char* focus;  ///< behind it
    };
    void walk(const std::vector<step>& steps) {
        for (const step& one : steps) {
            notes.clear();
            one.does();
            const std::string where = "step " + std::to_string(&one - steps.data());
            EXPECT_EQ(notes, one.notes) << where;
            const control* focus = stage.desk.focus();
            EXPECT_EQ(focus ? focus->owner().name() + focus->address() : "", one.focus) << where;
        }
    }

    test::desk_stage stage;
    ui::desk& desk = stage.desk;
    std::string notes;
    screen<noting_form> a;
    screen<noting_form> b;
};

TEST_F(desk_test, ShowingLoadsOnceActivatesAndGivesTheFirstControlTheFocus) {
    walk({{[&] { EXPECT_FALSE(a->secondo.set_focus()) << "nobody sees it"; }, "a.load ", ""},
          {[&] { a->show(); }, "a.activate a.+primo ", "a.primo"},
          {[&] { a->show(); }, "", "a.primo"},
          // Nothing has settled while it still goes on.
          {[&] {
               desk.dispatch([&] {
                   desk.dispatch([&] { a->secondo.set_focus(); });
                   a->primo.set_focus();
               });
           },
           "a.-primo a.+secondo a.-secondo a.+primo a.settled ", "a.primo"},
          {[&] { b->show(); }, "b.load a.-primo b.activate b.+primo ", "b.primo"},
          {[&] { a->secondo.set_focus(); }, "b.-primo a.activate a.+secondo ", "a.secondo"},
          // A focus given on activation stays.
          {[&] { b->when_activated = [&] { b->secondo.set_focus(); }; }, "", "a.secondo"},
          {[&] { b->show(); }, "a.-secondo b.activate b.+secondo ", "b.secondo"},
          // A screen remembers where it had the focus.
          {[&] { a->show(); }, "b.-secondo a.activate a.+secondo ", "a.secondo"},
          // A message box is no return from another screen.
          {[&] {
               stage.user.actions = {[&] { desk.answer_box(answer::ok); }};
               desk.message("testo", "titolo", icon::stop);
           },
           "", "a.secondo"},
          // A focus loss may send the focus elsewhere.
          {[&] { a->secondo.on_blur = [&] { a->bottone.set_focus(); }; }, "", "a.secondo"},
          {[&] { a->primo.set_focus(); }, "a.-primo ", "a.bottone"}});
}

TEST_F(desk_test, FocusGoesNowhereHiddenDisabledOrUnshown) {
    a->show();
    walk({{[&] { a->secondo.set_visible(false); }, "", "a.primo"},
          {[&] { EXPECT_FALSE(a->secondo.set_focus()); }, "", "a.primo"},
          {[&] { a->secondo.set_visible(true); }, "", "a.primo"},
          {[&] { a->secondo.set_enabled(false); }, "", "a.primo"},
          {[&] { EXPECT_FALSE(a->secondo.set_focus()); }, "", "a.primo"},
          {[&] { EXPECT_FALSE(a->scritta.set_focus()); }, "", "a.primo"},
          // Hiding passes the focus on, and nothing comes back by itself.
          {[&] { a->primo.set_visible(false); }, "a.-primo ", "a.bottone"},
          {[&] { a->bottone.set_enabled(false); }, "", ""},
          {[&] { a->primo.set_visible(true); }, "", ""},
          {[&] { a->bottone.set_enabled(true); }, "", ""},
          // From nowhere to the first, then past the disabled one.
          {[&] { desk.tab(false); }, "a.+primo ", "a.primo"},
          {[&] { desk.tab(false); }, "a.-primo ", "a.bottone"},
          {[&] { desk.tab(true); }, "a.+primo ", "a.primo"},
          // Hiding a screen makes no other one active.
          {[&] { b->show(); }, "b.load a.-primo b.activate b.+primo ", "b.primo"},
          {[&] { b->hide(); }, "b.-primo ", ""}});
    EXPECT_EQ(desk.active(), nullptr);
    a->show();
    a->save([&] { EXPECT_TRUE(desk.obstacle(*a) && desk.obstacle(a->primo)); });
    EXPECT_FALSE(desk.obstacle(*a) || desk.obstacle(a->primo));
}

/// Out of two questions, one inside the other, and out of work in which pending events run.
TEST_F(desk_test, TheProgramsEndUnwindsWhateverRuns) {
    for (const bool by_pending_events : {false, true}) {
        test::desk_stage fresh;
        int closed = 0;
        fresh.desk.at_end = [&] { ++closed; };
        bool ran_on = false;
        const auto end = [&] { fresh.desk.dispatch([&] { fresh.desk.end_program(); }); };
        const auto ask = [&] {
            fresh.desk.ask("?", "", icon::question);
            ran_on = true;
        };
        fresh.user.actions = {[&] { fresh.desk.dispatch(ask); }, end};
        fresh.user.pending = end;
        fresh.desk.dispatch([&] {
            if (by_pending_events) fresh.desk.let_events_run();
            ask();
        });
        EXPECT_EQ(closed, 1);
        ASSERT_TRUE(fresh.desk.ended().has_value());
        EXPECT_FALSE(fresh.desk.ended()->fatal);
        EXPECT_FALSE(fresh.desk.open_box());
        fresh.desk.dispatch([&] { ran_on = true; });
        EXPECT_FALSE(ran_on) << "nothing runs after the end";
    }
}

}  // namespace
}  // namespace vantora::ui
