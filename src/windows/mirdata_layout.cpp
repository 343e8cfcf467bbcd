#include "windows/layouts.h"
#include "windows/parts.h"

namespace vantora::ui::desktop {

void lay_out_mirdata(form_window& window) {
    auto* line = new QHBoxLayout(&window);
    line->setContentsMargins(24, 24, 24, 24);
    QWidget* day = window.widget("nuovadata");
    line->addWidget(caption_of(day, "Data", &window));
    line->addWidget(day);
    window.set_first_size(QSize(300, 90));
}

}  // namespace vantora::ui::desktop
