#include "windows/customer_layout.h"
#include "windows/layouts.h"

namespace vantora::ui::desktop {

void lay_out_mirorcx(form_window& window) {
    lay_out_customer(window, {"Riferimenti dell'ordine",
                              order_head_rows(),
                              {"avanti", "&Prosegui", "Passa alle righe dell'ordine", "F12"}});
}

void lay_out_mirorcm(form_window& window) {
    lay_out_customer(window, {"Riferimenti dell'ordine",
                              order_head_rows(),
                              {"avanti", "C&onferma", "Torna alle righe dell'ordine", "F12"}});
}

}  // namespace vantora::ui::desktop
