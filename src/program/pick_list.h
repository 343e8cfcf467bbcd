#pragma once

#include "program/program.h"

namespace vantora {

// What `selezione_cliente` says between the customer pick list and the screen that calls it.

namespace elenco_clienti {
inline constexpr int da_mirorcx = 51;    ///< called for a new order
inline constexpr int da_mirorcm = 52;    ///< called for the head of an existing order
inline constexpr int da_mirorcc = 53;    ///< called for a transport document
inline constexpr int scelta_fatta = 99;  ///< on the way back: a customer was chosen
}  // namespace elenco_clienti

/// The screen that a code names, all of them customer heads; null for any other code.
inline ui::screen_place* chiamante(program& app, int codice) {
    switch (codice) {
        case elenco_clienti::da_mirorcx:
            return &app.mirorcx;
        case elenco_clienti::da_mirorcm:
            return &app.mirorcm;
        case elenco_clienti::da_mirorcc:
            return &app.mirorcc;
        default:
            return nullptr;
    }
}

}  // namespace vantora
