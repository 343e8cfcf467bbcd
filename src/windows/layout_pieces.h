#pragma once

#include <QBoxLayout>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QToolButton>
#include <span>

#include "desktop/controls/grid_view.h"
#include "desktop/controls/text_label.h"
#include "desktop/form_window.h"

namespace vantora::ui::desktop {

// What several screens' layouts are put together from.

/// A layout of a widget, with so many dots around what it holds, and between.
template <class Layout>
Layout* arranged(QWidget* parent, const QMargins& around, int between = -1) {
    auto* made = new Layout(parent);
    made->setContentsMargins(around);
    made->setSpacing(between);
    return made;
}
/// One that goes into another.
template <class Layout>
Layout* arranged(int between) {
    auto* made = new Layout;
    made->setSpacing(between);
    return made;
}

/// A fixed text in front of a field.
QLabel* caption(const char* utf8, QWidget* parent);

/// The same, for a field that it names: to the keyboard and to those who listen instead of reading.
QLabel* caption_of(QWidget* field, const char* utf8, QWidget* parent);

/// A caption as those hear it who listen.
QString spoken(const char* utf8);

/// A text box made so wide that about `characters` fit; the margins are its frame's and some air.
QWidget* sized(QWidget* field, int characters, int margins = 24);

/// The same again after the size of its texts changed; nothing for a widget that was never sized.
void fit_to_characters(QWidget& field);

/// A date picker that stands beside its date and shows its calendar alone.
QWidget* dress_calendar(QWidget* picker);

/// A grid with its "Riordina" buttons above the columns.
QVBoxLayout* grid_with_sort_buttons(form_window& window, const grid& list,
                                    std::span<const button> sorting);

/// A command that stands among fields or under a list, with its caption beside its picture.
QToolButton* plain_command(form_window& window, const button& command, const command_look& look);

/// A bar for a window's commands, still empty, with so many dots above and below them. The bar is
/// the row's parent.
QHBoxLayout* command_row(form_window& window, int air);

/// A command at the end of such a row, with a picture of so many dots. `keeps_place`: while it is
/// hidden too.
void add_command(QHBoxLayout* row, QToolButton* button, int picture, bool keeps_place = false);

/// The plan of a working window: its commands across the top; what comes below them is returned.
QVBoxLayout* body_under(QWidget* commands, form_window& window);

/// One line of text over the whole width, of the look that has the name.
QFrame* text_strip(form_window& window, const label& shown, const char* role,
                   const QMargins& around);

/// What there is of an article in stock, below the lines or rows that it stands in.
QFrame* stock_line(form_window& window, const label& stock);

/// Sets how the style sheet draws a widget.
void set_look(QWidget* widget, const char* property, const char* value);

}  // namespace vantora::ui::desktop
