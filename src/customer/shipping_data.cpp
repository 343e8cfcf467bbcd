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
    for (const auto& [field, its_row, stored] : campi_spedizione) {
        if (its_row == number) head.Text2[field].set_text((row.*stored).trimmed());
    }
    if (number != 3) return true;
    const bool port =
        head.Combo1[customer_head::porto].choose(scelta(row.testo3, scelta_testata::porto));
    const bool transport =
        head.Combo1[customer_head::trasporto].choose(scelta(row.testo3, scelta_testata::trasporto));
    return port && transport;
}

}  // namespace vantora
