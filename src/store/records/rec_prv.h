#pragma once

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

}  // namespace vantora
