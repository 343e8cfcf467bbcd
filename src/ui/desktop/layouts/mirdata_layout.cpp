#include "ui/desktop/layouts.h"
#include "ui/desktop/layouts/parts.h"

namespace vantora::ui::desktop {

void lay_out_mirdata(form_window& window) {
    auto* line = new QHBoxLayout(&window);
    line->setContentsMargins(24, 24, 24, 24);
    line->addWidget(caption("Data", &window));
    line->addWidget(window.widget("nuovadata"));
    window.set_first_size(QSize(300, 90));
}

}  // namespace vantora::ui::desktop
