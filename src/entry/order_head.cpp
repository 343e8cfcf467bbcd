#include "entry/order_head.h"

#include "customer/customer_head.h"
#include "customer/shipping_data.h"
#include "text/dates.h"

namespace vantora {

testata_registrata head_to_store(const customer_head& screen, int prezzo) {
    const auto& fields = screen.Text2;
    const auto& order = screen.Text3;
    const std::string choices = stored_choices(screen, prezzo);

    testata_registrata head;
    head.numero = order[campo_ordine::numero].text();
    head.data = order[campo_ordine::data].text();
    head.data_evasione = order[campo_ordine::data_evasione].text();
    head.testi = {
        {{order[campo_ordine::riferimento1].text(), order[campo_ordine::riferimento2].text(),
          order[campo_ordine::riferimento3].text()},
         {fields[campo_cliente::amm_intestazione1].text(),
          fields[campo_cliente::amm_intestazione2].text(),
          fields[campo_cliente::amm_indirizzo].text()},
         {fields[campo_cliente::amm_cap].text(), fields[campo_cliente::amm_citta].text(), choices},
         {fields[campo_cliente::vettore1].text(), fields[campo_cliente::vettore2].text(),
          fields[campo_cliente::vettore3].text()}}};
    return head;
}

testata_documento head_to_print(const customer_head& screen) {
    testata_documento head;
    for (std::size_t i = 0; i < head.text2.size(); ++i) head.text2[i] = screen.Text2[i].text();
    for (std::size_t i = 0; i < head.text3.size(); ++i) head.text3[i] = screen.Text3[i].text();
    for (std::size_t i = 0; i < head.combo1.size(); ++i) head.combo1[i] = screen.Combo1[i].text();
    return head;
}

void show_stored_head(customer_head& screen, const stored_rows<rec_orc>& rows) {
    auto& order = screen.Text3;
    order[campo_ordine::numero].set_text(rows[1].numero.trimmed());
    order[campo_ordine::data].set_text(date_text_of_stored(rows[1].data.full()));
    order[campo_ordine::data_evasione].set_text(date_text_of_stored(rows[1].data_evasione.full()));
    order[campo_ordine::riferimento1].set_text(rows[1].testo1.trimmed());
    order[campo_ordine::riferimento2].set_text(rows[1].testo2.trimmed());
    order[campo_ordine::riferimento3].set_text(rows[1].testo3.trimmed());
    for (const int number : {2, 3, 4}) show_shipping(screen, number, rows[number]);
    const int payment = scelta(rows[3].testo3, scelta_testata::pagamento);
    screen.Combo1[customer_head::pagamento].choose(payment);
}

}  // namespace vantora
