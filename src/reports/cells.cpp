#include "reports/cells.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

#include "text/code_page.h"
#include "text/digit.h"
#include "text/number_text.h"

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

bool only_digits(std::string_view text) {
    return std::ranges::all_of(text, is_digit);
}

/// A number as lists show it, "-1234,5", under a mask that shows all of its decimals: its value
/// needn't be known for that. Empty optional for other texts.
std::optional<std::string> regrouped(std::string_view cell, std::string_view mask) {
    constexpr std::size_t most_digits = 15;
    const std::size_t mark = mask.find('.');
    const std::size_t places = mark == std::string_view::npos ? 0 : mask.size() - mark - 1;
    const bool negative = cell.starts_with('-');
    if (negative) cell.remove_prefix(1);
    const std::string_view whole = cell.substr(0, cell.find(','));
    const std::string_view decimals = cell.substr(std::min(whole.size() + 1, cell.size()));
    if (whole.empty() || mask.empty() || cell.size() > most_digits || decimals.size() > places ||
        (whole.size() > 1 && whole.front() == '0') || !only_digits(whole) ||
        !only_digits(decimals)) {
        return {};
    }
    if (whole == "0" && decimals.find_first_not_of('0') == std::string_view::npos) return "";
    char text[2 * most_digits + 2];
    char* at = text;
    if (negative) *at++ = '-';
    for (std::size_t left = whole.size(); left > 0; --left) {
        if (left < whole.size() && left % 3 == 0) *at++ = '.';
        *at++ = whole[whole.size() - left];
    }
    if (places > 0) {
        *at++ = ',';
        at = std::ranges::copy(decimals, at).out;
        at = std::fill_n(at, places - decimals.size(), '0');
    }
    return std::string(text, at);
}

}  // namespace

text_ruler::text_ruler(const ui::printer& paper, ui::font in, double units_per_millimetre)
    : paper_(paper), font_(std::move(in)), units_(units_per_millimetre) {
    characters_.fill(unknown);
}

double text_ruler::width(std::string_view text) const {
    return paper_.text_width(text, font_) * units_;
}

text_ruler::parts text_ruler::parts_of(double width) {
    constexpr double parts_of_unit = 1 << 24;
    constexpr double widest = 1e9;
    return static_cast<parts>(std::clamp(width, -widest, widest) * parts_of_unit);
}

text_ruler::limit::limit(double width)
    : width_(width),
      surely_within_(parts_of(width - summing_error(width))),
      surely_beyond_(parts_of(width + summing_error(width))) {}

std::optional<std::size_t> text_ruler::head_within(std::string_view text, const limit& most) const {
    if (text.empty()) return {};
    parts sum = 0;
    std::size_t i = 0;
    for (; i + 4 <= text.size(); i += 4) {
        const auto known = [&](std::size_t at) {
            return characters_[static_cast<unsigned char>(text[i + at])];
        };
        const parts four = known(0) + known(1) + known(2) + known(3);
        if (sum + four >= most.surely_within_) break;
        sum += four;
    }
    for (; i < text.size(); ++i) {
        parts& character = characters_[static_cast<unsigned char>(text[i])];
        sum += character;
        if (sum < most.surely_within_) continue;
        if (character == unknown) {
            character = parts_of(std::max(0.0, width(text.substr(i, 1))));
            sum += character - unknown;
            if (sum < most.surely_within_) continue;
        }
        if (sum > most.surely_beyond_) return i;
        return {};
    }
    return text.size();
}

std::string formattata(std::string_view cell, int formato, const valuta& in) {
    if (formato < 1 || cell.find('(') != std::string_view::npos || cell.starts_with("---") ||
        cell.starts_with("===")) {
        return std::string(cell);
    }
    const std::string_view mask = mask_of(formato, in);
    auto text = regrouped(cell, mask);
    if (!text) {
        const double value = testo_a_numero(cell);
        if (value == 0) return {};
        text = mask.empty() ? plain_text(value) : masked(value, mask);
    }
    return formato == 8 && !text->empty() ? "(" + *text + ")" : *text;
}

std::string_view accorciato(std::string_view text, const text_ruler::limit& most,
                            const text_ruler& ruler) {
    if (text.size() < 2) return text;
    const std::string_view whole = trimmed(text);
    const auto count = ruler.head_within(whole, most);
    if (count == whole.size()) return text;
    std::string_view rest = trimmed(text.substr(0, text.size() - 1));
    if (count) return trimmed(rest.substr(0, std::max<std::size_t>(*count, 1)));
    if (ruler.is_within(whole, most)) return text;
    while (rest.size() > 1 && !ruler.is_within(rest, most)) {
        rest = trimmed(rest.substr(0, rest.size() - 1));
    }
    return rest;
}

preparazione_celle::preparazione_celle(text_ruler ruler, double limit, int formato, valuta in,
                                       bool measured)
    : ruler_(std::move(ruler)),
      most_(limit),
      formato_(formato),
      currency_(in),
      measured_(measured) {}

cella_pronta preparazione_celle::operator()(std::string_view cell) {
    if (formato_ == 0) return {accorciato(cell, most_, ruler_), 0};
    if (cell.empty()) return {};
    kept& place = kept_[std::hash<std::string_view>{}(cell) % kept_cells];
    if (place.used && place.cell == cell) return place.ready;
    place.used = true;
    place.cell = cell;
    place.text = formattata(cell, formato_, currency_);
    const std::string_view fitted = accorciato(place.text, most_, ruler_);
    place.ready = {fitted, measured_ ? ruler_.width(fitted) : 0};
    return place.ready;
}

}  // namespace vantora
