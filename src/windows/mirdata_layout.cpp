#include "customer/mirdata.h"
#include "windows/layout_pieces.h"
#include "windows/layouts.h"

namespace vantora::ui::desktop {

void lay_out(form_window& window, mirdata& screen) {
    auto* line = new QHBoxLayout(&window);
    line->setContentsMargins(24, 24, 24, 24);
    QWidget* day = window.widget(screen.nuovadata);
    line->addWidget(caption_of(day, "Data", &window));
    line->addWidget(day);
    window.set_first_size(QSize(300, 90));
}

}  // namespace vantora::ui::desktop
