#pragma once

#include "orders/order_lines.h"
#include "store/money.h"
#include "store/suite_table.h"

namespace vantora {

// What lines are worth. A line is a riga_ordine or a stored row, whose prices and discounts have
// the same names.

/// A quantity that a user types to have a line's price count once, with no pieces, as quantity 0
/// does. On printed lines and in the valuation of orders it is a quantity like others.
inline constexpr double quantita_a_corpo = -9999;

/// What one unit of a line costs after both discounts.
template <class Line>
double net_price(const Line& line, const valuta& in) {
    return discounted_amount(line.prezzo, line.sc1, line.sc2, in);
}

/// What an order is worth, by VAT code and in all.
struct totali_ordine {
    riepilogo_iva iva;
    double imponibile = 0;  ///< all net amounts
    double totale = 0;      ///< the same with VAT
    double pezzi = 0;       ///< sum of the quantities
};

/// The net amounts of all 200 lines and the pieces, without VAT. Amounts beyond all numbers make
/// the sums no numbers.
totali_ordine sum_lines(const righe_ordine& lines, const valuta& currency);

/// Computes the totals of all 200 lines anew. An amount beyond all numbers is an overflow, which
/// ends the program.
totali_ordine calcola_totali(const righe_ordine& lines, const tabella_iva& rates,
                             const valuta& currency);

/// Weight as transport data show it; a fraction that vanishes in three decimals leaves its mark.
std::string weight_text(double weight);

}  // namespace vantora
