#include "customer/shipping_data.h"

#include "customer/customer_head.h"

namespace vantora {

int scelta(const text<40>& testo3, scelta_testata which) {
    const char digit = testo3.full()[static_cast<std::size_t>(which)];
    return digit >= '0' && digit <= '9' ? digit - '0' : 0;
}

std::string stored_choices(const customer_head& head, int prezzo) {
    std::string packed;
    for (const int list :
         {customer_head::porto, customer_head::trasporto, customer_head::pagamento}) {
        packed += std::to_string(head.Combo1[list].chosen());
    }
    return packed + std::to_string(prezzo);
}

bool show_shipping(customer_head& head, int number, const rec_orc& row) {
    const auto show = [&head](std::size_t field, const text<40>& stored) {
        head.Text2[field].set_text(stored.trimmed());
    };
    switch (number) {
        case 2:
            show(campo_cliente::amm_intestazione1, row.testo1);
            show(campo_cliente::amm_intestazione2, row.testo2);
            show(campo_cliente::amm_indirizzo, row.testo3);
            return true;
        case 3: {
            show(campo_cliente::amm_cap, row.testo1);
            show(campo_cliente::amm_citta, row.testo2);
            const bool port =
                head.Combo1[customer_head::porto].choose(scelta(row.testo3, scelta_testata::porto));
            const bool transport = head.Combo1[customer_head::trasporto].choose(
                scelta(row.testo3, scelta_testata::trasporto));
            return port && transport;
        }
        case 4:
            show(campo_cliente::vettore1, row.testo1);
            show(campo_cliente::vettore2, row.testo2);
            show(campo_cliente::vettore3, row.testo3);
            return true;
        default:
            return true;
    }
}

}  // namespace vantora
