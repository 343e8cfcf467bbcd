#pragma once

#include "store/fields.h"

namespace vantora {

/// An article, "vantora.art". The record number is the article's identity. Only the stock
/// fields are changed here, and the record is written back whole.
struct rec_art {
    text<15> codice;        ///< key of the code index
    text<40> descrizione;   ///< description
    text<13> codice_barre;  ///< key of the bar code index
    text<2> um;             ///< unit of measure
    text<3> categoria;      ///< merchandise category as a number from 0
    i16le iva;              ///< VAT code
    f64le prezzo1;          ///< first price list
    f64le prezzo2;          ///< second price list
    f64le riservato_al;
    f64le riservato_am;
    f64le riservato_an;
    f64le riservato_ao;
    f64le giacenza;  ///< stock on hand
    f64le riservato_ap;
    f64le impegnato;         ///< committed stock
    f64le ordinato_clienti;  ///< quantity in open customer orders
    f64le riservato_aq;
    f64le riservato_ar;
    f64le riservato_as;
    f64le scaricato;  ///< total quantity unloaded
    f64le riservato_at;
    f64le valore_scaricato;  ///< total net value unloaded
    text<4> classe1;         ///< supplier code
    text<4> classe2;         ///< supplier code
    text<4> classe3;         ///< supplier code
    text<4> riservato_au;
    text<4> riservato_av;
    text<4> riservato_aw;
    f64le riservato_ax;
    text<40> riservato_ay;
    text<20> riservato_az;
    f64le peso;  ///< unit weight
    text<20> riservato_ba;
    i16le riservato_bb;
    i16le eliminato;  ///< not 0: the article is deleted
};

/// Twenty articles at a time, as the article list reads them.
struct blocco_articoli {
    rec_art articoli[20];
};

static_assert(sizeof(blocco_articoli) == 6540);

}  // namespace vantora
