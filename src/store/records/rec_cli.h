#pragma once

#include "store/record_fields.h"

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

template <>
inline constexpr auto fields_of<rec_cli> = record_fields(
    field<&rec_cli::intestazione1>{0, "ragione_sociale", "name"},
    field<&rec_cli::intestazione2>{40, "ragione_sociale2", "name2"},
    field<&rec_cli::indirizzo>{80, "indirizzo", "address"},
    field<&rec_cli::citta>{120, "citta", "town"}, field<&rec_cli::cap>{160, "cap", "postal_code"},
    field<&rec_cli::amm_intestazione1>{165, "amm_ragione_sociale", "office_name"},
    field<&rec_cli::amm_intestazione2>{205, "amm_ragione_sociale2", "office_name2"},
    field<&rec_cli::amm_indirizzo>{245, "amm_indirizzo", "office_address"},
    field<&rec_cli::amm_citta>{285, "amm_citta", "office_town"},
    field<&rec_cli::amm_cap>{325, "amm_cap", "office_postal_code"},
    field<&rec_cli::telefono1>{330, "telefono", "telephone"},
    field<&rec_cli::telefono2>{345, "telefono2", "telephone2"},
    field<&rec_cli::telefono3>{360, "telefono3", "telephone3"},
    field<&rec_cli::partita_iva>{375, "partita_iva", "vat_number"},
    field<&rec_cli::codice_fiscale>{386, "codice_fiscale", "tax_code"},
    field<&rec_cli::vettore1>{402, "vettore", "carrier"},
    field<&rec_cli::vettore2>{442, "vettore2", "carrier2"},
    field<&rec_cli::vettore3>{482, "vettore3", "carrier3"}, field<&rec_cli::riservato_o>{514},
    field<&rec_cli::riservato_p>{515}, field<&rec_cli::riservato_q>{521},
    field<&rec_cli::testo_documenti>{522, "testo_documenti", "document_text"},
    field<&rec_cli::riservato_r>{558}, field<&rec_cli::riservato_s>{562},
    field<&rec_cli::riservato_t>{567}, field<&rec_cli::riservato_u>{572},
    field<&rec_cli::pagamento>{584, "pagamento", "payment"}, field<&rec_cli::riservato_v>{586},
    field<&rec_cli::sconto1>{588, "sconto1", "discount1"},
    field<&rec_cli::sconto2>{590, "sconto2", "discount2"}, field<&rec_cli::riservato_y>{592},
    field<&rec_cli::riservato_z>{594}, field<&rec_cli::riservato_aa>{602},
    field<&rec_cli::riservato_ab>{610}, field<&rec_cli::riservato_ac>{618},
    field<&rec_cli::prefisso_iva>{626, "prefisso_iva", "vat_prefix"},
    field<&rec_cli::listino>{628, "listino", "price_list"},
    field<&rec_cli::invio_email>{629, "invio_email", "sends_email"},
    field<&rec_cli::riservato_ad>{630}, field<&rec_cli::riservato_ae>{631},
    field<&rec_cli::riservato_af>{632}, field<&rec_cli::note1>{633, "nota", "note"},
    field<&rec_cli::riservato_ag>{670}, field<&rec_cli::riservato_ah>{671},
    field<&rec_cli::note2>{673, "nota2", "note2"}, field<&rec_cli::riservato_ai>{710},
    field<&rec_cli::riservato_aj>{711}, field<&rec_cli::iva_cliente>{712, "codice_iva", "vat_code"},
    field<&rec_cli::email>{714, "email", "email"},
    field<&rec_cli::eliminato>{750, "eliminato", "deleted"});

}  // namespace vantora
