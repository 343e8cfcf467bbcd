#pragma once

#include <cstddef>

#include "store/fields.h"

namespace vantora {

/// One row of a quote, "vantora.prv". Blocks of 200 rows as in orders; read only.
struct rec_prv {
    text<10> numero;       ///< quote number
    text<8> data;          ///< quote date, yyyymmdd
    i16le cliente;         ///< customer record number
    text<40> testo1;       ///< row 1: the description of the quote
    text<40> testo2;       ///< head text
    text<40> testo3;       ///< head text
    i16le articolo;        ///< article record number
    text<40> descrizione;  ///< row description
    f64le quantita;        ///< quantity
    f64le prezzo;          ///< unit price
    text<2> um;            ///< unit of measure
    i16le sc1;             ///< first discount
    i16le sc2;             ///< second discount
    i16le iva;             ///< VAT code
    text<8> riservato_f;
    f64le riservato_g;
    f64le riservato_h;
    f64le riservato_i;
    i16le riservato_j;
    i16le riservato_k;
    text<10> descrizione2;  ///< characters 41 to 50 of the row's description
    f64le riservato_l;
    i16le riservato_m;
    text<20> riservato_n;
    i16le annullato;  ///< row 1: not 0 means deleted
};

static_assert(sizeof(rec_prv) == 284 && alignof(rec_prv) == 1);
static_assert(offsetof(rec_prv, numero) == 0);
static_assert(offsetof(rec_prv, data) == 10);
static_assert(offsetof(rec_prv, cliente) == 18);
static_assert(offsetof(rec_prv, testo1) == 20);
static_assert(offsetof(rec_prv, testo2) == 60);
static_assert(offsetof(rec_prv, testo3) == 100);
static_assert(offsetof(rec_prv, articolo) == 140);
static_assert(offsetof(rec_prv, descrizione) == 142);
static_assert(offsetof(rec_prv, quantita) == 182);
static_assert(offsetof(rec_prv, prezzo) == 190);
static_assert(offsetof(rec_prv, um) == 198);
static_assert(offsetof(rec_prv, sc1) == 200);
static_assert(offsetof(rec_prv, sc2) == 202);
static_assert(offsetof(rec_prv, iva) == 204);
static_assert(offsetof(rec_prv, riservato_f) == 206);
static_assert(offsetof(rec_prv, riservato_g) == 214);
static_assert(offsetof(rec_prv, riservato_h) == 222);
static_assert(offsetof(rec_prv, riservato_i) == 230);
static_assert(offsetof(rec_prv, riservato_j) == 238);
static_assert(offsetof(rec_prv, riservato_k) == 240);
static_assert(offsetof(rec_prv, descrizione2) == 242);
static_assert(offsetof(rec_prv, riservato_l) == 252);
static_assert(offsetof(rec_prv, riservato_m) == 260);
static_assert(offsetof(rec_prv, riservato_n) == 262);
static_assert(offsetof(rec_prv, annullato) == 282);

}  // namespace vantora
