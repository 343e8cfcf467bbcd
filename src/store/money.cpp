#include "store/money.h"

#include <array>
#include <cmath>

#include "text/number_text.h"

namespace vantora {

namespace {

constexpr double arrotondamento = 0.51;
constexpr double eccesso = 0.99;

double rounded_percentage(double value, double percent, double lire_bias, const valuta& in) {
    if (!in.centesimi) return integer_part(value * percent / 100 + lire_bias);
    return integer_part(value * percent + arrotondamento) / 100;
}

}  // namespace

valuta::valuta(const parametri& from)
    : centesimi(number_at_head(from.parametri_valuta[valuta_slot::modo_decimali]) != 0) {
    const double decimals = number_at_head(from.parametri_valuta[valuta_slot::decimali_prezzo]);
    for (const int known : {3, 4, 5}) {
        if (decimals == known) decimali_prezzo = known;
    }
}

double arrotonda_valuta(double value, const valuta& in) {
    if (!in.centesimi) return integer_part(value + arrotondamento);
    return integer_part(value * 100 + arrotondamento) / 100;
}

double percentuale_valuta(double value, double percent, const valuta& in) {
    return rounded_percentage(value, percent, arrotondamento, in);
}

double percentuale_eccesso(double value, double percent, const valuta& in) {
    return rounded_percentage(value, percent, eccesso, in);
}

double discounted_amount(double amount, double sc1, double sc2, const valuta& in) {
    amount -= percentuale_valuta(amount, sc1, in);
    amount -= percentuale_valuta(amount, sc2, in);
    return amount;
}

double finite_or_zero(double value) {
    return std::isfinite(value) ? value : 0;
}

double line_value(double price, double quantity, double sc1, double sc2, const valuta& in) {
    const double gross = arrotonda_valuta(price * quantity, in);
    return finite_or_zero(arrotonda_valuta(discounted_amount(gross, sc1, sc2, in), in));
}

double testo_a_numero(std::string_view text) {
    text = trimmed(text);
    std::string number;
    for (std::size_t i = 0; i < text.size(); ++i) {
        // The walk doesn't step back after taking a point out: one right behind it stays, and ends
        // the number.
        if (text[i] == '.' && ++i < text.size() && text[i] == '.') break;
        if (i < text.size()) number.push_back(text[i] == ',' ? '.' : text[i]);
    }
    return number_at_head(number);
}

std::string formato_importo(double value, const valuta& in) {
    if (value == 0) return {};
    return masked(value, in.centesimi ? maschera::due_decimali : maschera::intero);
}

std::string_view price_mask(const valuta& in) {
    constexpr std::array by_decimals = {maschera::due_decimali, maschera::tre_decimali,
                                        maschera::quattro_decimali, maschera::cinque_decimali};
    return by_decimals[static_cast<std::size_t>(in.decimali_prezzo - 2)];
}

std::string formato_prezzo(double value, const valuta& in) {
    if (value == 0) return {};
    return masked(value, in.centesimi ? price_mask(in) : maschera::intero);
}

std::string quantity_text(double quantity) {
    return quantity == 0 ? std::string() : masked(quantity, maschera::quantita);
}

std::string formato_quantita(std::string_view text) {
    const double value = number_at_head(text);
    return masked(value, value == integer_part(value) ? maschera::intero : maschera::due_decimali);
}

}  // namespace vantora
