#pragma once

#include <cstddef>

#include "store/fields.h"

namespace vantora {

/// One row of an order, "vantora.orc". An order is a block of 200 rows; every row carries the
/// head fields and the state fields in the same value, row k the order's line k. The state of an
/// order is read from its row 1.
///
/// `testo1` to `testo3` by row: 1 the three lines of references (the first is the order's
/// description); 2 the destination's heading, two lines, and address; 3 its postal code, town and
/// the packed choices (port, transport, payment, price); 4 the carrier's three lines. On other
/// rows they mean nothing.
struct rec_orc {
    text<10> numero;       ///< order number, a label as typed
    text<8> data;          ///< order date, yyyymmdd
    i16le cliente;         ///< record number of the customer in "vantora.cli"
    text<40> testo1;       ///< head text, see above
    text<40> testo2;       ///< head text
    text<40> testo3;       ///< head text
    i16le articolo;        ///< record number of the article; below 1: free text
    text<40> descrizione;  ///< first 40 characters of the row's description
    text<2> um;            ///< unit of measure
    f64le quantita;        ///< ordered quantity
    f64le prezzo;          ///< unit price in the current currency
    f64le evaso;           ///< quantity fulfilled so far
    f64le riservato_b;
    f64le riservato_c;
    f64le riservato_d;
    text<8> data_evasione;  ///< planned fulfilment date, yyyymmdd
    i16le evaso_flag;       ///< 1: fulfilled in full
    text<1> impegno;        ///< "1": saving committed the stock
    i16le iva;              ///< VAT code of the row
    i16le sc1;              ///< first discount of the row, whole percent
    i16le sc2;       ///< second discount of the row, whole percent, taken on the reduced amount
    f64le data_reg;  ///< date number of the first save
    text<10> descrizione2;  ///< characters 41 to 50 of the row's description
    text<15> riservato_e;
    i16le annullato;  ///< 1: the order is deleted
};

static_assert(sizeof(rec_orc) == 284 && alignof(rec_orc) == 1);
static_assert(offsetof(rec_orc, numero) == 0);
static_assert(offsetof(rec_orc, data) == 10);
static_assert(offsetof(rec_orc, cliente) == 18);
static_assert(offsetof(rec_orc, testo1) == 20);
static_assert(offsetof(rec_orc, testo2) == 60);
static_assert(offsetof(rec_orc, testo3) == 100);
static_assert(offsetof(rec_orc, articolo) == 140);
static_assert(offsetof(rec_orc, descrizione) == 142);
static_assert(offsetof(rec_orc, um) == 182);
static_assert(offsetof(rec_orc, quantita) == 184);
static_assert(offsetof(rec_orc, prezzo) == 192);
static_assert(offsetof(rec_orc, evaso) == 200);
static_assert(offsetof(rec_orc, riservato_b) == 208);
static_assert(offsetof(rec_orc, riservato_c) == 216);
static_assert(offsetof(rec_orc, riservato_d) == 224);
static_assert(offsetof(rec_orc, data_evasione) == 232);
static_assert(offsetof(rec_orc, evaso_flag) == 240);
static_assert(offsetof(rec_orc, impegno) == 242);
static_assert(offsetof(rec_orc, iva) == 243);
static_assert(offsetof(rec_orc, sc1) == 245);
static_assert(offsetof(rec_orc, sc2) == 247);
static_assert(offsetof(rec_orc, data_reg) == 249);
static_assert(offsetof(rec_orc, descrizione2) == 257);
static_assert(offsetof(rec_orc, riservato_e) == 267);
static_assert(offsetof(rec_orc, annullato) == 282);

}  // namespace vantora
