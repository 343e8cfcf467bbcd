#include "customer/mirorcx.h"

#include "program/pick_list.h"

namespace vantora {

namespace {

constexpr customer_head_kind nuovo_ordine{"mirorcx",
                                          "Selezione cliente",
                                          elenco_clienti::da_mirorcx,
                                          {campo_ordine::data, campo_ordine::data_evasione}};

}  // namespace

mirorcx::mirorcx(program& app) : customer_head(app, nuovo_ordine) {}

void mirorcx::activate() {
    take_choice();
    if (app_.schermo_pronto != 0) return;
    app_.schermo_pronto = 1;
    begin_document(contatori::ordini);
    start_at_first_customer();
}

bool mirorcx::date_is_right(std::size_t field, const std::string& complaint) {
    const std::string_view typed = trimmed(Text3[field].text());
    if (typed.size() == 10 && read_date(typed)) return true;
    app_.desk.message(complaint, ui::attention, ui::icon::stop);
    Text3[field].set_focus();
    return false;
}

void mirorcx::go_on() {
    if (!date_is_right(campo_ordine::data, "La data dell'ordine non è corretta"_cp)) return;
    if (!date_is_right(campo_ordine::data_evasione,
                       "La data presunta di evasione non è corretta"_cp))
        return;
    if (!customer_usable()) return;
    app_.selezione_1 = cliente_corrente_;
    if (!app_.mirorcs.exists()) return;
    hide();
    app_.mirorcs.use().show();
}

}  // namespace vantora
