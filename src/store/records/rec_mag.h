#pragma once

#include "store/record_fields.h"

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

template <>
inline constexpr auto fields_of<rec_mag> =
    record_fields(field<&rec_mag::data>{0, "data", "date", meaning::date},
                  field<&rec_mag::documento>{8, "documento", "document"},
                  field<&rec_mag::tipo>{48, "tipo", "kind"},
                  field<&rec_mag::movimento>{50, "movimento", "movement"},
                  field<&rec_mag::data_reg>{62, "registrato_il", "registered", meaning::day},
                  field<&rec_mag::articolo>{70, "articolo", "article", meaning::article},
                  field<&rec_mag::cliente>{72, "cliente", "customer", meaning::customer},
                  field<&rec_mag::quantita>{74, "quantita", "quantity"},
                  field<&rec_mag::prezzo>{82, "prezzo_netto", "net_price"},
                  field<&rec_mag::segno>{90, "segno", "sign"}, field<&rec_mag::zero>{92});

}  // namespace vantora
