#include "entry/order_printing.h"

namespace vantora {

void offer_print(program& app, const char* titolo, const documento_da_stampare& order, bool invia) {
    if (!app.desk.ask("Stampare l'ordine?", titolo)) return;
    app.desk.printer().set_job_name(
        "Ordine " + std::string(trimmed(order.testata.text3[campo_ordine::numero])));
    offer_copies(app, order, invia);
}

}  // namespace vantora
