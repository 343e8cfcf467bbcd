#pragma once

#include "store/fields.h"

namespace vantora {

/// A transport document, "vantora.bol"; written only.
struct rec_bol {
    i16le numero;         ///< document number
    text<8> data;         ///< document date, yyyymmdd
    i16le zero1;          ///< 0
    text<15> testo1;      ///< blank
    text<36> testo2;      ///< blank
    f32le progressivo;    ///< names the text file b + number
    f64le zero2;          ///< 0
    f64le data_reg;       ///< date number of the day of registration
    i16le uno;            ///< always 1
    text<2> vuoto;        ///< blank
    i16le cliente;        ///< customer record number
    i16le senza_scarico;  ///< 1: the goods were not unloaded
    i16le zero3;          ///< 0
    i16le zero4;          ///< 0
    i16le zero5;          ///< 0
};

}  // namespace vantora
