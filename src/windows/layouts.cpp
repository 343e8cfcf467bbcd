#include "windows/layouts.h"

#include "customer/mirdata.h"
#include "customer/mirorcm.h"
#include "customer/mirorcx.h"
#include "customer/mirsel.h"
#include "desktop/form_window.h"
#include "enquiry/enquiry_screen.h"
#include "entry/import_picker.h"
#include "entry/mirorcs.h"
#include "entry/mirorcz.h"
#include "fulfil/mirorca.h"
#include "fulfil/mirorcc.h"
#include "fulfil/mirorcr.h"
#include "register/mirorc.h"
#include "reports/mirstoa.h"
#include "reports/mirston.h"

namespace vantora::ui::desktop {

namespace {

template <class Screen>
bool laid_out(form_window& window) {
    auto* screen = dynamic_cast<Screen*>(&window.screen());
    if (screen) lay_out(window, *screen);
    return screen != nullptr;
}

/// The first of these that the screen is.
template <class... Screens>
bool laid_out_as_one_of(form_window& window) {
    return (laid_out<Screens>(window) || ...);
}

}  // namespace

bool lay_out_screen(form_window& window) {
    return laid_out_as_one_of<mirorc, mirorcx, mirorcm, mirorcc, mirsel, mirdata, mirorcs, mirorcz,
                              mirorca, mirorcr, import_picker, enquiry_screen, mirstoa, mirston,
                              report_screen>(window);
}

}  // namespace vantora::ui::desktop
