#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <ctime>

#include "store/text/code_page.h"
#include "ui/clock.h"
#include "ui/controls.h"

namespace vantora::ui {
namespace {

TEST(text_box, FiresOnlyWhenItsTextReallyChanges) {
    text_box box;
    std::string seen;
    box.on_change = [&] { seen += box.text() + " "; };
    for (const char* text : {"", "a", "a", "b"}) box.set_text(text);
    EXPECT_EQ(seen, "a b ");
    box.on_change = [&] { box.set_text(upper(box.text())); };
    box.set_text("abc");
    EXPECT_EQ(box.text(), "ABC") << "the event may correct the text";
}

TEST(text_box, KeysReachTheEventsBeforeTheText) {
    text_box box;
    std::string seen;
    box.on_key_down = [&](key_event& pressed) {
        seen += "d" + std::to_string(pressed.code) + box.text();
        if (pressed.code == 'B') pressed.swallow();
    };
    box.on_key_press = [&](key_event& pressed) {
        seen += "p" + std::to_string(pressed.code) + box.text() + " ";
        if (pressed.code == 'x') pressed.swallow();
        if (pressed.code == 'y') pressed.code = 'Z';
    };
    // A key that is swallowed on its way down is not pressed.
    for (const char typed : {'a', 'x', 'y', 'b'}) box.press_key(upper(typed), typed);
    EXPECT_EQ(seen, "d65p97 d88ap120a d89ap121a d66aZ");
    box.press_key(key::del, {});
    box.press_key(key::enter, static_cast<char>(key::enter));
    EXPECT_EQ(box.text(), "aZ");
    box.press_key(key::backspace, static_cast<char>(key::backspace));
    EXPECT_EQ(box.text(), "a");
}

TEST(input_rule, AHandTypesOnlyWhatAFieldHolds) {
    const auto number = input_rule::number();
    const auto percent = input_rule::small_number();
    const auto four = input_rule::text(4);
    input_rule starred = number;
    starred.alone = '*';
    struct {
        const input_rule& rule;
        const char *before, *now, *admitted;  // null: refused
    } cases[] = {
        {number, "2", "2,", "2."},
        {number, "2.", "2.,", nullptr},
        {number, "", "-1,5", "-1.5"},
        {number, "1", "1-", nullptr},
        {number, "", "€ 1.234,50", "1234.50"},
        {number, "", "1.234.567", "1234567"},
        {number, "1", "1e", nullptr},
        {number, "", "1,2,3", nullptr},
        {number, "", "123456789012345", "123456789012345"},
        {number, "123456789012345", "1234567890123456", nullptr},
        {number, "12", "", ""},
        {number, "", "*", nullptr},
        {starred, "", "*", "*"},
        {percent, "3276", "32767", "32767"},
        {percent, "3276", "32768", nullptr},
        {percent, "3.99999", "399999", nullptr},
        {four, "abcd", "abxcd", nullptr},
        {four, "ab", "aXYZb", "aXYb"},
        {four, "abcdef", "abcdf", "abcdf"},
    };
    for (const auto& one : cases) {
        const auto admitted = one.rule.admit(from_utf8(one.before), from_utf8(one.now));
        EXPECT_EQ(admitted, one.admitted ? std::optional<std::string>(one.admitted) : std::nullopt)
            << one.before << " -> " << one.now;
    }
    for (const char* typed : {"24/11", "24112026", "241126", "24-11-26", " 24.11.2026 "}) {
        EXPECT_EQ(written_out_day(typed, 2026), "24/11/2026") << typed;
    }
    for (const char* typed : {"", "24", "99/99", "2411", "31022026"}) {
        EXPECT_FALSE(written_out_day(typed, 2026)) << typed;
    }
}

TEST(local_clock, TellsTheTimeOfThePlace) {
    ::setenv("TZ", "PROVA-9", 1);
    constexpr std::time_t ahead = 9 * 3600;
    const std::time_t before = std::time(nullptr) + ahead;
    const date_time now = local_clock().now();
    const std::chrono::sys_days day = std::chrono::year(now.day.year) / now.day.month / now.day.day;
    const std::time_t told =
        std::chrono::system_clock::to_time_t(day) + now.hour * 3600 + now.minute * 60 + now.second;
    EXPECT_GE(told, before);
    EXPECT_LE(told, std::time(nullptr) + ahead);
    ::unsetenv("TZ");
}

TEST(key, SignsHaveNoNamedKeysCode) {
    EXPECT_EQ(key::of('p'), 'P') << "a small p has the code of F1 as its character";
    EXPECT_EQ(key::of('7'), '7');
    EXPECT_EQ(key::of(' '), key::blank);
    for (const char sign : {'(', '&', '.', '\'', '%', '\xE8'}) EXPECT_EQ(key::of(sign), key::sign);
}

TEST(option_button, OnlyTheOneThatGoesOnFires) {
    option_button options[3];
    option_group group;
    group.join(options);
    options[0].design_on(true);
    std::string fired;
    for (int i = 0; i < 3; ++i) {
        options[i].on_click = [&, i] {
            fired += std::to_string(i);
            EXPECT_EQ(options[0].on() + options[1].on() + options[2].on(), 1);
        };
    }
    options[1].set_on(true);
    options[1].choose();
    options[2].choose();
    options[2].press_key(key::down, {});
    options[2].press_key(key::up, {});
    EXPECT_EQ(fired, "121");
    EXPECT_TRUE(options[1].on());
}

TEST(list, ChoosingFiresByCodeOnlyForAnotherEntryByHandAlways) {
    drop_down list;
    std::string seen;
    list.on_click = [&] { seen += std::string(list.text()) + " "; };
    list.add_all({"uno", "due"});
    EXPECT_EQ(list.chosen(), -1);
    EXPECT_TRUE(list.choose(1) && list.choose(1) && list.pick(1));
    EXPECT_FALSE(list.choose(2) || list.choose(-2) || list.pick(2) || list.pick(-1));
    list.press_key(key::down, {});  // there is none below
    list.press_key(key::sign, '(');
    list.press_key(key::up, {});
    EXPECT_TRUE(list.choose(-1) && list.choose(1));
    list.clear();
    EXPECT_EQ(list.chosen(), -1);
    EXPECT_EQ(list.text(), "");
    EXPECT_EQ(seen, "due due uno due ");
}

TEST(sorted_list, OrdersByTheAlphabetWithoutRegardToCase) {
    const std::vector<std::string> given = {"zeta", "Élite"_cp, "eco", "Fine",   "10",
                                            "2",    "-x",       "Eco", "ùva"_cp, "uva"};
    const std::vector<std::string> expected = {"-x",       "10",   "2",   "eco",    "Eco",
                                               "Élite"_cp, "Fine", "uva", "ùva"_cp, "zeta"};
    sorted_list_box one_by_one;
    for (const auto& item : given) one_by_one.add(item);
    EXPECT_EQ(one_by_one.items(), expected);
    sorted_list_box at_once;
    at_once.add_all(given);
    EXPECT_EQ(at_once.items(), expected);

    one_by_one.choose(5);
    one_by_one.on_click = [] { ADD_FAILURE() << "nobody chose"; };
    one_by_one.add("dado");
    one_by_one.add("zio");
    one_by_one.add_all({"cane", "yak"});
    EXPECT_EQ(one_by_one.text(), "Élite"_cp) << "the choice follows the sorting";
}

TEST(scroll_bar, LimitsPullItsValueInside) {
    scroll_bar bar;
    std::vector<int> seen;
    bar.on_change = [&] { seen.push_back(bar.value()); };
    bar.set_limits(1, 10);
    EXPECT_FALSE(bar.set_value(11));
    EXPECT_TRUE(bar.set_value(10));
    EXPECT_TRUE(bar.drag(10));
    bar.set_limits(1, 4);
    bar.set_limits(1, 0);
    EXPECT_EQ(seen, (std::vector<int>{1, 10, 4, 1}));
    seen.clear();
    bar.set_limits(9, 5);
    EXPECT_EQ(bar.value(), 5) << "a bar may run the other way";
    bar.press_key(key::up, {});
    bar.press_key(key::down, {});
    bar.press_key(key::down, {});
    EXPECT_EQ(seen, (std::vector<int>{5, 6, 5}));
}

TEST(date_picker, TakesOnlyDaysOfTheCalendar) {
    date_picker picker;
    std::string seen;
    picker.on_change = [&] { seen += picker.text() + " "; };
    picker.on_close_up = [&] { seen += "closed "; };
    EXPECT_FALSE(picker.set_value({2023, 2, 29}));
    EXPECT_FALSE(picker.choose({2023, 2, 29}));
    EXPECT_TRUE(picker.set_value({2024, 2, 29}));
    EXPECT_TRUE(picker.choose({2024, 2, 29}));
    EXPECT_TRUE(picker.choose({2024, 3, 1}));
    EXPECT_EQ(seen, "29/02/2024 closed 01/03/2024 closed ");
}

}  // namespace
}  // namespace vantora::ui
