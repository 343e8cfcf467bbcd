#pragma once

#include "documents/order_document.h"
#include "documents/pdf_handoff.h"

namespace vantora {

/// Asks under `titolo` whether to print the order just saved; prints as many copies as the user
/// wants, and offers a PDF of what came out.
void offri_stampa(program& app, const char* titolo, const ordine_da_stampare& order,
                  const documento_stampato& printed);

}  // namespace vantora
