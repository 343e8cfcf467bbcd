#pragma once

#include <string>
#include <string_view>

#include "orders/head_fields.h"
#include "store/fields.h"
#include "store/records/rec_orc.h"

namespace vantora {

class customer_head;

// The shipping data of an order: rows 2 to 4 of its block store them, a customer head shows them.

/// Where an order's block stores what the fields of a head say of it.
struct campo_spedizione {
    std::size_t field;  ///< as campo_cliente
    int row;
    text<40> rec_orc::*stored;
};
inline constexpr campo_spedizione campi_spedizione[] = {
    {campo_cliente::amm_intestazione1, 2, &rec_orc::testo1},
    {campo_cliente::amm_intestazione2, 2, &rec_orc::testo2},
    {campo_cliente::amm_indirizzo, 2, &rec_orc::testo3},
    {campo_cliente::amm_cap, 3, &rec_orc::testo1},
    {campo_cliente::amm_citta, 3, &rec_orc::testo2},
    {campo_cliente::vettore1, 4, &rec_orc::testo1},
    {campo_cliente::vettore2, 4, &rec_orc::testo2},
    {campo_cliente::vettore3, 4, &rec_orc::testo3}};

/// The choices that `testo3` of row 3 packs into one character each, in their order.
enum class scelta_testata { porto, trasporto, pagamento, prezzo };

/// The entries of the lists of port and of who transports, the same for every company.
inline constexpr std::string_view voci_porto[] = {"Porto franco", "Porto assegnato",
                                                  "Addebito in fattura", ""};
inline constexpr std::string_view voci_trasporto[] = {"Mittente", "Destinatario", "Vettore", ""};

/// One of the packed choices. What is no digit counts as 0.
int scelta(const text<40>& testo3, scelta_testata which);

/// The choices of a head for `testo3`. `prezzo`: which of the article's prices is on, 0 or 1; 2 for
/// none. A list's entry of two digits takes the place of the next one's, which readers live with.
std::string stored_choices(const customer_head& head, int prezzo);

/// Shows on a head what row `number` of an order's block stores: destination (2), its place, port
/// and transport (3), carrier (4); other rows hold nothing of the kind. False if a choice isn't in
/// its list, which then stays as it is.
bool show_shipping(customer_head& head, int number, const rec_orc& row);

}  // namespace vantora
