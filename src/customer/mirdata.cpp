#include "customer/mirdata.h"

#include "ui/enter_key.h"

namespace vantora {

mirdata::mirdata(program& app) : form(app.desk, "mirdata", "Imposta data"), app_(app) {
    add("nuovadata", nuovadata);
    nuovadata.on_close_up = [this] { choose(); };
    ui::on_enter(nuovadata, [this] { choose(); });
}

void mirdata::load() {
    auto proposed = read_date(app_.data_proposta);
    if (!proposed) proposed = read_date(app_.data_riserva);
    if (proposed) nuovadata.set_value(*proposed);
}

void mirdata::choose() {
    app_.data_scelta = nuovadata.text();
    unload();
}

}  // namespace vantora
