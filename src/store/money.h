#pragma once

#include <string>
#include <string_view>

#include "store/parameters.h"

namespace vantora {

// How a value becomes an amount in the current currency, how it is shown, how a typed text becomes
// a number. All amounts are 64-bit floats. All rounding adds the bias 0.51 and takes the integer
// part: a fraction rounds up from .49.

/// The two settings that all of this turns on.
struct valuta {
    bool centesimi = true;    ///< amounts have two decimals; false: whole lire
    int decimali_prezzo = 2;  ///< decimals of unit prices, 2 to 5

    valuta() = default;
    /// Whatever stands in the slots: decimals outside 3 to 5 count as 2.
    explicit valuta(const parametri& from);
};

namespace maschera {
inline constexpr std::string_view intero = "###,###,###,###";
inline constexpr std::string_view due_decimali = "###,###,###,##0.#0";
inline constexpr std::string_view tre_decimali = "###,###,###,##0.##0";
inline constexpr std::string_view quattro_decimali = "###,###,###,##0.###0";
inline constexpr std::string_view cinque_decimali = "###,###,###,##0.####0";
inline constexpr std::string_view quantita = "########0.#0";
}  // namespace maschera

/// The value rounded to the currency's unit.
double arrotonda_valuta(double value, const valuta& in);

/// The percentage of a value, rounded to the currency's unit.
double percentuale_valuta(double value, double percent, const valuta& in);

/// The same, but a fraction of a lira always rounds up; for VAT.
double percentuale_eccesso(double value, double percent, const valuta& in);

/// An amount after the two discounts of a line, in percent: the second is taken on what the first
/// leaves, each is rounded to the currency's unit.
double discounted_amount(double amount, double sc1, double sc2, const valuta& in);

/// A number that a file or a calculation gave; what is no number, or beyond all, counts as 0.
double finite_or_zero(double value);

/// What a quantity is worth at its price, net of both discounts; 0 where that is beyond all
/// numbers.
double line_value(double price, double quantity, double sc1, double sc2, const valuta& in);

/// The number in an Italian text: points are thousands marks and dropped, the comma is the
/// decimal mark. Of two points side by side the second stays and ends the number.
double testo_a_numero(std::string_view text);

/// Text of a money amount; empty for 0.
std::string formato_importo(double value, const valuta& in);

/// The mask with the decimals of unit prices.
std::string_view price_mask(const valuta& in);

/// Text of a unit price; empty for 0.
std::string formato_prezzo(double value, const valuta& in);

/// Text of a quantity in a list, with two decimals; empty for 0.
std::string quantity_text(double quantity);

/// Text of a quantity given as text with a decimal point; a whole 0 is empty.
std::string formato_quantita(std::string_view text);

}  // namespace vantora
