#include "reports/cells.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

#include "store/text/code_page.h"
#include "store/text/number_text.h"

namespace vantora {

namespace {

/// By how much a sum of character widths may be off.
double summing_error(double limit) {
    return 1e-6 * (1 + std::abs(limit));
}

std::string_view mask_of(int formato, const valuta& in) {
    switch (formato) {
        case 1:
        case 2:
        case 8:
            return maschera::due_decimali;
        case 3:
            return maschera::tre_decimali;
        case 4:
            return maschera::intero;
        case 5:
            if (in.decimali_prezzo == 3) return maschera::tre_decimali;
            if (in.decimali_prezzo == 4) return maschera::quattro_decimali;
            if (in.decimali_prezzo == 5) return maschera::cinque_decimali;
            return maschera::due_decimali;
        default:
            return {};
    }
}

}  // namespace

text_ruler::text_ruler(const ui::printer& paper, ui::font in, double units_per_millimetre)
    : paper_(paper), font_(std::move(in)), units_(units_per_millimetre) {
    characters_.fill(-1);
}

double text_ruler::width(std::string_view text) const {
    return paper_.text_width(text, font_) * units_;
}

double text_ruler::character_width(char character) const {
    double& known = characters_[static_cast<unsigned char>(character)];
    if (known < 0) known = std::max(0.0, width(std::string_view(&character, 1)));
    return known;
}

std::optional<std::size_t> text_ruler::within(std::string_view text, double limit) const {
    const double surely_within = limit - summing_error(limit);
    const double surely_beyond = limit + summing_error(limit);
    if (text.empty()) return {};
    double sum = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        sum += character_width(text[i]);
        if (sum > surely_beyond) return i;
        if (sum >= surely_within) return {};
    }
    return text.size();
}

std::string formattata(std::string_view cell, int formato, const valuta& in) {
    if (formato < 1 || cell.find('(') != std::string_view::npos || cell.starts_with("---") ||
        cell.starts_with("===")) {
        return std::string(cell);
    }
    const double value = testo_a_numero(cell);
    if (value == 0) return {};
    const std::string_view mask = mask_of(formato, in);
    std::string text = mask.empty() ? plain_text(value) : masked(value, mask);
    return formato == 8 ? "(" + text + ")" : text;
}

std::string_view accorciato(std::string_view text, double limit, const text_ruler& ruler) {
    if (text.size() < 2) return text;
    const std::string_view whole = trimmed(text);
    std::string_view rest = trimmed(text.substr(0, text.size() - 1));
    if (const auto count = ruler.within(whole, limit)) {
        if (*count == whole.size()) return text;
        return trimmed(rest.substr(0, std::max<std::size_t>(*count, 1)));
    }
    if (ruler.width(whole) <= limit) return text;
    while (rest.size() > 1 && ruler.width(rest) > limit) {
        rest = trimmed(rest.substr(0, rest.size() - 1));
    }
    return rest;
}

preparazione_celle::preparazione_celle(text_ruler ruler, double limit, int formato, valuta in)
    : ruler_(std::move(ruler)), limit_(limit), formato_(formato), currency_(in) {}

cella_pronta preparazione_celle::operator()(std::string_view cell) {
    if (formato_ == 0) return {accorciato(cell, limit_, ruler_), 0};
    kept& place = kept_[std::hash<std::string_view>{}(cell) % kept_cells];
    if (place.used && place.cell == cell) return place.ready;
    place.used = true;
    place.cell = cell;
    place.text = formattata(cell, formato_, currency_);
    const std::string_view fitted = accorciato(place.text, limit_, ruler_);
    place.ready = {fitted, ruler_.width(fitted)};
    return place.ready;
}

}  // namespace vantora
