#pragma once

#include "store/record_fields.h"

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

template <>
inline constexpr auto fields_of<rec_prv> = record_fields(
    field<&rec_prv::numero>{0, "numero", "number", meaning::value, of_head},
    field<&rec_prv::data>{10, "data", "date", meaning::date, of_head},
    field<&rec_prv::cliente>{18, "cliente", "customer", meaning::customer, of_head},
    field<&rec_prv::testo1>{20, "riferimento", "reference", meaning::value, of_head},
    field<&rec_prv::testo2>{60, "riferimento2", "reference2", meaning::value, of_head},
    field<&rec_prv::testo3>{100, "riferimento3", "reference3", meaning::value, of_head},
    field<&rec_prv::articolo>{140, "articolo", "article", meaning::article},
    field<&rec_prv::descrizione>{142, "descrizione", "description"},
    field<&rec_prv::quantita>{182, "quantita", "quantity"},
    field<&rec_prv::prezzo>{190, "prezzo", "price"},
    field<&rec_prv::um>{198, "unita_misura", "unit"},
    field<&rec_prv::sc1>{200, "sconto1", "discount1"},
    field<&rec_prv::sc2>{202, "sconto2", "discount2"},
    field<&rec_prv::iva>{204, "codice_iva", "vat_code"}, field<&rec_prv::riservato_f>{206},
    field<&rec_prv::riservato_g>{214}, field<&rec_prv::riservato_h>{222},
    field<&rec_prv::riservato_i>{230}, field<&rec_prv::riservato_j>{238},
    field<&rec_prv::riservato_k>{240}, field<&rec_prv::descrizione2>{242},
    field<&rec_prv::riservato_l>{252}, field<&rec_prv::riservato_m>{260},
    field<&rec_prv::riservato_n>{262},
    field<&rec_prv::annullato>{282, "eliminato", "deleted", meaning::value, of_head});

}  // namespace vantora
