#pragma once

#include "text/dates.h"
#include "ui/control.h"

namespace vantora::ui {

/// A value between two limits.
class bar_control : public control {
 public:
    [[nodiscard]] int minimum() const { return minimum_; }
    [[nodiscard]] int maximum() const { return maximum_; }
    [[nodiscard]] int value() const { return value_; }

 protected:
    bar_control(control_kind kind, int maximum) : control(kind), maximum_(maximum) {}

    int minimum_ = 0;
    int maximum_;
    int value_ = 0;
};

/// A position that the user moves.
class scroll_bar : public bar_control {
 public:
    scroll_bar() : bar_control(control_kind::scroll_bar, 32767) {}

    std::function<void()> on_change;  ///< the position became another one, whoever set it

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
};

/// How far a long piece of work has come; the user only watches.
class progress_bar : public bar_control {
 public:
    progress_bar() : bar_control(control_kind::progress_bar, 100) {}

    /// The value goes back to the minimum. False, with nothing done, if the maximum isn't above
    /// the minimum.
    bool set_range(int minimum, int maximum);
    /// False, with nothing done, outside the range.
    bool set_value(int value);
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
