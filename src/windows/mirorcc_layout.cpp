#include "windows/customer_layout.h"
#include "windows/layouts.h"

namespace vantora::ui::desktop {

void lay_out_mirorcc(form_window& window) {
    lay_out_customer(
        window, {"Dati del trasporto",
                 {{"Numero DDT", {{"Text3", 0, 10}, {"Text3", 1, 10, "Data"}, {"text5", 0}}},
                  {"Causale trasporto", {{"Combo1", 1}}},
                  {"Aspetto dei beni", {{"Combo2"}}},
                  {"Numero colli", {{"Text3", 2, 10}, {"Text3", 3, 12, "Peso"}}},
                  {"Porto", {{"Combo1", 0}, {"Combo1", 2, 0, "Trasporto"}}},
                  {"Inizio trasporto", {{"Text3", 4, 10}, {"text5", 1}, {"Text3", 5, 6, "Ora"}}}},
                 {"avanti", "&Prosegui", "Passa alle righe da evadere", "F12"}});
}

}  // namespace vantora::ui::desktop
