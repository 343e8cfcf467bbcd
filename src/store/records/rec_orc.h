#pragma once

#include "store/record_fields.h"

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

template <>
inline constexpr auto fields_of<rec_orc> = record_fields(
    field<&rec_orc::numero>{0, "numero", "number", meaning::value, of_head},
    field<&rec_orc::data>{10, "data", "date", meaning::date, of_head},
    field<&rec_orc::cliente>{18, "cliente", "customer", meaning::customer, of_head},
    field<&rec_orc::testo1>{20}, field<&rec_orc::testo2>{60}, field<&rec_orc::testo3>{100},
    field<&rec_orc::articolo>{140, "articolo", "article", meaning::article},
    field<&rec_orc::descrizione>{142, "descrizione", "description"},
    field<&rec_orc::um>{182, "unita_misura", "unit"},
    field<&rec_orc::quantita>{184, "quantita", "quantity"},
    field<&rec_orc::prezzo>{192, "prezzo", "price"},
    field<&rec_orc::evaso>{200, "evaso", "fulfilled"}, field<&rec_orc::riservato_b>{208},
    field<&rec_orc::riservato_c>{216}, field<&rec_orc::riservato_d>{224},
    field<&rec_orc::data_evasione>{232, "consegna", "due", meaning::date, of_head},
    field<&rec_orc::evaso_flag>{240, "evaso_tutto", "fulfilled_in_full", meaning::value, of_head},
    field<&rec_orc::impegno>{242, "impegna_merce", "commits_stock", meaning::value, of_head},
    field<&rec_orc::iva>{243, "codice_iva", "vat_code"},
    field<&rec_orc::sc1>{245, "sconto1", "discount1"},
    field<&rec_orc::sc2>{247, "sconto2", "discount2"},
    field<&rec_orc::data_reg>{249, "registrato_il", "registered", meaning::day, of_head},
    field<&rec_orc::descrizione2>{257}, field<&rec_orc::riservato_e>{267},
    field<&rec_orc::annullato>{282, "eliminato", "deleted", meaning::value, of_head});

}  // namespace vantora
