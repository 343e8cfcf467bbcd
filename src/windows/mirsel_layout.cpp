#include "windows/layouts.h"
#include "windows/parts.h"

namespace vantora::ui::desktop {

void lay_out_mirsel(form_window& window) {
    auto* all = new QVBoxLayout(&window);
    all->setContentsMargins(12, 10, 12, 12);
    all->setSpacing(8);
    auto* line = new QHBoxLayout;
    auto* part = window.widget("selnome");
    line->addWidget(caption_of(part, "Parte del nome", &window));
    part->setMaximumWidth(360);
    part->setEnabled(true);
    line->addWidget(part, 1);
    line->addStretch(1);
    window.dress("indice", -1, {"indietro", "&Indietro", "Torna senza scegliere", "Esc"},
                 Qt::ToolButtonTextBesideIcon);
    set_look(window.widget("indice"), "look", "plain");
    line->addWidget(window.widget("indice"));
    line->addWidget(help_button(window));
    all->addLayout(line);
    all->addLayout(grid_with_sort_buttons(window, "elenco", "srx", 5), 1);
    window.setMinimumSize(760, 420);
    window.set_first_size(QSize(1120, 620));
}

}  // namespace vantora::ui::desktop
