#pragma once

#include "store/fields.h"

namespace vantora {

/// A warehouse movement, "vantora.mag"; written only.
struct rec_mag {
    text<8> data;        ///< movement date, yyyymmdd
    text<40> documento;  ///< reference text of the movement
    i16le tipo;          ///< always 1
    text<12> movimento;  ///< kind of movement as typed
    f64le data_reg;      ///< date number of the day of registration
    i16le articolo;      ///< article record number
    i16le cliente;       ///< customer record number
    f64le quantita;      ///< quantity
    f64le prezzo;        ///< net unit price after the two discounts
    i16le segno;         ///< always 1
    i16le zero;          ///< always 0
};

}  // namespace vantora
