#include "orders/stored_order.h"

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

}  // namespace vantora
