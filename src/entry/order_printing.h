#pragma once

#include "documents/printed_document.h"

namespace vantora {

/// Asks under `titolo` whether to print the order just saved; prints as many copies as the user
/// wants, and offers a PDF of what came out, to be sent by e-mail if `invia`.
void offer_print(program& app, const char* titolo, const documento_da_stampare& order, bool invia);

}  // namespace vantora
