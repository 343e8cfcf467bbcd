#pragma once

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

}  // namespace vantora
