#pragma once

#include "store/fields.h"

namespace vantora {

/// General parameters of a company, "vantora.gnr": one record.
struct rec_gnr {
    i16le interi_iniziali[4];  ///< of other programs
    i16le vista_registro;      ///< view of the register
    i16le intero_sesto;        ///< of other programs
    text<6> riservato_bc;
    text<165> riservato_bd;
    text<1> formato_gnr;        ///< "9" in a valid record
    text<1> aggiorna_elenco;    ///< "1": the register rebuilds its list after an order
    f64le colore_riga_pari;     ///< colour of even grid rows; default 16579315
    f64le colore_riga_dispari;  ///< colour of odd grid rows; default 16777215
    text<1> righe_alternate;    ///< "1": grids are striped
    text<1> riservato_be;       ///< "1" with the defaults
    text<1> riservato_bf;
    text<38> riservato_bg;
    i16le riservato_bh;
    i16le usa_barcode;  ///< not 0: order screens open with bar codes on
    i16le riservato_bi;
    text<2> codice_iva_base;  ///< VAT code of rows without one, "01" to "24"
    i16le peso_automatico;    ///< 1: transport documents total their weight
    text<1> riservato_bj;
    text<3> riservato_bk;
    text<90> riservato_bl;
};

}  // namespace vantora
