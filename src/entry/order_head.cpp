#include "entry/order_head.h"

#include "customer/customer_head.h"
#include "customer/shipping_data.h"
#include "text/dates.h"

namespace vantora {

testata_registrata testata_da_registrare(const customer_head& screen, int prezzo) {
    const auto& fields = screen.Text2;
    const auto& order = screen.Text3;
    const std::string choices = scelte_registrate(screen, prezzo);

    testata_registrata head;
    head.numero = order[0].text();
    head.data = order[1].text();
    head.data_evasione = order[2].text();
    head.testi = {{{order[3].text(), order[4].text(), order[5].text()},
                   {fields[8].text(), fields[9].text(), fields[10].text()},
                   {fields[11].text(), fields[12].text(), choices},
                   {fields[17].text(), fields[18].text(), fields[19].text()}}};
    return head;
}

testata_documento testata_da_stampare(const customer_head& screen) {
    testata_documento head;
    for (std::size_t i = 0; i < head.text2.size(); ++i) head.text2[i] = screen.Text2[i].text();
    for (std::size_t i = 0; i < head.text3.size(); ++i) head.text3[i] = screen.Text3[i].text();
    for (std::size_t i = 0; i < head.combo1.size(); ++i) head.combo1[i] = screen.Combo1[i].text();
    return head;
}

void mostra_testata(customer_head& screen, const stored_rows<rec_orc>& rows) {
    auto& order = screen.Text3;
    order[0].set_text(rows[1].numero.trimmed());
    order[1].set_text(date_text_of_stored(rows[1].data.full()));
    order[2].set_text(date_text_of_stored(rows[1].data_evasione.full()));
    order[3].set_text(rows[1].testo1.trimmed());
    order[4].set_text(rows[1].testo2.trimmed());
    order[5].set_text(rows[1].testo3.trimmed());
    for (const int number : {2, 3, 4}) mostra_spedizione(screen, number, rows[number]);
    const int payment = scelta(rows[3].testo3, scelta_testata::pagamento);
    screen.Combo1[customer_head::pagamento].choose(payment);
}

}  // namespace vantora
