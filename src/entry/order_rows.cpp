#include "entry/order_rows.h"

#include "text/dates.h"

namespace vantora {

void fill_head(rec_orc& row, const testata_registrata& head, std::size_t number) {
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

void fill_line(rec_orc& row, const riga_ordine& line) {
    const std::string_view description = line.descrizione.full();
    row.articolo = line.articolo;
    row.descrizione = description.substr(0, 40);
    row.descrizione2 = description.substr(40, 10);
    row.um = line.um.full();
    row.quantita = line.quantita;
    row.prezzo = line.prezzo;
    row.iva = line.iva;
    row.sc1 = line.sc1;
    row.sc2 = line.sc2;
}

}  // namespace vantora
