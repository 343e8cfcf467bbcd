#include "windows/layout_pieces.h"

namespace vantora::ui::desktop {

QLabel* caption(const char* utf8, QWidget* parent) {
    auto* label = new QLabel(QString(utf8).trimmed(), parent);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

QString spoken(const char* utf8) {
    return QString(utf8).remove('&').replace('\n', ' ').trimmed();
}

QLabel* caption_of(QWidget* field, const char* utf8, QWidget* parent) {
    QLabel* label = caption(utf8, parent);
    label->setBuddy(field);
    if (field->accessibleName().isEmpty()) {
        field->setAccessibleName(spoken(utf8));
    }
    return label;
}

namespace {

constexpr const char* characters_property = "characters";
constexpr const char* margins_property = "margins";

}  // namespace

QWidget* sized(QWidget* field, int characters, int margins) {
    field->setProperty(characters_property, characters);
    field->setProperty(margins_property, margins);
    field->setFixedWidth(field->fontMetrics().horizontalAdvance('0') * characters + margins);
    return field;
}

void fit_to_characters(QWidget& field) {
    const int characters = field.property(characters_property).toInt();
    if (characters == 0) return;
    const bool fixed = field.minimumWidth() == field.maximumWidth();
    field.setMaximumWidth(field.fontMetrics().horizontalAdvance('0') * characters +
                          field.property(margins_property).toInt());
    if (fixed) field.setMinimumWidth(field.maximumWidth());
}

QWidget* dress_calendar(QWidget* picker) {
    picker->setToolTip("Sceglie la data dal calendario (frecce: giorno per giorno)");
    set_look(picker, "look", "calendar");
    picker->setFixedSize(32, picker->sizeHint().height());
    return picker;
}

void set_look(QWidget* widget, const char* property, const char* value) {
    widget->setProperty(property, value);
}

QHBoxLayout* command_row(form_window& window, int air) {
    auto* bar = new QFrame(&window);
    set_look(bar, "role", "bar");
    return arranged<QHBoxLayout>(bar, {8, air, 8, air}, 2);
}

void add_command(QHBoxLayout* row, QToolButton* button, int picture, bool keeps_place) {
    constexpr int around_picture = 58;
    button->setIconSize(QSize(picture, picture));
    button->setMinimumWidth(picture + around_picture);
    if (keeps_place) {
        QSizePolicy place(QSizePolicy::Preferred, QSizePolicy::Fixed);
        place.setRetainSizeWhenHidden(true);
        button->setSizePolicy(place);
    }
    row->addWidget(button);
}

QVBoxLayout* body_under(QWidget* commands, form_window& window) {
    auto* all = arranged<QVBoxLayout>(&window, {0, 0, 0, 0}, 0);
    all->addWidget(commands);
    auto* body = arranged<QVBoxLayout>(nullptr, {10, 8, 10, 10}, 8);
    all->addLayout(body, 1);
    return body;
}

QFrame* text_strip(form_window& window, const label& shown, const char* role,
                   const QMargins& around) {
    auto* strip = new QFrame(&window);
    set_look(strip, "role", role);
    text_label* text = window.widget(shown);
    text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* line = arranged<QHBoxLayout>(strip, around);
    line->addWidget(text);
    return strip;
}

QFrame* stock_line(form_window& window, const label& stock) {
    return text_strip(window, stock, "stock", {8, 1, 8, 1});
}

QToolButton* plain_command(form_window& window, const button& command, const command_look& look) {
    QToolButton* made = window.dress(command, look, Qt::ToolButtonTextBesideIcon);
    set_look(made, "look", "plain");
    return made;
}

QVBoxLayout* grid_with_sort_buttons(form_window& window, const grid& list,
                                    std::span<const button> sorting) {
    auto* strip = new QWidget(&window);
    strip->setFixedHeight(strip->fontMetrics().height() + 10);
    grid_view* table = window.widget(list);
    int column_sorted = 0;
    for (const button& one : sorting) {
        QToolButton* button = window.widget(one);
        button->setParent(strip);
        set_look(button, "look", "sort");
        if (button->text().isEmpty()) {
            button->setEnabled(false);
            button->setToolTip(QString());
            set_look(button, "look", "blank");
        } else {
            button->setToolTip("Riordina l'elenco su questa colonna");
        }
        button->setGeometry(0, 1, 60, strip->height() - 3);
        table->keep_above(column_sorted++, button);
    }
    auto* column = arranged<QVBoxLayout>(1);
    column->addWidget(strip);
    column->addWidget(table, 1);
    return column;
}

}  // namespace vantora::ui::desktop
