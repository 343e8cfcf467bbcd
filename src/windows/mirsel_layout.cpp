#include <QLineEdit>

#include "customer/mirsel.h"
#include "windows/layout_pieces.h"
#include "windows/layouts.h"

namespace vantora::ui::desktop {

void lay_out(form_window& window, mirsel& screen) {
    auto* all = new QVBoxLayout(&window);
    all->setContentsMargins(12, 10, 12, 12);
    all->setSpacing(8);
    auto* line = new QHBoxLayout;
    QLineEdit* part = window.widget(screen.selnome);
    line->addWidget(caption_of(part, "Parte del nome", &window));
    part->setMaximumWidth(360);
    part->setEnabled(true);
    line->addWidget(part, 1);
    line->addStretch(1);
    line->addWidget(plain_command(window, screen.indice,
                                  {"indietro", "&Indietro", "Torna senza scegliere", "Esc"}));
    line->addWidget(help_button(window));
    all->addLayout(line);
    all->addLayout(grid_with_sort_buttons(window, screen.elenco, screen.srx), 1);
    window.setMinimumSize(760, 420);
    window.set_first_size(QSize(1120, 620));
}

}  // namespace vantora::ui::desktop
