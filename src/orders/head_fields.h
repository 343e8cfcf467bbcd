#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace vantora {

// What the head of a document consists of: its screen shows it, its row and its draft keep it, its
// page prints it. Layouts of documents name the fields by these numbers too.

/// The customer, field by field: `Text2`.
namespace campo_cliente {
enum : std::size_t {
    // registered office and tax data
    intestazione1,
    intestazione2,
    indirizzo,
    cap,
    citta,
    codice_fiscale,
    prefisso_iva,
    partita_iva,
    // administrative office, or the destination
    amm_intestazione1,
    amm_intestazione2,
    amm_indirizzo,
    amm_cap,
    amm_citta,
    // reaching the customer, carrier, notes
    telefono1,
    telefono2,
    telefono3,
    email,
    vettore1,
    vettore2,
    vettore3,
    note1,
    note2,
    quanti
};

/// Those that a document may have of its own, and keeps: destination, carrier, notes.
inline constexpr std::size_t del_documento[] = {
    amm_intestazione1, amm_intestazione2, amm_indirizzo, amm_cap, amm_citta,
    vettore1,          vettore2,          vettore3,      note1,   note2};
}  // namespace campo_cliente

/// What an order adds: `Text3`.
namespace campo_ordine {
enum : std::size_t {
    numero,
    data,
    data_evasione,
    riferimento1,
    riferimento2,
    riferimento3,
    quanti
};
}  // namespace campo_ordine

/// What a transport document adds: `Text3`.
namespace campo_ddt {
enum : std::size_t { numero, data, colli, peso, inizio, ora, quanti };
}  // namespace campo_ddt

/// What the fields of a screen that holds a head contain.
struct contenuto_testata {
    std::array<std::string, campo_cliente::quanti> text2;
    std::array<std::string, campo_ordine::quanti> text3;
    std::array<int, 3> combo1{};  ///< the entries chosen
};

}  // namespace vantora
