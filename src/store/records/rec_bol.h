#pragma once

#include "store/record_fields.h"

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

template <>
inline constexpr auto fields_of<rec_bol> = record_fields(
    field<&rec_bol::numero>{0, "numero", "number"},
    field<&rec_bol::data>{2, "data", "date", meaning::date}, field<&rec_bol::zero1>{10},
    field<&rec_bol::testo1>{12}, field<&rec_bol::testo2>{27},
    field<&rec_bol::progressivo>{63, "progressivo", "running_number"}, field<&rec_bol::zero2>{67},
    field<&rec_bol::data_reg>{75, "registrato_il", "registered", meaning::day},
    field<&rec_bol::uno>{83}, field<&rec_bol::vuoto>{85},
    field<&rec_bol::cliente>{87, "cliente", "customer", meaning::customer},
    field<&rec_bol::senza_scarico>{89, "senza_scarico", "without_unloading"},
    field<&rec_bol::zero3>{91}, field<&rec_bol::zero4>{93}, field<&rec_bol::zero5>{95});

}  // namespace vantora
