#include "reports/cells.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "text/code_page.h"
#include "text/number_text.h"

namespace vantora {

text_ruler::text_ruler(const ui::printer& paper, ui::font in, double units_per_millimetre)
    : paper_(paper), font_(std::move(in)), units_(units_per_millimetre) {
    characters_.fill(unknown);
}

double text_ruler::width(std::string_view text) const {
    return paper_.text_width(text, font_) * units_;
}

std::optional<std::size_t> text_ruler::head_within(std::string_view text, double most) const {
    if (text.empty()) return {};
    // By how much a sum of character widths may be off.
    const double error = 1e-6 * (1 + std::abs(most));
    double sum = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        double& character = characters_[static_cast<unsigned char>(text[i])];
        if (character == unknown) character = std::max(0.0, width(text.substr(i, 1)));
        sum += character;
        if (sum < most - error) continue;
        if (sum > most + error) return i;
        return {};
    }
    return text.size();
}

std::string formatted(std::string_view cell, int formato, const valuta& in) {
    if (formato == 0 || cell.find('(') != std::string_view::npos || cell.starts_with("---") ||
        cell.starts_with("===")) {
        return std::string(cell);
    }
    const double value = testo_a_numero(cell);
    if (value == 0) return {};
    constexpr int prezzo = 5;
    return masked(value, formato == prezzo ? price_mask(in) : maschera::due_decimali);
}

std::string_view cut_to_fit(std::string_view text, double most, const text_ruler& ruler) {
    if (text.size() < 2) return text;
    const std::string_view whole = trimmed(text);
    const auto count = ruler.head_within(whole, most);
    if (count == whole.size()) return text;
    std::string_view rest = trimmed(text.substr(0, text.size() - 1));
    if (count) return trimmed(rest.substr(0, std::max<std::size_t>(*count, 1)));
    if (ruler.width(whole) <= most) return text;
    while (rest.size() > 1 && ruler.width(rest) > most) {
        rest = trimmed(rest.substr(0, rest.size() - 1));
    }
    return rest;
}

}  // namespace vantora
