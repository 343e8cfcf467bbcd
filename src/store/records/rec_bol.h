#pragma once

#include <cstddef>

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

static_assert(sizeof(rec_bol) == 97 && alignof(rec_bol) == 1);
static_assert(offsetof(rec_bol, numero) == 0);
static_assert(offsetof(rec_bol, data) == 2);
static_assert(offsetof(rec_bol, zero1) == 10);
static_assert(offsetof(rec_bol, testo1) == 12);
static_assert(offsetof(rec_bol, testo2) == 27);
static_assert(offsetof(rec_bol, progressivo) == 63);
static_assert(offsetof(rec_bol, zero2) == 67);
static_assert(offsetof(rec_bol, data_reg) == 75);
static_assert(offsetof(rec_bol, uno) == 83);
static_assert(offsetof(rec_bol, vuoto) == 85);
static_assert(offsetof(rec_bol, cliente) == 87);
static_assert(offsetof(rec_bol, senza_scarico) == 89);
static_assert(offsetof(rec_bol, zero3) == 91);
static_assert(offsetof(rec_bol, zero4) == 93);
static_assert(offsetof(rec_bol, zero5) == 95);

}  // namespace vantora
