#pragma once

#include <cstddef>

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

static_assert(sizeof(rec_cli) == 752 && alignof(rec_cli) == 1);
static_assert(offsetof(rec_cli, intestazione1) == 0);
static_assert(offsetof(rec_cli, intestazione2) == 40);
static_assert(offsetof(rec_cli, indirizzo) == 80);
static_assert(offsetof(rec_cli, citta) == 120);
static_assert(offsetof(rec_cli, cap) == 160);
static_assert(offsetof(rec_cli, amm_intestazione1) == 165);
static_assert(offsetof(rec_cli, amm_intestazione2) == 205);
static_assert(offsetof(rec_cli, amm_indirizzo) == 245);
static_assert(offsetof(rec_cli, amm_citta) == 285);
static_assert(offsetof(rec_cli, amm_cap) == 325);
static_assert(offsetof(rec_cli, telefono1) == 330);
static_assert(offsetof(rec_cli, telefono2) == 345);
static_assert(offsetof(rec_cli, telefono3) == 360);
static_assert(offsetof(rec_cli, partita_iva) == 375);
static_assert(offsetof(rec_cli, codice_fiscale) == 386);
static_assert(offsetof(rec_cli, vettore1) == 402);
static_assert(offsetof(rec_cli, vettore2) == 442);
static_assert(offsetof(rec_cli, vettore3) == 482);
static_assert(offsetof(rec_cli, riservato_o) == 514);
static_assert(offsetof(rec_cli, riservato_p) == 515);
static_assert(offsetof(rec_cli, riservato_q) == 521);
static_assert(offsetof(rec_cli, testo_documenti) == 522);
static_assert(offsetof(rec_cli, riservato_r) == 558);
static_assert(offsetof(rec_cli, riservato_s) == 562);
static_assert(offsetof(rec_cli, riservato_t) == 567);
static_assert(offsetof(rec_cli, riservato_u) == 572);
static_assert(offsetof(rec_cli, pagamento) == 584);
static_assert(offsetof(rec_cli, riservato_v) == 586);
static_assert(offsetof(rec_cli, sconto1) == 588);
static_assert(offsetof(rec_cli, sconto2) == 590);
static_assert(offsetof(rec_cli, riservato_y) == 592);
static_assert(offsetof(rec_cli, riservato_z) == 594);
static_assert(offsetof(rec_cli, riservato_aa) == 602);
static_assert(offsetof(rec_cli, riservato_ab) == 610);
static_assert(offsetof(rec_cli, riservato_ac) == 618);
static_assert(offsetof(rec_cli, prefisso_iva) == 626);
static_assert(offsetof(rec_cli, listino) == 628);
static_assert(offsetof(rec_cli, invio_email) == 629);
static_assert(offsetof(rec_cli, riservato_ad) == 630);
static_assert(offsetof(rec_cli, riservato_ae) == 631);
static_assert(offsetof(rec_cli, riservato_af) == 632);
static_assert(offsetof(rec_cli, note1) == 633);
static_assert(offsetof(rec_cli, riservato_ag) == 670);
static_assert(offsetof(rec_cli, riservato_ah) == 671);
static_assert(offsetof(rec_cli, note2) == 673);
static_assert(offsetof(rec_cli, riservato_ai) == 710);
static_assert(offsetof(rec_cli, riservato_aj) == 711);
static_assert(offsetof(rec_cli, iva_cliente) == 712);
static_assert(offsetof(rec_cli, email) == 714);
static_assert(offsetof(rec_cli, eliminato) == 750);

}  // namespace vantora
