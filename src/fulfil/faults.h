#pragma once

#include "errors/run_time_errors.h"

namespace vantora {

// Booking and unloading have no protection: what goes wrong in them ends the program.

/// A file that must be read or written couldn't be.
class device_error final : public runtime_error {
 public:
    device_error()
        : runtime_error("Errore di run-time: un archivio non si lascia leggere o scrivere") {}
};

/// Goes on only if a read or write was done.
inline void require(bool done) {
    if (!done) throw device_error();
}

}  // namespace vantora
