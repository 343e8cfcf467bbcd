#pragma once

#include "orders/order_lines.h"
#include "store/suite_table.h"
#include "store/values.h"

namespace vantora {

/// What an order is worth, by VAT code and in all.
struct totali_ordine {
    riepilogo_iva iva;
    double imponibile = 0;  ///< all net amounts
    double totale = 0;      ///< the same with VAT
    double pezzi = 0;       ///< sum of the quantities
};

/// A quantity that a user types to have a line's price count once, with no pieces.
inline constexpr double quantita_a_corpo = -9999;

/// Computes the totals of all 200 lines anew. An amount beyond all numbers is an overflow, which
/// ends the program.
totali_ordine calcola_totali(const righe_ordine& lines, const tabella_iva& rates,
                             const valuta& currency);

}  // namespace vantora
