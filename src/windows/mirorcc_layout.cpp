#include "fulfil/mirorcc.h"

#include <QLineEdit>

#include "windows/customer_layout.h"
#include "windows/layouts.h"

namespace vantora::ui::desktop {

void lay_out(form_window& window, mirorcc& head) {
    lay_out_customer(
        window, head,
        {"Dati del trasporto",
         {{"Numero DDT",
           {{head.Text3[campo_ddt::numero], 10},
            {head.Text3[campo_ddt::data], 10, "Data"},
            {head.text5[0]}}},
          {"Causale trasporto", {{head.Combo1[mirorcc::causale]}}},
          {"Aspetto dei beni", {{head.Combo2}}},
          {"Numero colli",
           {{head.Text3[campo_ddt::colli], 10}, {head.Text3[campo_ddt::peso], 12, "Peso"}}},
          {"Porto",
           {{head.Combo1[customer_head::porto]},
            {head.Combo1[customer_head::trasporto], 0, "Trasporto"}}},
          {"Inizio trasporto",
           {{head.Text3[campo_ddt::inizio], 10},
            {head.text5[1]},
            {head.Text3[campo_ddt::ora], 6, "Ora"}}}},
         {"avanti", "&Prosegui", "Passa alle righe da evadere", "F12"},
         "Torna al registro senza evadere"});
    if (!window.by_person() || !head.weighs_by_itself()) return;
    QLineEdit* weight = window.widget(head.Text3[campo_ddt::peso]);
    weight->setReadOnly(true);
    weight->setPlaceholderText("automatico");
    weight->setToolTip("Il peso si calcola dagli articoli");
}

}  // namespace vantora::ui::desktop
