#pragma once

#include "store/record_fields.h"

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
template <>
inline constexpr auto fields_of<rec_art> = record_fields(
    field<&rec_art::codice>{0, "codice", "code"},
    field<&rec_art::descrizione>{15, "descrizione", "description"},
    field<&rec_art::codice_barre>{55, "codice_barre", "bar_code"},
    field<&rec_art::um>{68, "unita_misura", "unit"},
    field<&rec_art::categoria>{70, "categoria", "category"},
    field<&rec_art::iva>{73, "codice_iva", "vat_code"},
    field<&rec_art::prezzo1>{75, "prezzo1", "price1"},
    field<&rec_art::prezzo2>{83, "prezzo2", "price2"}, field<&rec_art::riservato_al>{91},
    field<&rec_art::riservato_am>{99}, field<&rec_art::riservato_an>{107},
    field<&rec_art::riservato_ao>{115}, field<&rec_art::giacenza>{123, "giacenza", "stock"},
    field<&rec_art::riservato_ap>{131}, field<&rec_art::impegnato>{139, "impegnato", "committed"},
    field<&rec_art::ordinato_clienti>{147, "ordinato_clienti", "ordered"},
    field<&rec_art::riservato_aq>{155}, field<&rec_art::riservato_ar>{163},
    field<&rec_art::riservato_as>{171}, field<&rec_art::scaricato>{179, "scaricato", "unloaded"},
    field<&rec_art::riservato_at>{187},
    field<&rec_art::valore_scaricato>{195, "valore_scaricato", "unloaded_value"},
    field<&rec_art::classe1>{203, "fornitore1", "supplier1"},
    field<&rec_art::classe2>{207, "fornitore2", "supplier2"},
    field<&rec_art::classe3>{211, "fornitore3", "supplier3"}, field<&rec_art::riservato_au>{215},
    field<&rec_art::riservato_av>{219}, field<&rec_art::riservato_aw>{223},
    field<&rec_art::riservato_ax>{227}, field<&rec_art::riservato_ay>{235},
    field<&rec_art::riservato_az>{275}, field<&rec_art::peso>{295, "peso", "weight"},
    field<&rec_art::riservato_ba>{303}, field<&rec_art::riservato_bb>{323},
    field<&rec_art::eliminato>{325, "eliminato", "deleted"});

}  // namespace vantora
