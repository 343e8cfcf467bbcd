#include "entry/order_printing.h"

namespace vantora {

void offri_stampa(program& app, const char* titolo, const ordine_da_stampare& order,
                  const documento_stampato& printed) {
    if (!app.desk.ask("Stampare l'ordine?", titolo)) return;
    app.desk.printer().set_job_name("Ordine " + std::string(trimmed(order.testata.text3[0])));
    bool stampato = false;
    do {
        if (stampa_ordine(app, order)) stampato = true;
    } while (app.desk.ask("Stampa altra copia?", "Stampa ordine"));
    if (stampato) offri_pdf(app, printed);
}

}  // namespace vantora
