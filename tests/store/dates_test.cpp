#include "store/text/dates.h"

#include <gtest/gtest.h>

namespace vantora {
namespace {

TEST(read_date, TakesDayMonthYearAndElseMonthDayYear) {
    struct {
        const char* text;
        date expected;
    } cases[] = {
        {"01/02/2024", {2024, 2, 1}},     {"1/2/24", {2024, 2, 1}},
        {" 31-12-1999 ", {1999, 12, 31}}, {"12/31/2024", {2024, 12, 31}},
        {"29.02.2024", {2024, 2, 29}},    {"1 1 00", {2000, 1, 1}},
        {"1/1/29", {2029, 1, 1}},         {"1/1/30", {1930, 1, 1}},
        {"1/1/99", {1999, 1, 1}},         {"5/6/0100", {100, 6, 5}},
    };
    for (const auto& one : cases) EXPECT_EQ(read_date(one.text), one.expected) << one.text;
    for (const char* text : {"", "29/02/2023", "31/04/2024", "13/13/2024", "0/1/2024", "1/2",
                             "1/2/", "1/2/202", "1/2/20245", "001/2/2024", "1//2/2024", "1/2/2024x",
                             "a/b/c", "1/2/0099", "30/2/24", "1/2/2024/", "\xE8/2/2024"}) {
        EXPECT_FALSE(read_date(text).has_value()) << text;
    }
}

TEST(dates, CutStoredDatesWhateverTheyHold) {
    EXPECT_EQ(date_text_of_stored("20240506"), "06/05/2024");
    EXPECT_EQ(date_text_of_stored("abcdefgh"), "gh/ef/abcd");
    EXPECT_EQ(date_text_of_stored("2024"), "  /  /2024");
    EXPECT_EQ(stored_of_date_text("06/05/2024"), "20240506");
    EXPECT_EQ(stored_of_date_text("1/2/2024"), "24/21/");
    EXPECT_EQ(stored_of_date_text(""), "");
    EXPECT_EQ(date_text({2024, 5, 6}), "06/05/2024");
    EXPECT_EQ(stored_date({2024, 5, 6}), "20240506");
}

TEST(dates, NumbersCountFromTheEndOf1899) {
    EXPECT_EQ(date_number({{1899, 12, 30}}), 0);
    EXPECT_EQ(date_number({{1900, 1, 1}}), 2);
    EXPECT_EQ(date_number({{2024, 5, 6}, 12, 0, 0}), 45418.5);
    EXPECT_EQ(date_number({{2000, 2, 29}, 6, 0, 0}), 36585.25);
}

TEST(read_clock, ReadsOneFormOnly) {
    EXPECT_EQ(read_clock("2024-05-06 10:20:30"), (date_time{{2024, 5, 6}, 10, 20, 30}));
    for (const char* text : {"", "2024-05-06", "2024-05-06 24:00:00", "2024-13-06 10:20:30",
                             "2024-05-06T10:20:30", "06/05/2024 10:20:30"}) {
        EXPECT_FALSE(read_clock(text).has_value()) << text;
    }
}

}  // namespace
}  // namespace vantora
