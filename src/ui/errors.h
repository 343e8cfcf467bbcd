#pragma once

#include <stdexcept>

#include "store/text/code_page.h"

namespace vantora::ui {

/// A run-time error that nothing is meant to catch: it ends the program with a message.
class runtime_error : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

class overflow_error final : public runtime_error {
 public:
    overflow_error() : runtime_error("Errore di run-time '6': Overflow") {}
};

class subscript_error final : public runtime_error {
 public:
    subscript_error()
        : runtime_error("Errore di run-time '9': Indice non incluso nell'intervallo") {}
};

class type_error final : public runtime_error {
 public:
    type_error() : runtime_error("Errore di run-time '13': Tipo non corrispondente") {}
};

/// Unwinds whatever runs when the program ends; only the desk throws and catches it.
struct program_end {};

}  // namespace vantora::ui
