#pragma once

#include <cstdint>
#include <vector>

#include "orders/order_lines.h"
#include "store/archives.h"

namespace vantora {

// The lines of a quote or an order as lines of a new order: prices and discounts as they were, not
// those of today; a line without a price has no VAT code. Where rows can't be read, nothing is
// taken over: their numbers are returned, none if all is well.

/// Adds all 200 rows of a quote behind the last line in use, empty ones too; what would come to
/// lie behind line 200 is dropped.
std::vector<int> aggiungi_preventivo(righe_ordine& lines, const archivi& files, std::int64_t block);

/// Puts the 200 rows of an order in place of the lines.
std::vector<int> sostituisci_con_ordine(righe_ordine& lines, const archivi& files,
                                        std::int64_t block);

}  // namespace vantora
