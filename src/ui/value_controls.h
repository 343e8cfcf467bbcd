#pragma once

#include "text/dates.h"
#include "ui/control.h"

namespace vantora::ui {

/// A position between two limits.
class scroll_bar : public control {
 public:
    scroll_bar() : control(control_kind::scroll_bar) {}

    std::function<void()> on_change;  ///< the position became another one, whoever set it

    [[nodiscard]] int minimum() const { return minimum_; }
    [[nodiscard]] int maximum() const { return maximum_; }
    [[nodiscard]] int value() const { return value_; }
    /// True for a position inside the limits.
    [[nodiscard]] bool reaches(int value) const;

    /// Pulls the position inside and fires the change event if it thereby changes. The maximum may
    /// lie below the minimum: the bar then runs the other way.
    void set_limits(int minimum, int maximum);
    /// False, with nothing done, outside the limits.
    bool set_value(int value);
    /// The user drags it: it takes the focus, then moves. False outside the limits.
    bool drag(int value);

    /// Arrows move by one.
    void take_effect(int code, std::optional<char> character) override;

 private:
    int minimum_ = 0;
    int maximum_ = 32767;
    int value_ = 0;
};

/// How far a long piece of work has come; the user only watches.
class progress_bar : public control {
 public:
    progress_bar() : control(control_kind::progress_bar) {}

    [[nodiscard]] int minimum() const { return minimum_; }
    [[nodiscard]] int maximum() const { return maximum_; }
    [[nodiscard]] int value() const { return value_; }

    /// The value goes back to the minimum. False, with nothing done, if the maximum isn't above
    /// the minimum.
    bool set_range(int minimum, int maximum);
    /// False, with nothing done, outside the range.
    bool set_value(int value);

 private:
    int minimum_ = 0;
    int maximum_ = 100;
    int value_ = 0;
};

/// A field with a calendar; it always holds a date.
class date_picker : public control {
 public:
    date_picker() : control(control_kind::date_picker) {}

    std::function<void()> on_change;    ///< the date became another one, whoever set it
    std::function<void()> on_choice;    ///< the user chose a day, perhaps the one that stood there
    std::function<void()> on_close_up;  ///< the user chose in the calendar, or closed it

    [[nodiscard]] const date& value() const { return value_; }
    /// dd/mm/yyyy
    [[nodiscard]] std::string text() const { return date_text(value_); }

    /// False, with nothing done, for a day that the calendar doesn't have.
    bool set_value(const date& value);
    /// The user chooses a date: the picker takes the focus, the date changes, the calendar closes.
    bool choose(const date& value);
    /// The user chose the day that stands there now; the calendar may stay open.
    void confirm() { fire(on_choice); }
    /// The calendar closed.
    void close_up();

 private:
    date value_{2000, 1, 1};
};

}  // namespace vantora::ui
