#pragma once

#include "store/records.h"

namespace vantora::archive {

// The fields of the records by the names that the suite gives them, in the order of the file:
// visit(name, field) is called for each.

template <class Visit>
void visit_fields(const rec_cli& one, Visit&& visit) {
    visit("intestazione1", one.intestazione1);
    visit("intestazione2", one.intestazione2);
    visit("indirizzo", one.indirizzo);
    visit("citta", one.citta);
    visit("cap", one.cap);
    visit("amm_intestazione1", one.amm_intestazione1);
    visit("amm_intestazione2", one.amm_intestazione2);
    visit("amm_indirizzo", one.amm_indirizzo);
    visit("amm_citta", one.amm_citta);
    visit("amm_cap", one.amm_cap);
    visit("telefono1", one.telefono1);
    visit("telefono2", one.telefono2);
    visit("telefono3", one.telefono3);
    visit("partita_iva", one.partita_iva);
    visit("codice_fiscale", one.codice_fiscale);
    visit("vettore1", one.vettore1);
    visit("vettore2", one.vettore2);
    visit("vettore3", one.vettore3);
    visit("riservato_o", one.riservato_o);
    visit("riservato_p", one.riservato_p);
    visit("riservato_q", one.riservato_q);
    visit("testo_documenti", one.testo_documenti);
    visit("riservato_r", one.riservato_r);
    visit("riservato_s", one.riservato_s);
    visit("riservato_t", one.riservato_t);
    visit("riservato_u", one.riservato_u);
    visit("pagamento", one.pagamento);
    visit("riservato_v", one.riservato_v);
    visit("sconto1", one.sconto1);
    visit("sconto2", one.sconto2);
    visit("riservato_y", one.riservato_y);
    visit("riservato_z", one.riservato_z);
    visit("riservato_aa", one.riservato_aa);
    visit("riservato_ab", one.riservato_ab);
    visit("riservato_ac", one.riservato_ac);
    visit("prefisso_iva", one.prefisso_iva);
    visit("listino", one.listino);
    visit("invio_email", one.invio_email);
    visit("riservato_ad", one.riservato_ad);
    visit("riservato_ae", one.riservato_ae);
    visit("riservato_af", one.riservato_af);
    visit("note1", one.note1);
    visit("riservato_ag", one.riservato_ag);
    visit("riservato_ah", one.riservato_ah);
    visit("note2", one.note2);
    visit("riservato_ai", one.riservato_ai);
    visit("riservato_aj", one.riservato_aj);
    visit("iva_cliente", one.iva_cliente);
    visit("email", one.email);
    visit("eliminato", one.eliminato);
}

template <class Visit>
void visit_fields(const rec_art& one, Visit&& visit) {
    visit("codice", one.codice);
    visit("descrizione", one.descrizione);
    visit("codice_barre", one.codice_barre);
    visit("um", one.um);
    visit("categoria", one.categoria);
    visit("iva", one.iva);
    visit("prezzo1", one.prezzo1);
    visit("prezzo2", one.prezzo2);
    visit("riservato_al", one.riservato_al);
    visit("riservato_am", one.riservato_am);
    visit("riservato_an", one.riservato_an);
    visit("riservato_ao", one.riservato_ao);
    visit("giacenza", one.giacenza);
    visit("riservato_ap", one.riservato_ap);
    visit("impegnato", one.impegnato);
    visit("ordinato_clienti", one.ordinato_clienti);
    visit("riservato_aq", one.riservato_aq);
    visit("riservato_ar", one.riservato_ar);
    visit("riservato_as", one.riservato_as);
    visit("scaricato", one.scaricato);
    visit("riservato_at", one.riservato_at);
    visit("valore_scaricato", one.valore_scaricato);
    visit("classe1", one.classe1);
    visit("classe2", one.classe2);
    visit("classe3", one.classe3);
    visit("riservato_au", one.riservato_au);
    visit("riservato_av", one.riservato_av);
    visit("riservato_aw", one.riservato_aw);
    visit("riservato_ax", one.riservato_ax);
    visit("riservato_ay", one.riservato_ay);
    visit("riservato_az", one.riservato_az);
    visit("peso", one.peso);
    visit("riservato_ba", one.riservato_ba);
    visit("riservato_bb", one.riservato_bb);
    visit("eliminato", one.eliminato);
}

template <class Visit>
void visit_fields(const rec_orc& one, Visit&& visit) {
    visit("numero", one.numero);
    visit("data", one.data);
    visit("cliente", one.cliente);
    visit("testo1", one.testo1);
    visit("testo2", one.testo2);
    visit("testo3", one.testo3);
    visit("articolo", one.articolo);
    visit("descrizione", one.descrizione);
    visit("um", one.um);
    visit("quantita", one.quantita);
    visit("prezzo", one.prezzo);
    visit("evaso", one.evaso);
    visit("riservato_b", one.riservato_b);
    visit("riservato_c", one.riservato_c);
    visit("riservato_d", one.riservato_d);
    visit("data_evasione", one.data_evasione);
    visit("evaso_flag", one.evaso_flag);
    visit("impegno", one.impegno);
    visit("iva", one.iva);
    visit("sc1", one.sc1);
    visit("sc2", one.sc2);
    visit("data_reg", one.data_reg);
    visit("descrizione2", one.descrizione2);
    visit("riservato_e", one.riservato_e);
    visit("annullato", one.annullato);
}

template <class Visit>
void visit_fields(const rec_prv& one, Visit&& visit) {
    visit("numero", one.numero);
    visit("data", one.data);
    visit("cliente", one.cliente);
    visit("testo1", one.testo1);
    visit("testo2", one.testo2);
    visit("testo3", one.testo3);
    visit("articolo", one.articolo);
    visit("descrizione", one.descrizione);
    visit("quantita", one.quantita);
    visit("prezzo", one.prezzo);
    visit("um", one.um);
    visit("sc1", one.sc1);
    visit("sc2", one.sc2);
    visit("iva", one.iva);
    visit("riservato_f", one.riservato_f);
    visit("riservato_g", one.riservato_g);
    visit("riservato_h", one.riservato_h);
    visit("riservato_i", one.riservato_i);
    visit("riservato_j", one.riservato_j);
    visit("riservato_k", one.riservato_k);
    visit("descrizione2", one.descrizione2);
    visit("riservato_l", one.riservato_l);
    visit("riservato_m", one.riservato_m);
    visit("riservato_n", one.riservato_n);
    visit("annullato", one.annullato);
}

template <class Visit>
void visit_fields(const rec_mag& one, Visit&& visit) {
    visit("data", one.data);
    visit("documento", one.documento);
    visit("tipo", one.tipo);
    visit("movimento", one.movimento);
    visit("data_reg", one.data_reg);
    visit("articolo", one.articolo);
    visit("cliente", one.cliente);
    visit("quantita", one.quantita);
    visit("prezzo", one.prezzo);
    visit("segno", one.segno);
    visit("zero", one.zero);
}

template <class Visit>
void visit_fields(const rec_bol& one, Visit&& visit) {
    visit("numero", one.numero);
    visit("data", one.data);
    visit("zero1", one.zero1);
    visit("testo1", one.testo1);
    visit("testo2", one.testo2);
    visit("progressivo", one.progressivo);
    visit("zero2", one.zero2);
    visit("data_reg", one.data_reg);
    visit("uno", one.uno);
    visit("vuoto", one.vuoto);
    visit("cliente", one.cliente);
    visit("senza_scarico", one.senza_scarico);
    visit("zero3", one.zero3);
    visit("zero4", one.zero4);
    visit("zero5", one.zero5);
}

template <class Visit>
void visit_fields(const rec_tot& one, Visit&& visit) {
    visit("quanti", one.quanti);
    visit("modificato", one.modificato);
    visit("riservato_a", one.riservato_a);
    visit("ultimo_numero", one.ultimo_numero);
    visit("progressivo", one.progressivo);
}

}  // namespace vantora::archive
