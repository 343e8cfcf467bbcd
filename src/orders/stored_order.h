#pragma once

#include <array>
#include <string>

#include "orders/order_lines.h"
#include "store/records/rec_orc.h"
#include "text/dates.h"

namespace vantora {

// How an order goes into its rows. The way back is in stored_lines.h.

/// The head of an order as its rows store it.
struct testata_registrata {
    std::string numero;
    std::string data;           ///< dd/mm/yyyy
    std::string data_evasione;  ///< dd/mm/yyyy
    std::int16_t cliente = 0;
    /// `testo1` to `testo3` of rows 1 to 4.
    std::array<std::array<std::string, 3>, 4> testi;
    bool impegno = false;  ///< commit the stock
};

/// Puts the head on row `number` of its order; the texts go on the first four rows only. All other
/// fields of the row stay as they are.
inline void fill_head(rec_orc& row, const testata_registrata& head, std::size_t number) {
    row.numero = head.numero;
    row.data = stored_of_date_text(head.data);
    row.data_evasione = stored_of_date_text(head.data_evasione);
    row.cliente = head.cliente;
    row.impegno = head.impegno ? "1" : "0";
    if (number > head.testi.size()) return;
    const auto& texts = head.testi[number - 1];
    row.testo1 = texts[0];
    row.testo2 = texts[1];
    row.testo3 = texts[2];
}

/// Puts a line on its row, of an order or a quote. All other fields stay, the fulfilled quantity
/// included.
template <class Row>
void fill_line(Row& row, const riga_ordine& line) {
    const std::string_view description = line.descrizione.full();
    row.articolo = line.articolo;
    row.descrizione = description.substr(0, row.descrizione.width);
    row.descrizione2 = description.substr(row.descrizione.width, row.descrizione2.width);
    row.um = line.um.full();
    row.quantita = line.quantita;
    row.prezzo = line.prezzo;
    row.iva = line.iva;
    row.sc1 = line.sc1;
    row.sc2 = line.sc2;
}

}  // namespace vantora
