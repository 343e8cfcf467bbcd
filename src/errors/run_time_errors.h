#pragma once

#include <cmath>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vantora {

/// A run-time error that nothing is meant to catch: it ends the program with a message.
class runtime_error : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

class overflow_error final : public runtime_error {
 public:
    overflow_error() : runtime_error("Errore di run-time '6': Overflow") {}
};

/// A number; one beyond all numbers is an overflow.
inline double checked(double value) {
    if (!std::isfinite(value)) throw overflow_error();
    return value;
}

/// A file that must be read or written couldn't be.
class device_error final : public runtime_error {
 public:
    /// `file`: as users know it, "vantora.orc".
    explicit device_error(std::string_view file)
        : runtime_error("Errore di run-time: l'archivio " + std::string(file) +
                        " non si lascia leggere o scrivere") {}
};

class subscript_error final : public runtime_error {
 public:
    subscript_error()
        : runtime_error("Errore di run-time '9': Indice non incluso nell'intervallo") {}
};

}  // namespace vantora
