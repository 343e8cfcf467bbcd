#include "reports/cells.h"

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

bool text_ruler::fits(std::string_view text, double limit) const {
    const double doubt = summing_error(limit);
    double sum = 0;
    for (const char character : text) {
        sum += character_width(character);
        if (sum > limit + doubt) return false;
    }
    return sum < limit - doubt || width(text) <= limit;
}

std::size_t text_ruler::passing(std::string_view text, double limit) const {
    double sum = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        sum += character_width(text[i]);
        if (sum > limit + summing_error(limit)) return i + 1;
    }
    return text.size();
}

std::string formattata(std::string_view cell, int formato, const valuta& in) {
    if (formato < 1 || cell.find('(') != std::string_view::npos || cell.starts_with("---") ||
        cell.starts_with("===")) {
        return std::string(cell);
    }
    const double value = number_at_head(plain_text(testo_a_numero(cell)));
    if (value == 0) return {};
    const std::string_view mask = mask_of(formato, in);
    std::string text = mask.empty() ? plain_text(value) : masked(value, mask);
    return formato == 8 ? "(" + text + ")" : text;
}

void accorcia(std::string& text, double limit, const text_ruler& ruler) {
    const auto drop_last = [&] {
        text.pop_back();
        text = trimmed(text);
    };
    const auto is_done = [&] { return text.size() < 2 || ruler.fits(trimmed(text), limit); };
    if (is_done()) return;
    drop_last();
    text.resize(ruler.passing(text, limit));
    text = trimmed(text);
    while (!is_done()) drop_last();
}

preparazione_celle::preparazione_celle(text_ruler ruler, double limit, int formato, valuta in)
    : ruler_(std::move(ruler)), limit_(limit), formato_(formato), currency_(in) {}

const cella_pronta& preparazione_celle::operator()(std::string_view cell) {
    kept& place = kept_[std::hash<std::string_view>{}(cell) % kept_cells];
    if (place.used && place.cell == cell) return place.ready;
    place.used = true;
    place.cell = cell;
    place.ready.testo = formattata(cell, formato_, currency_);
    accorcia(place.ready.testo, limit_, ruler_);
    place.ready.larghezza = formato_ != 0 ? ruler_.width(place.ready.testo) : 0;
    return place.ready;
}

}  // namespace vantora
