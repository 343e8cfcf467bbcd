#include <algorithm>

#include "entry/line_grid.h"

namespace vantora {

// Going back and forth among the changes of the lines.

namespace {

/// In the order of line_column.
constexpr ui::text_box (line_grid::*columns[])[line_grid::rows] = {
    &line_grid::artic, &line_grid::ds,  &line_grid::um,  &line_grid::quantita,
    &line_grid::evaso, &line_grid::sc1, &line_grid::sc2, &line_grid::prezzo};

}  // namespace

void line_grid::settled() {
    if (at_work()) return;
    lookup_.mostra_scorta(current_article());
    if (history_.begun()) return history_.note(content(), cell_in_focus());
    history_.begin(content());
}

order_content line_grid::content() const {
    order_content now{righe_, {}, {}};
    for (int row = 0; row < rows; ++row) {
        const std::string& code = artic[row].text();
        if (trimmed(code) != righe_[line_of(row)].codice.trimmed()) {
            now.typed_codes[line_of(row)] = code;
        }
    }
    now.choices = {prezz[0].on(), prezz[1].on(), impegno.on(),
                   eva.on(),      scarica.on(),  postael.on()};
    return now;
}

void line_grid::show_content(const order_content& content) {
    righe_ = content.lines;
    const auto& choices = content.choices;
    for (const int price : {0, 1}) {
        if (choices[static_cast<std::size_t>(price)]) prezz[price].set_on(true);
    }
    impegno.set_on(choices[2]);
    eva.set_on(choices[3]);
    scarica.set_on(choices[4]);
    postael.set_on(choices[5]);
    paint_rows(0);
    for (const auto& [line, code] : content.typed_codes) {
        const int row = line - VScroll1.value();
        if (row >= 0 && row < rows) artic[row].set_text(code);
    }
    compute_totals();
}

ui::text_box& line_grid::cell_at(line_column column, int row) {
    return (this->*columns[static_cast<std::size_t>(column)])[row];
}

cell_in_work line_grid::cell_in_focus() const {
    const ui::control* focus = app_.desk.focus();
    for (std::size_t column = 0; focus && column < std::size(columns); ++column) {
        for (int row = 0; row < rows; ++row) {
            const ui::text_box& cell = (this->*columns[column])[row];
            if (&cell == focus) {
                return {{line_of(row), static_cast<line_column>(column)}, cell.text()};
            }
        }
    }
    return {};
}

bool line_grid::keeps_changes_of(const ui::control& one) const {
    return std::ranges::any_of(columns, [&](const auto column) {
        return std::ranges::any_of(this->*column, [&](const auto& cell) { return &cell == &one; });
    });
}

ui::text_box& line_grid::cell_to_return_to(const line_place& place, int row) {
    using enum line_column;
    // Coming to a description would take the article off.
    if (place.column == description && righe_[place.line].articolo > 0) return artic[row];
    if (place.column == fulfilled && !kind_.has_evaso) return quantita[row];
    return cell_at(place.column, row);
}

bool line_grid::go_along(std::optional<line_place> (line_history::*step)()) {
    if (at_work()) return false;
    const auto place = (history_.*step)();
    if (!place) return false;
    // Scrolling lets events run.
    const work going(*this);
    const order_content shown = history_.now();
    if (place->line == 0) {
        show_content(shown);
    } else {
        const int row = row_showing(place->line);
        show_content(shown);
        cell_to_return_to(*place, row).set_focus();
        show_content(shown);  // a discount comes up with the customer's own
        lookup_.follow_cell(artic[row].text());
    }
    history_.stand_at(content(), cell_in_focus());
    return true;
}

bool line_grid::take_back() {
    return go_along(&line_history::back);
}

bool line_grid::bring_back() {
    return go_along(&line_history::forth);
}

}  // namespace vantora
