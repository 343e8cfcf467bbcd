#include "customer/mirorcm.h"
#include "customer/mirorcx.h"
#include "windows/customer_layout.h"
#include "windows/layouts.h"

namespace vantora::ui::desktop {

namespace {

std::vector<frame_row> order_head_rows(const customer_head& head) {
    return {
        {"Numero attribuito all'ordine", {{head.Text3[campo_ordine::numero], 12}}},
        {"Data di emissione",
         {{head.Text3[campo_ordine::data], 10},
          {head.text5[0]},
          {head.Text3[campo_ordine::data_evasione], 10, "Data evasione"},
          {head.text5[1]}}},
        {"Riferimenti ordine", {{head.Text3[campo_ordine::riferimento1]}}},
        {"", {{head.Text3[campo_ordine::riferimento2]}}},
        {"", {{head.Text3[campo_ordine::riferimento3]}}},
        {"Porto", {{head.Combo1[customer_head::porto]}}},
        {"Pagamento", {{head.Combo1[customer_head::pagamento]}}},
        {"Trasporto", {{head.Combo1[customer_head::trasporto]}}},
    };
}

}  // namespace

void lay_out(form_window& window, mirorcx& screen) {
    lay_out_customer(window, screen,
                     {"Riferimenti dell'ordine",
                      order_head_rows(screen),
                      {"avanti", "&Prosegui", "Passa alle righe dell'ordine", "F12"},
                      "Torna al registro senza ordine"});
}

void lay_out(form_window& window, mirorcm& screen) {
    lay_out_customer(
        window, screen,
        {"Riferimenti dell'ordine",
         order_head_rows(screen),
         {"avanti", "C&onferma", "Torna alle righe dell'ordine", "F12"},
         "Torna alle righe senza cambiare nulla",
         [&window, &screen] { window.act_on(screen.bottone, [&screen] { screen.give_back(); }); }});
}

}  // namespace vantora::ui::desktop
