#include "app/start.h"

#include "customer/mirdata.h"
#include "customer/mirorcx.h"
#include "customer/mirsel.h"
#include "entry/mirorcs.h"
#include "register/mirorc.h"
#include "store/company.h"

namespace vantora {

namespace {

template <class Form>
void provide(ui::screen<Form>& place, program& app) {
    place.made_by(app.desk, [&app] { return std::make_unique<Form>(app); });
}

}  // namespace

void start(program& app, std::string_view argument) {
    provide(app.mirorc, app);
    provide(app.mirorcx, app);
    provide(app.mirsel, app);
    provide(app.mirdata, app);
    provide(app.mirorcs, app);

    app.desk.at_end = [&app] { chiudi_archivi(app.archives); };
    app.parameters.numero_azienda = numero_azienda_in(argument);
    app.mirorc->show();
}

}  // namespace vantora
