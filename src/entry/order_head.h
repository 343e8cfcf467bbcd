#pragma once

#include "documents/printed_document.h"
#include "orders/stored_lines.h"
#include "orders/stored_order.h"

namespace vantora {

class customer_head;

// The head of an order stands in the controls of the screen that holds it, hidden behind the lines.

/// As it is stored. `prezzo`: which of the article's prices is on, 0 or 1; 2 for none.
testata_registrata head_to_store(const customer_head& screen, int prezzo);

/// As it is printed.
testata_documento head_to_print(const customer_head& screen);

/// Shows the whole head of a stored order.
void show_stored_head(customer_head& screen, const stored_rows<rec_orc>& rows);

}  // namespace vantora
