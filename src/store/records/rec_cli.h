#pragma once

#include "store/fields.h"

namespace vantora {

/// A customer, "vantora.cli". The record number is the customer's identity; read only.
struct rec_cli {
    text<40> intestazione1;      ///< registered office: name, first line; the key of the name index
    text<40> intestazione2;      ///< registered office: name, second line
    text<40> indirizzo;          ///< registered office: address
    text<40> citta;              ///< registered office: town
    text<5> cap;                 ///< registered office: postal code
    text<40> amm_intestazione1;  ///< administrative office: name, first line
    text<40> amm_intestazione2;  ///< administrative office: name, second line
    text<40> amm_indirizzo;      ///< administrative office: address
    text<40> amm_citta;          ///< administrative office: town
    text<5> amm_cap;             ///< administrative office: postal code
    text<15> telefono1;          ///< telephone
    text<15> telefono2;          ///< telephone
    text<15> telefono3;          ///< telephone
    text<11> partita_iva;        ///< VAT number
    text<16> codice_fiscale;     ///< tax code
    text<40> vettore1;           ///< usual carrier, first line
    text<40> vettore2;           ///< usual carrier, second line
    text<32> vettore3;           ///< usual carrier, third line
    text<1> riservato_o;
    text<6> riservato_p;
    text<1> riservato_q;
    text<36> testo_documenti;  ///< text that documents print
    text<4> riservato_r;
    text<5> riservato_s;
    text<5> riservato_t;
    text<12> riservato_u;
    i16le pagamento;  ///< payment term, counted from 1
    i16le riservato_v;
    i16le sconto1;  ///< usual first discount of the customer
    i16le sconto2;  ///< usual second discount of the customer
    i16le riservato_y;
    text<8> riservato_z;
    text<8> riservato_aa;
    text<8> riservato_ab;
    text<8> riservato_ac;
    text<2> prefisso_iva;  ///< two-letter prefix in front of partita_iva
    text<1> listino;       ///< price choice of the customer: "1" means the second price
    text<1> invio_email;   ///< "1" ticks postael when an order opens
    text<1> riservato_ad;
    text<1> riservato_ae;
    text<1> riservato_af;
    text<37> note1;  ///< note printed on documents, first line
    text<1> riservato_ag;
    i16le riservato_ah;
    text<37> note2;  ///< note printed on documents, second line
    text<1> riservato_ai;
    text<1> riservato_aj;
    i16le iva_cliente;  ///< VAT code that replaces the article's when it is 1 to 24
    text<36> email;     ///< e-mail address
    i16le eliminato;    ///< 1 means the customer is deleted
};

}  // namespace vantora
