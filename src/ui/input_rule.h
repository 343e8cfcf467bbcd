#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantora::ui {

/// What a window lets a hand type or paste into a field. The field's model takes any text: what a
/// screen or a script sets is not asked.
struct input_rule {
    enum class content {
        text,
        number,  ///< digits, one sign in front, one decimal point; a comma becomes the point
        day,     ///< a date, written out as dd/mm/yyyy when the field is left
    };

    content holds = content::text;
    int longest = 32767;    ///< characters
    double largest = 1e15;  ///< of a number, by its absolute value
    char alone = 0;         ///< a sign that may stand instead of a number; 0: none
    bool plain = false;     ///< a number that the screen itself writes with a point for decimals
    bool whole = false;     ///< a number is rounded to the nearest whole one, ties to even

    /// A text of at most so many characters.
    static input_rule text(std::size_t most) { return {.longest = static_cast<int>(most)}; }
    /// A number of at most 15 digits.
    static input_rule number() { return {.holds = content::number}; }
    /// A number that still fits a 16-bit integer.
    static input_rule small_number() {
        return {.holds = content::number, .largest = 32767, .whole = true};
    }
    static input_rule day() { return {.holds = content::day, .longest = 10}; }

    /// What becomes of a field in which `before` stood and the hand made `now` of it: `now` itself,
    /// or cleaned of what can't stand there. Empty if the change is refused.
    [[nodiscard]] std::optional<std::string> admit(std::string_view before,
                                                   std::string_view now) const;
};

/// What a hand put into a text by making `now` of it.
std::string_view put_in(std::string_view before, std::string_view now);

/// The same text with only the first cell of a table that was put in; nothing else is changed.
std::string with_first_cell(std::string_view before, std::string_view now);

/// A number as the field takes it, a blank for 0. Empty where the text stays as it is.
std::optional<std::string> written_out_number(std::string_view typed, const input_rule& rule);

/// What to say of a number with a point before exactly three last digits, which may have been meant
/// for thousands; empty for all others.
std::optional<std::string> doubtful_number(std::string_view typed);

/// A day as hands type it, "24/11", "24112026" or "24/11/26", as dd/mm/yyyy; the year may be left
/// out. Empty if it is none.
std::optional<std::string> written_out_day(std::string_view typed, int this_year);

}  // namespace vantora::ui
