#pragma once

#include <memory>

#include "ui/clock.h"
#include "ui/text_controls.h"
#include "ui/value_controls.h"

namespace vantora::ui {

/// Ties a field for a day to the calendar beside it. The calendar follows what is typed, with today
/// for what is no day; a day chosen in it is written into the field, be it the one that stood
/// there. REQUIRES: all of them live as long.
inline void tie_day(text_box& field, date_picker& calendar, const clock& time) {
    const auto following = std::make_shared<bool>(false);
    field.accepts = input_rule::day();
    field.on_change = [&field, &calendar, &time, following] {
        *following = true;
        calendar.set_value(read_date(field.text()).value_or(time.now().day));
        *following = false;
    };
    calendar.on_choice = [&field, &calendar] { field.set_text(calendar.text()); };
    calendar.on_change = [&field, &calendar, following] {
        if (!*following) field.set_text(calendar.text());
    };
}

}  // namespace vantora::ui
