#include "reports/cells.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "text/code_page.h"
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

}  // namespace

text_ruler::text_ruler(const ui::printer& paper, ui::font in, double units_per_millimetre)
    : paper_(paper), font_(std::move(in)), units_(units_per_millimetre) {
    characters_.fill(unknown);
}

double text_ruler::width(std::string_view text) const {
    return paper_.text_width(text, font_) * units_;
}

text_ruler::limit::limit(double width)
    : width_(width),
      surely_within_(width - summing_error(width)),
      surely_beyond_(width + summing_error(width)) {}

std::optional<std::size_t> text_ruler::head_within(std::string_view text, const limit& most) const {
    if (text.empty()) return {};
    double sum = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        double& character = characters_[static_cast<unsigned char>(text[i])];
        if (character == unknown) character = std::max(0.0, width(text.substr(i, 1)));
        sum += character;
        if (sum < most.surely_within_) continue;
        if (sum > most.surely_beyond_) return i;
        return {};
    }
    return text.size();
}

std::string formatted(std::string_view cell, int formato, const valuta& in) {
    if (formato < 1 || cell.find('(') != std::string_view::npos || cell.starts_with("---") ||
        cell.starts_with("===")) {
        return std::string(cell);
    }
    const std::string_view mask = mask_of(formato, in);
    const double value = testo_a_numero(cell);
    if (value == 0) return {};
    std::string text = mask.empty() ? plain_text(value) : masked(value, mask);
    return formato == 8 && !text.empty() ? "(" + text + ")" : text;
}

std::string_view cut_to_fit(std::string_view text, const text_ruler::limit& most,
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
    if (formato_ == 0) return {cut_to_fit(cell, most_, ruler_), 0};
    if (cell.empty()) return {};
    text_ = formatted(cell, formato_, currency_);
    const std::string_view fitted = cut_to_fit(text_, most_, ruler_);
    return {fitted, measured_ ? ruler_.width(fitted) : 0};
}

}  // namespace vantora
