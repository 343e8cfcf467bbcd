#include "app/start.h"

#include "customer/mirdata.h"
#include "customer/mirorcm.h"
#include "customer/mirorcx.h"
#include "customer/mirsel.h"
#include "enquiry/bozze.h"
#include "enquiry/documenti.h"
#include "enquiry/prezzi.h"
#include "enquiry/quadro.h"
#include "enquiry/ricerca.h"
#include "enquiry/storia.h"
#include "entry/draft_taking.h"
#include "entry/import_picker.h"
#include "entry/mirorcs.h"
#include "entry/mirorcz.h"
#include "fulfil/mirorca.h"
#include "fulfil/mirorcc.h"
#include "fulfil/mirorcr.h"
#include "program/change_messages.h"
#include "register/mirorc.h"
#include "reports/mirstoa.h"
#include "reports/mirstoe.h"
#include "reports/mirston.h"
#include "reports/mirstos.h"
#include "reports/mirstov.h"
#include "store/suite_paths.h"

namespace vantora {

namespace {

template <class... Forms>
void provide(program& app, ui::screen<Forms>&... places) {
    (places.made_by(app.desk, [&app] { return std::make_unique<Forms>(app); }), ...);
}

}  // namespace

void start(program& app, std::string_view argument) {
    provide(app, app.mirorc, app.mirorcx, app.mirorcm, app.mirsel, app.mirdata, app.mirorcs,
            app.mirorcz, app.mirorcb, app.mirpref, app.mirorcc, app.mirorcr, app.mirorca,
            app.mirstoe, app.mirstos, app.mirstov, app.mirston, app.mirstoa, app.bozze,
            app.documenti, app.prezzi, app.quadro, app.ricerca, app.storia);
    app.desk.at_end = [&app] {
        for (ui::form* one : app.desk.forms()) one->rest();
        chiudi_archivi(app.archives);
    };
    watch_stations(app.archives, app.desk);
    app.parameters.numero_azienda = company_number_in(argument);
    if (app.book) {
        app.book->watch(app.archives, app.parameters.numero_azienda,
                        [&app] { return app.desk.clock().now(); });
    }
    app.mirorc->show();
    offer_drafts(app);
}

}  // namespace vantora
