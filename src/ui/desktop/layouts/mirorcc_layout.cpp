#include "ui/desktop/layouts.h"
#include "ui/desktop/layouts/customer_layout.h"

namespace vantora::ui::desktop {

void lay_out_mirorcc(form_window& window) {
    lay_out_customer(window, {"Dati del trasporto",
                              {{"Numero DDT", {{"Text3", 0}}},
                               date_row("Data", 1, 0),
                               {"Causale trasporto", {{"Combo1", 1}}},
                               {"Aspetto dei beni", {{"Combo2"}}},
                               {"Numero colli", {{"Text3", 2}}},
                               {"Peso", {{"Text3", 3}}},
                               {"Porto", {{"Combo1", 0}}},
                               {"Trasporto", {{"Combo1", 2}}},
                               date_row("Inizio trasporto", 4, 1),
                               {"Ora", {{"Text3", 5}}}},
                              {"avanti", "&Prosegui", "Passa alle righe da evadere", "F12"}});
}

}  // namespace vantora::ui::desktop
